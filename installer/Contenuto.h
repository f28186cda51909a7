#pragma once

#include <QString>
#include <span>

// What an installation consists of: the one list for making and for checking it.
namespace zuvora::installa {

struct Tabella {
    QLatin1StringView nome;
    QLatin1StringView righe; // file of start rows, without ".csv"; the table begins empty when there is none
    int minimo;              // rows that a sound installation has
    int massimo;
    bool colonneLibere = false; // the user may have others in their place
};

struct Archivio {
    QStringView file;         // as the installation has it at first, below its folder
    QLatin1StringView schema; // file of the schema, without ".sql"
    std::span<const Tabella> tabelle;
};

inline constexpr int senzaLimite = -1;
// The pictures of the product have the IDs up to this one in Decorazioni.
inline constexpr int ultimaDecorazione = 171;

extern const Archivio archivioZuvora;
extern const Archivio archivioTotem;

// Folders of pictures and sounds, which lie beside the tool as they lie in an installation.
std::span<const QStringView> cartelleDiFile();
// Small files that are written beside the program.
std::span<const QStringView> fileDiTesto();
// What the programs look for in an installation whatever the rows say.
std::span<const QStringView> fileNecessari();
// Folder of the decorations of a Tipo (1 to 3), below the installation's; empty for any other.
QStringView cartellaDecorazioni(int tipo);

// Text and rows that come with the tool. A missing one is empty.
QByteArray schemaDi(const Archivio &archivio);
QByteArray righeDi(QLatin1StringView righe, bool esempio = false);
QByteArray testoDi(QStringView file);
// "SHA-256 name" of each picture, sound and text that the product brings, a line each.
QByteArray improntePredefinite();

} // namespace zuvora::installa
