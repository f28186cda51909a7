#pragma once

#include "etichette/logic/Codici.h"
#include "etichette/logic/Etichetta.h"
#include "etichette/logic/Valori.h"

#include <QCache>
#include <QImage>

class QPainter;

namespace zuvora {

// The one place that draws a ticket: canvas, preview, printer, PDF and picture all go through here. Painters count
// tenths of a millimetre. Codes and pictures are made of the printer's dots, so the screen shows what the head prints.
class Pittore {
public:
    enum class Modo {
        Progetto, // every object, with its errors and the names of variables that aren't there
        Stampa    // what comes out of the printer
    };

    // Where each object comes to lie, in their order; nothing for one that isn't printed.
    static QList<std::optional<QRect>> disponi(const Etichetta &etichetta, const Valori &valori, Modo modo);
    // The paper's size with these contents.
    static QSize misuraCarta(const Etichetta &etichetta, const Valori &valori, Modo modo = Modo::Stampa);

    void disegna(QPainter &pittore, const Etichetta &etichetta, const Valori &valori, Modo modo);
    void disegnaOggetto(QPainter &pittore, const Oggetto &oggetto, const QRect &area, int dpi, const Valori &valori,
                        Modo modo);

    // What went wrong since the last call, each an Italian sentence.
    QStringList prendiAvvisi() { return std::exchange(m_avvisi, {}); }

private:
    void testo(QPainter &p, const Oggetto &o, const QSize &misura, const Valori &valori, Modo modo);
    void codice(QPainter &p, const Oggetto &o, const QRect &area, int dpi, const Valori &valori, Modo modo);
    void immagine(QPainter &p, const Oggetto &o, const QRect &area, int dpi, Modo modo);
    void guasto(QPainter &p, const QSize &misura, const QString &errore);
    QString componi(const Oggetto &o, const Valori &valori, Modo modo);
    QImage punti(const Oggetto &o, const QSize &misura);
    void avvisa(const QString &avviso);

    QCache<QByteArray, QImage> m_immagini{64 * 1024}; // KB
    QStringList m_avvisi;
};

// The dots of a picture: reduced to `misura` with its proportions and to black and white as told. Null when the bytes
// are no picture.
QImage puntiImmagine(const QByteArray &file, const QSize &misura, RiduzioneColori riduzione, int soglia);

// What will not come out as it looks: objects that overlap, stand off the paper or in its margins, a code without room
// or with contents that don't fit. Italian, one sentence each.
QStringList controlla(const Etichetta &etichetta, const Valori &valori);

} // namespace zuvora
