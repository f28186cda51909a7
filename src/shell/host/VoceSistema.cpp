#include "shell/host/VoceSistema.h"

#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr QLatin1StringView nomeProgramma{"spd-say"};
constexpr qsizetype massimoTesto = 30000; // characters; an argument has a limit
constexpr auto limiteAvvio = 10s;
constexpr auto limitePerCarattere = 200ms; // slow speech

} // namespace

VoceSistema::VoceSistema() {
    m_limite.setSingleShot(true);
    connect(&m_limite, &QTimer::timeout, this, [this] {
        congeda();
        passa(StatoVoce::Guasto, u"il servizio vocale del sistema non risponde."_s);
    });
}

VoceSistema::~VoceSistema() {
    congeda();
}

void VoceSistema::parla(const QString &testo, std::optional<Timbro>) {
    congeda();
    const QString programma = QStandardPaths::findExecutable(nomeProgramma);
    if (programma.isEmpty()) {
        passa(StatoVoce::Guasto, u"il servizio vocale del sistema (speech-dispatcher) non è installato."_s);
        return;
    }
    const QString detto = testo.first(std::min(testo.size(), massimoTesto)).remove(QChar::Null);
    m_processo = new QProcess(this);
    connect(m_processo, &QProcess::started, this, [this] { passa(StatoVoce::Parla, {}); });
    connect(m_processo, &QProcess::finished, this, &VoceSistema::finisci);
    connect(m_processo, &QProcess::errorOccurred, this, [this](QProcess::ProcessError errore) {
        if (errore == QProcess::FailedToStart)
            finisci(-1, QProcess::CrashExit);
    });
    m_limite.start(limiteAvvio + detto.size() * limitePerCarattere);
    passa(StatoVoce::Prepara, {});
    m_processo->start(programma, {u"--wait"_s, u"--language"_s, u"it"_s, u"--"_s, detto});
}

void VoceSistema::taci() {
    congeda();
    passa(StatoVoce::Tace, {});
}

// The program ends by itself, later: its end is not waited for. What it has handed to the service is taken back.
void VoceSistema::congeda() {
    m_limite.stop();
    if (m_processo == nullptr)
        return;
    m_processo->disconnect(this);
    m_processo->setParent(nullptr);
    if (m_processo->state() == QProcess::NotRunning) {
        m_processo->deleteLater();
    } else {
        connect(m_processo, &QProcess::finished, m_processo, &QObject::deleteLater);
        m_processo->kill();
        QProcess::startDetached(nomeProgramma, {u"--cancel"_s});
    }
    m_processo = nullptr;
}

void VoceSistema::finisci(int codice, QProcess::ExitStatus esito) {
    const QString dettaglio = QString::fromLocal8Bit(m_processo->readAllStandardError()).section(u'\n', 0, 0).trimmed();
    congeda();
    if (esito == QProcess::NormalExit && codice == 0)
        passa(StatoVoce::Finito, {});
    else
        passa(StatoVoce::Guasto, dettaglio.isEmpty()
                                     ? u"il servizio vocale del sistema non parla."_s
                                     : u"il servizio vocale del sistema non parla (%1)."_s.arg(dettaglio));
}

void VoceSistema::passa(StatoVoce stato, const QString &motivo) {
    m_stato = stato;
    m_motivo = motivo;
    if (m_alCambio)
        m_alCambio();
}

} // namespace zuvora
