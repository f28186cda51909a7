#include "installer/Cantiere.h"

#include "installer/Contenuto.h"
#include "installer/File.h"
#include "installer/Guasto.h"
#include "installer/Interruzione.h"

#include "shell/logic/Percorsi.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr auto inizioPreparazione = ".zuvora-installa-"_L1;
constexpr auto fileGuardia = "/.zuvora-installa.lock"_L1;
// What is being moved out of the preparation, for whoever has to clear up after a kill.
constexpr auto fileElenco = "/.elenco"_L1;

QStringList voci(const QString &cartella) {
    return QDir(cartella).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Name);
}

// Entries of the folder that a killed process left: its preparation, and what it had moved out of it. Once the settings
// database was in its place the installation was whole, and only the preparation is left over.
QStringList avanzi(const QString &cartella) {
    QStringList trovati;
    for (const QString &voce : voci(cartella)) {
        const QString preparazione = cartella + u'/' + voce;
        if (!voce.startsWith(inizioPreparazione) || !QFileInfo(preparazione).isDir())
            continue;
        QFile elenco(preparazione + fileElenco);
        const QStringList spostate =
            elenco.open(QIODevice::ReadOnly) ? QString::fromUtf8(elenco.readAll()).split(u'\n') : QStringList();
        const bool intera = !presente(percorsoIn(preparazione, archivioZuvora.file));
        for (const QString &nome : spostate)
            if (!intera && !nome.isEmpty() && !nome.contains(u'/') && !presente(preparazione + u'/' + nome))
                trovati += nome;
        trovati += voce; // after what its list names
    }
    return trovati;
}

void rifiutaOccupata(const QString &cartella) {
    const QFileInfo info(cartella);
    const QString nativa = QDir::toNativeSeparators(cartella);
    if (info.exists() && !info.isDir())
        throw Guasto{u"%1 non è una cartella: indicare una cartella nuova."_s.arg(nativa)};
    const QStringList nostre = avanzi(cartella);
    QStringList presenti = voci(cartella);
    std::stable_partition(presenti.begin(), presenti.end(), eArchivio); // they say most
    for (const QString &voce : presenti) {
        if (nostre.contains(voce) || u'/' + voce == fileGuardia || voce == "lost+found"_L1)
            continue;
        throw Guasto{(eArchivio(voce)
                          ? u"Nella cartella %1 c'è già un archivio (%2): nulla è stato modificato."_s
                          : u"Nella cartella %1 c'è già %2: nulla è stato modificato. Indicare una cartella nuova "
                            "o vuota."_s)
                         .arg(nativa, voce)};
    }
}
} // namespace

Cantiere::Cantiere(const QString &cartella) : m_cartella(cartella) {
    rifiutaOccupata(cartella);
    try {
        creaCartelle();
        m_guardia = std::make_unique<QLockFile>(cartella + fileGuardia);
        m_guardia->setStaleLockTime(0); // only its process ends it
        if (!m_guardia->tryLock() && m_guardia->error() == QLockFile::LockFailedError)
            throw Guasto{u"Nella cartella %1 è già in corso un'installazione: attendere che finisca."_s.arg(
                QDir::toNativeSeparators(cartella))};
        rifiutaOccupata(cartella);
        for (const QString &voce : avanzi(cartella))
            rimuovi(cartella + u'/' + voce);
        m_preparazione = std::make_unique<QTemporaryDir>(cartella + u'/' + inizioPreparazione + u"XXXXXX"_s);
        if (!m_preparazione->isValid())
            throw Guasto{u"Impossibile scrivere nella cartella %1: verificare i permessi e lo spazio su disco."_s.arg(
                QDir::toNativeSeparators(cartella))};
        m_preparazione->setAutoRemove(false);
    } catch (...) {
        disfa();
        throw;
    }
}

Cantiere::~Cantiere() {
    disfa();
}

void Cantiere::creaCartelle() {
    for (QString c = m_cartella; !QFileInfo::exists(c); c = QFileInfo(c).path())
        m_aggiunte += c;
    creaCartella(m_cartella);
}

void Cantiere::disfa() {
    for (const QString &voce : m_spostate)
        rimuovi(m_cartella + u'/' + voce);
    if (m_preparazione)
        rimuovi(m_preparazione->path()); // last: its list tells what else to clear, should this be killed too
    m_guardia.reset();
    // Only empty ones: what somebody else put there meanwhile stays.
    for (const QString &c : m_aggiunte)
        QDir().rmdir(c);
}

void Cantiere::pubblica() {
    QStringList tutte = voci(preparazione());
    // The settings database makes a folder an installation: it comes last.
    tutte.removeOne(archivioZuvora.file.toString());
    tutte += archivioZuvora.file.toString();
    scriviNuovo(preparazione() + fileElenco, tutte.join(u'\n').toUtf8());
    sincronizzaTutto(preparazione());
    for (const QString &voce : tutte) {
        fermaSeInterrotto();
        if (presente(m_cartella + u'/' + voce))
            throw Guasto{u"Nella cartella %1 è comparso %2: nulla è stato modificato."_s.arg(
                QDir::toNativeSeparators(m_cartella), voce)};
        sposta(preparazione() + u'/' + voce, m_cartella + u'/' + voce);
        m_spostate += voce;
    }
    sincronizzaCartelle(m_cartella, m_aggiunte);
    m_spostate.clear();
    m_aggiunte.clear();
}

} // namespace zuvora::installa
