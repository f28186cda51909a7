#include "shell/logic/FileAtomico.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

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
    QSaveFile file(percorso);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly))
        return motivoDi(file);
    // A commit may call a full disk a success: nothing is committed before all of it is on the disk.
    const bool scritto = file.write(contenuto) == contenuto.size() && file.flush() &&
                         file.error() == QFileDevice::NoError && sincronizza(file.handle());
    if (!scritto) {
        QString motivo = motivoDi(file);
        file.cancelWriting();
        return motivo;
    }
    errno = 0;
    if (!file.commit())
        return motivoDi(file);
    sincronizzaCartella(QFileInfo(percorso).path()); // a folder that may not be read has its file all the same
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
