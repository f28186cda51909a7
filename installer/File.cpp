#include "installer/File.h"

#include "installer/Guasto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
std::filesystem::path percorso(const QString &file) {
    return QFileInfo(file).filesystemFilePath();
}

struct Motivo {
    std::errc errore;
    const char *frase;
};
constexpr std::array motivi{
    Motivo{std::errc::no_space_on_device, "spazio su disco esaurito"},
    Motivo{std::errc::file_too_large, "file troppo grande per questo disco"},
    Motivo{std::errc::permission_denied, "permesso negato"},
    Motivo{std::errc::operation_not_permitted, "operazione non permessa"},
    Motivo{std::errc::read_only_file_system, "disco in sola lettura"},
    Motivo{std::errc::no_such_file_or_directory, "file o cartella inesistente"},
    Motivo{std::errc::not_a_directory, "una parte del percorso non è una cartella"},
    Motivo{std::errc::file_exists, "esiste già"},
    Motivo{std::errc::directory_not_empty, "esiste già"},
    Motivo{std::errc::filename_too_long, "nome troppo lungo"},
    Motivo{std::errc::io_error, "errore del disco"},
};

QString motivo(const std::error_code &errore) {
    for (const Motivo &m : motivi)
        if (errore == m.errore)
            return QString::fromUtf8(m.frase);
    return QString::fromLocal8Bit(errore.message());
}

void verifica(const std::error_code &errore, const QString &azione, const QString &file) {
    if (errore)
        throw Guasto{u"Impossibile %1 %2: %3."_s.arg(azione, QDir::toNativeSeparators(file), motivo(errore))};
}
} // namespace

void creaCartella(const QString &cartella) {
    std::error_code errore;
    std::filesystem::create_directories(percorso(cartella), errore);
    verifica(errore, u"creare la cartella"_s, cartella);
}

void scriviFile(const QString &nome, const QByteArray &contenuto) {
    const auto dimensione = static_cast<std::size_t>(contenuto.size());
    std::FILE *file = std::fopen(QFile::encodeName(nome).constData(), "wbx");
    bool scritto = file && std::fwrite(contenuto.constData(), 1, dimensione, file) == dimensione;
    int errore = errno;
    // What was buffered may fail only now.
    if (file && std::fclose(file) != 0 && scritto) {
        scritto = false;
        errore = errno;
    }
    if (!scritto)
        verifica({errore, std::generic_category()}, u"scrivere"_s, nome);
}

void copia(const QString &da, const QString &a) {
    std::error_code errore;
    std::filesystem::copy(percorso(da), percorso(a), std::filesystem::copy_options::recursive, errore);
    verifica(errore, u"copiare"_s, da);
}

void sposta(const QString &da, const QString &a) {
    std::error_code errore;
    std::filesystem::rename(percorso(da), percorso(a), errore);
    verifica(errore, u"creare"_s, a);
}

} // namespace zuvora::installa
