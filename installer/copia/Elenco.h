#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

// A saved installation: an archive of its files, the last of which lists them.
namespace zuvora::installa {

struct VoceCopia {
    QString nome; // relative, with slashes
    qint64 byte = 0;
    QByteArray impronta; // SHA-256, hexadecimal
    friend bool operator==(const VoceCopia &, const VoceCopia &) = default;
};

struct Elenco {
    QString versione; // label of the data
    QString cartella; // where the installation lay
    QString totem;    // where its kiosk's folder lay; empty when that was not saved
    QString macchina;
    QString quando; // ISO date and time
    QList<VoceCopia> voci;
};

inline constexpr auto nomeElenco = QLatin1StringView(".zuvora-elenco");
inline constexpr auto cartellaTotemCopia = QLatin1StringView("Totem"); // of the kiosk's files in a copy

QByteArray scriviElenco(const Elenco &elenco);
// Throws Guasto for one that is damaged or of a later program.
Elenco leggiElenco(const QByteArray &testo);

// A name that stays inside the folder into which it is put.
bool nomeAmmesso(const QString &nome);

} // namespace zuvora::installa
