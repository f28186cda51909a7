#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QString>

namespace zuvora {

// A ticket as the designer makes it. All lengths are tenths of a millimetre, counted from the paper's upper left
// corner.

inline constexpr double decimiPerPollice = 254;

enum class TipoOggetto { Testo, Codice, Immagine, Linea, Cornice };
enum class Simbologia { Code128, Code39, Ean13, Itf, Qr, DataMatrix };
// How a picture becomes black and white, as a thermal head prints it.
enum class RiduzioneColori { Colori, Soglia, Retino };
enum class Lato { Inizio, Centro, Fine };

struct StileTesto {
    QString famiglia = QStringLiteral("Liberation Sans");
    double punti = 12; // 1 to 999
    bool grassetto = false;
    bool corsivo = false;
    bool sottolineato = false;
    Lato orizzontale = Lato::Inizio;
    Lato verticale = Lato::Inizio;
    bool aCapo = true;
    bool riduci = false; // smaller letters rather than a cut text
    bool cresce = false; // on paper of growing length the box follows its text, and what is below moves down

    bool operator==(const StileTesto &) const = default;
};

// Printed only when the variable has a content, or only when it has none. Without a name, always.
struct Condizione {
    QString variabile;
    bool seVuota = false;

    bool operator==(const Condizione &) const = default;
};

struct Oggetto {
    TipoOggetto tipo = TipoOggetto::Testo;
    QRect area;
    int rotazione = 0; // 0, 90, 180, 270 degrees, clockwise
    bool bloccato = false;
    Condizione condizione;

    QString testo; // of a text and of a code, with variables in braces
    StileTesto stile;
    Simbologia simbologia = Simbologia::Code128;
    bool leggibile = true; // the code's contents stand below it
    QByteArray immagine;   // the picture's file, carried inside the ticket
    RiduzioneColori riduzione = RiduzioneColori::Retino;
    int soglia = 128; // 0 to 255: darker is black
    int spessore = 4; // of a line or frame
    int raggio = 0;   // of a frame's corners
    bool pieno = false;

    QJsonObject ignoti; // members of the file that this version doesn't know

    bool operator==(const Oggetto &) const = default;
};

struct Carta {
    int larghezza = 800;
    int altezza = 1200;
    bool cresce = false; // a roll that is cut below the last thing printed; `altezza` is then the least length
    QMargins margini{30, 30, 30, 30};
    int dpi = 203; // dots to the inch of the printer's head: codes and pictures are made of its dots

    bool operator==(const Carta &) const = default;
};

struct Stampa {
    int copie = 1;
    bool taglia = false;
    int scurezza = 0; // 0: as the printer is set; 1 to 5 from light to dark

    bool operator==(const Stampa &) const = default;
};

struct Etichetta {
    Carta carta;
    Stampa stampa;
    QMap<QString, QPoint> scostamenti; // by printer name: how far its print is moved
    QList<Oggetto> oggetti;            // from back to front
    QJsonObject ignoti;

    bool operator==(const Etichetta &) const = default;
};

// The paper's sizes that have a name.
struct Formato {
    QString nome;
    Carta carta;
};
QList<Formato> formatiCarta();

// A new object of a kind, with contents that show, at `posto`.
Oggetto nuovoOggetto(TipoOggetto tipo, const QPoint &posto);

// Room for the drawing inside the margins.
QRect areaStampabile(const Carta &carta);

// A ticket to start from.
struct ModelloPronto {
    QString nome;
    Etichetta etichetta;
};
QList<ModelloPronto> modelliPronti();

} // namespace zuvora
