#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace zuvora {

// What the main panel shows at start-up, with the defaults for Null already in place.
struct StatoAvvio {
    QString numero;      // version label; "n.d." for Null
    QString data;        // version date; "n.d." for Null
    int risoluzione = 0; // 1 to 4, 0 when none of them is stored
    QString nominativo;  // "Non definito" for Null
    bool autoAccensione = false;
};

// Reads the version row and the settings row. A missing row throws EngineError (3021).
StatoAvvio leggiStatoAvvio(const QString &cartella);

// Only the installation whose name is SERVER1, in any case and with nothing around it, is the principal one.
bool ePrincipale(QStringView nominativo);

// The name as stored, empty for Null.
QString leggiNominativo(const QString &cartella);
void salvaNominativo(const QString &cartella, const QString &nominativo);

// Whether the call display starts by itself: stored as 1 or 2, never 0.
void salvaAutoAccensione(const QString &cartella, bool accesa);

// `misura` is 1 to 4.
void salvaRisoluzione(const QString &cartella, int misura);

// The screen on which the designer opens.
enum class Schermo { Primo, Secondo };
Schermo leggiSchermo(const QString &cartella); // Null counts as the second
// For the second screen the designer's left edge goes 20 twips beyond the width of the whole screen.
void salvaSchermo(const QString &cartella, Schermo schermo, int larghezzaSchermoTwips);

// The server's data, as the client page edits them.
enum class TipoChiamata : int { Automatica = 1, Selettiva = 2 };
struct DatiServer {
    QString indirizzo;
    QString nome;
    QString porta; // digits
    std::optional<TipoChiamata> tipo;
};
// Port (empty for Null) and type of call (Selettiva unless 1 is stored); address and name are not read back.
DatiServer leggiDatiServer(const QString &cartella);
void salvaDatiServer(const QString &cartella, const DatiServer &server);

} // namespace zuvora
