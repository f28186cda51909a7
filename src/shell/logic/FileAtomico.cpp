#include "shell/logic/FileAtomico.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Motivo {
    std::errc errore;
    QStringView frase;
};
constexpr std::array motivi{
    Motivo{std::errc::no_space_on_device, u"Lo spazio sul disco è esaurito."},
    Motivo{std::errc::file_too_large, u"Il file è troppo grande per questo disco."},
    Motivo{std::errc::permission_denied, u"Mancano i permessi sul file o sulla cartella."},
    Motivo{std::errc::operation_not_permitted, u"L'operazione non è permessa."},
    Motivo{std::errc::read_only_file_system, u"Il disco è in sola lettura."},
    Motivo{std::errc::no_such_file_or_directory, u"Il file o la cartella non esiste."},
    Motivo{std::errc::not_a_directory, u"Una parte del percorso non è una cartella."},
    Motivo{std::errc::is_a_directory, u"È una cartella, non un file."},
    Motivo{std::errc::file_exists, u"Esiste già."},
    Motivo{std::errc::directory_not_empty, u"Esiste già."},
    Motivo{std::errc::filename_too_long, u"Il nome è troppo lungo."},
    Motivo{std::errc::text_file_busy, u"Il file è usato da un altro programma."},
    Motivo{std::errc::device_or_resource_busy, u"Il file è usato da un altro programma."},
    Motivo{std::errc::io_error, u"Errore del disco o della rete."},
    Motivo{std::errc::host_unreachable, u"La rete non risponde."},
    Motivo{std::errc::timed_out, u"La rete non risponde."},
};

// Reason of the operation that just failed. Qt keeps a text of its own where the system said nothing.
QString motivoDi(const QFileDevice &file) {
    return errno != 0 ? motivoSistema(errno) : u"Il file non si può usare (%1)."_s.arg(file.errorString());
}

// What stands at the path and is no file to be read or replaced; empty when nothing does.
QString ostacolo(const QString &percorso) {
    if (!percorsoPossibile(percorso))
        return u"Il percorso non è valido."_s;
    const QFileInfo info(percorso);
    if (info.isDir())
        return motivoSistema(EISDIR);
    return info.exists() && !info.isFile() ? u"Non è un file di dati."_s : QString();
}

// A file under a passing name beside the one that it is to replace; gone again unless it took that one's place.
class FileNuovo {
public:
    FileNuovo() = default;
    ~FileNuovo() {
        if (m_descrittore >= 0)
            close(m_descrittore);
        if (!m_nome.isEmpty())
            unlink(m_nome.constData());
    }
    FileNuovo(const FileNuovo &) = delete;
    FileNuovo &operator=(const FileNuovo &) = delete;

    // With the permissions of the file at `modello`, where there is one. As the other operations: false, and errno.
    bool crea(const QString &cartella, const QByteArray &modello) {
        struct stat vecchio {};
        const bool esiste = stat(modello.constData(), &vecchio) == 0;
        if (esiste && access(modello.constData(), W_OK) != 0)
            return false;
        // Short, so that a name of any length can be replaced.
        QByteArray nome;
        do {
            nome = QFile::encodeName(cartella + u"/.zuvora-"_s +
                                     QString::number(QRandomGenerator::global()->generate64(), 36));
            m_descrittore = open(nome.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                                 S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH);
        } while (m_descrittore < 0 && errno == EEXIST);
        if (m_descrittore < 0)
            return false;
        m_nome = nome;
        // A file system without permissions refuses them.
        return !esiste || fchmod(m_descrittore, vecchio.st_mode & ALLPERMS) == 0 || errno == EPERM;
    }
    bool scrivi(QByteArrayView contenuto) const {
        while (!contenuto.isEmpty()) {
            const ssize_t scritti = write(m_descrittore, contenuto.data(), static_cast<size_t>(contenuto.size()));
            if (scritti < 0 && errno != EINTR)
                return false;
            contenuto = contenuto.sliced(std::max<ssize_t>(scritti, 0));
        }
        return sincronizza(m_descrittore);
    }
    bool prendiPosto(const QByteArray &file) {
        // Some disks tell only here that there was no room.
        if (close(std::exchange(m_descrittore, -1)) != 0 || rename(m_nome.constData(), file.constData()) != 0)
            return false;
        m_nome.clear();
        return true;
    }

private:
    int m_descrittore = -1;
    QByteArray m_nome;
};

} // namespace

QString motivoSistema(int numero) {
    const std::error_code codice(numero, std::generic_category());
#ifdef EDQUOT
    if (numero == EDQUOT)
        return motivoSistema(ENOSPC);
#endif
    for (const Motivo &m : motivi)
        if (codice == m.errore)
            return m.frase.toString();
    return u"Errore del sistema (%1)."_s.arg(QString::fromLocal8Bit(codice.message()));
}

bool sincronizza(int descrittore) {
    // Where a file system has no such thing there is nothing to wait for.
    return fsync(descrittore) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool sincronizzaCartella(const QString &cartella) {
    const int descrittore = open(QFile::encodeName(cartella).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descrittore < 0)
        return false;
    const bool riuscito = sincronizza(descrittore);
    close(descrittore);
    return riuscito;
}

QString scriviFile(const QString &percorso, const QByteArray &contenuto) {
    if (QString impedimento = ostacolo(percorso); !impedimento.isEmpty())
        return impedimento;
    const QString collegato = QFileInfo(percorso).symLinkTarget(); // a link goes on pointing at the file
    const QString meta = collegato.isEmpty() ? percorso : collegato;
    const QByteArray file = QFile::encodeName(meta);
    const QString cartella = QFileInfo(meta).path();
    FileNuovo nuovo;
    // The name appears only when every byte is on the disk: a power cut finds the old file or the new one.
    if (!nuovo.crea(cartella, file) || !nuovo.scrivi(contenuto) || !nuovo.prendiPosto(file))
        return motivoSistema(errno);
    sincronizzaCartella(cartella); // a folder that may not be read has its file all the same
    return {};
}

FileLetto leggiFile(const QString &percorso, qint64 massimo) {
    if (const QString impedimento = ostacolo(percorso); !impedimento.isEmpty())
        return {{}, impedimento};
    QFile file(percorso);
    errno = 0;
    if (!file.open(QIODevice::ReadOnly))
        return {{}, motivoDi(file)};
    const auto troppo = [&](qint64 byte) {
        return u"Il file è troppo grande (%1, al massimo %2)."_s.arg(misuraFile(byte), misuraFile(massimo));
    };
    if (file.size() > massimo)
        return {{}, troppo(file.size())};
    QByteArray contenuto = file.read(massimo + 1); // it may grow while it is read
    if (file.error() != QFileDevice::NoError)
        return {{}, motivoDi(file)};
    if (contenuto.size() > massimo)
        return {{}, troppo(contenuto.size())};
    return {contenuto, {}};
}

bool FileEsiste(const QString &percorso) {
    const QFileInfo info(percorsoPossibile(percorso) ? percorso : QString());
    return info.exists() && !info.isDir();
}

bool percorsoPossibile(const QString &percorso) {
    return !percorso.isEmpty() && percorso.size() < PATH_MAX && !percorso.contains(QChar::Null) &&
           QFile::encodeName(percorso).size() < PATH_MAX;
}

QString misuraFile(qint64 byte) {
    static const QLocale italiano(QLocale::Italian, QLocale::Italy);
    return italiano.formattedDataSize(byte, 1, QLocale::DataSizeTraditionalFormat);
}

} // namespace zuvora
