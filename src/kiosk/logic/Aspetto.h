#pragma once

#include <QString>
#include <QStringList>

class QDate;

namespace zuvora {

// The font and colour of one kind of text on the kiosk's screen.
struct StileTotem {
    QString font;
    int misura = 10;        // points
    int colore = 0;         // 0x00BBGGRR
    bool coloreDato = true; // false when the row has an empty text: the text keeps its own colour
    bool grassetto = false;
    bool italico = false;
};

// What the stored row says of the kiosk's screen.
struct AspettoTotem {
    QString sfondo; // as stored
    QString titolo;
    StileTotem stileTitolo;
    StileTotem stileData;
    StileTotem stilePulsanti;
    QStringList rifiutati; // boxes whose text is no number that serves: the value above is the usual one
};

// Throws EngineError.
AspettoTotem leggiAspetto(const QString &cartella);

// Weekday and month in words, as "lunedì 05 marzo 2018".
QString dataInParole(const QDate &data);

} // namespace zuvora
