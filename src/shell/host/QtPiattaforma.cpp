#include "shell/host/QtPiattaforma.h"

#include "shell/host/Rete.h"
#include "shell/logic/FileAtomico.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QSocketNotifier>
#include <QSysInfo>
#include <QWidget>
#include <QWindow>

#include <arpa/inet.h>
#include <cstring>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// The handle of a monitor is its place in Qt's list plus 1, since 0 means none.
class QtSistemaMonitor : public SistemaMonitor {
public:
    int GetSystemMetrics(Metrica indice) const override {
        const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
        switch (indice) {
        case Metrica::SinistraDesktop:
            return desktop.left();
        case Metrica::AltoDesktop:
            return desktop.top();
        case Metrica::LarghezzaDesktop:
            return desktop.width();
        case Metrica::AltezzaDesktop:
            return desktop.height();
        case Metrica::NumeroMonitor:
            return static_cast<int>(QGuiApplication::screens().size());
        }
        return 0;
    }
    QSize schermo() const override { return QGuiApplication::primaryScreen()->size(); }
    std::optional<std::int32_t> MonitorFromRect(const QRect &r, int) const override {
        const auto schermi = QGuiApplication::screens();
        for (qsizetype i = 0; i < schermi.size(); ++i)
            if (schermi.at(i)->geometry().intersects(r))
                return static_cast<std::int32_t>(i + 1);
        return 0;
    }
    std::int32_t MonitorFromWindow(quintptr finestra, int) const override {
        const auto finestre = QGuiApplication::topLevelWindows();
        for (const QWindow *w : finestre)
            if (w->handle() != nullptr && w->winId() == finestra)
                return static_cast<std::int32_t>(QGuiApplication::screens().indexOf(w->screen()) + 1);
        return 0;
    }
    std::optional<Info> GetMonitorInfo(std::int32_t handle) const override {
        const auto schermi = QGuiApplication::screens();
        if (handle < 1 || handle > schermi.size())
            return std::nullopt;
        const QScreen *schermo = schermi.at(handle - 1);
        return Info{schermo->geometry(), schermo->availableGeometry(), schermo->devicePixelRatio()};
    }
};

QList<Interfaccia> interfacceAttive() {
    QList<Interfaccia> attive;
    ifaddrs *elenco = nullptr;
    if (getifaddrs(&elenco) != 0)
        return attive;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> custode(elenco, freeifaddrs);
    for (const ifaddrs *i = elenco; i != nullptr; i = i->ifa_next) {
        if (i->ifa_addr == nullptr || i->ifa_addr->sa_family != AF_INET)
            continue;
        if ((i->ifa_flags & IFF_UP) == 0 || (i->ifa_flags & IFF_LOOPBACK) != 0)
            continue;
        char testo[INET_ADDRSTRLEN] = {};
        const auto *indirizzo = reinterpret_cast<const sockaddr_in *>(i->ifa_addr);
        if (inet_ntop(AF_INET, &indirizzo->sin_addr, testo, sizeof testo) == nullptr)
            continue;
        const QString nome = QString::fromLocal8Bit(i->ifa_name);
        attive << Interfaccia{nome, QString::fromLatin1(testo),
                              QFileInfo::exists(u"/sys/class/net/%1/bridge"_s.arg(nome))};
    }
    return attive;
}

} // namespace

QtPiattaforma::QtPiattaforma(QByteArray chiaveIstanza)
    : m_chiave(std::move(chiaveIstanza)), m_monitor(std::make_unique<QtSistemaMonitor>()) {}

QtPiattaforma::~QtPiattaforma() {
    if (m_guardia >= 0)
        close(m_guardia);
}

QString QtPiattaforma::cartellaEseguibile() const {
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath());
}

// A socket with a name in the abstract space of the machine: every user sees it, no file is left behind, and the system
// gives it back when the process ends, crashed or not.
bool QtPiattaforma::altraIstanza() {
    if (m_guardia >= 0)
        return false;
    const int guardia = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (guardia < 0)
        return false; // without sockets there is no guard, but the program must still start
    sockaddr_un nome{};
    nome.sun_family = AF_UNIX;
    const auto lunghezza = std::min<std::size_t>(static_cast<std::size_t>(m_chiave.size()), sizeof(nome.sun_path) - 1);
    std::memcpy(nome.sun_path + 1, m_chiave.constData(), lunghezza);
    const auto misura = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + lunghezza);
    if (bind(guardia, reinterpret_cast<const sockaddr *>(&nome), misura) != 0) {
        const bool occupato = errno == EADDRINUSE;
        if (occupato) // being called is all that the other one needs
            static_cast<void>(connect(guardia, reinterpret_cast<const sockaddr *>(&nome), misura));
        close(guardia);
        return occupato;
    }
    m_guardia = guardia;
    if (listen(guardia, 4) == 0)
        m_chiamate = std::make_unique<QSocketNotifier>(guardia, QSocketNotifier::Read);
    return false;
}

void QtPiattaforma::setAllaSecondaIstanza(std::function<void()> azione) {
    if (!m_chiamate)
        return;
    QObject::connect(m_chiamate.get(), &QSocketNotifier::activated, m_chiamate.get(), [this, azione] {
        close(accept(m_guardia, nullptr, nullptr));
        azione();
    });
}

QString QtPiattaforma::nomeMacchina() const {
    return QSysInfo::machineHostName();
}

QString QtPiattaforma::indirizzoLocale() const {
    return indirizzoProposto(interfacceAttive(), interfacciaPredefinita(leggiFile(u"/proc/net/route"_s).contenuto));
}

const SistemaMonitor &QtPiattaforma::monitor() const {
    return *m_monitor;
}

QSize QtPiattaforma::schermo() const {
    return m_monitor->schermo();
}

void QtPiattaforma::svuotaAppunti() {
    QGuiApplication::clipboard()->clear();
}

bool QtPiattaforma::apriNelBrowser(const QUrl &indirizzo) {
    return QDesktopServices::openUrl(indirizzo);
}

bool QtPiattaforma::apriFile(const QString &percorso) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(percorso));
}

} // namespace zuvora
