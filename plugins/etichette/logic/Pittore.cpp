#include "etichette/logic/Pittore.h"

#include "etichette/logic/Testi.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImageReader>
#include <QPainter>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int altezzaScritta = 35; // of the contents below bars
const QColor coloreGuasto(0xb0, 0x20, 0x20);

int inPunti(int decimi, int dpi) {
    return static_cast<int>(std::lround(decimi * dpi / decimiPerPollice));
}

// Edges go to the nearest dots, so that an object keeps its dots whole wherever it stands.
QRect inPunti(const QRect &area, int dpi) {
    const QPoint angolo(inPunti(area.x(), dpi), inPunti(area.y(), dpi));
    const QPoint fine(inPunti(area.x() + area.width(), dpi), inPunti(area.y() + area.height(), dpi));
    return {angolo, QSize(fine.x() - angolo.x(), fine.y() - angolo.y())};
}

// A ticket's file can declare any size: neither its pictures nor their places may take all the memory.
bool troppiPunti(const QSize &misura) {
    return qint64{misura.width()} * misura.height() > 64'000'000;
}

bool diTraverso(int rotazione) {
    return rotazione == 90 || rotazione == 270;
}

// Puts the painter's origin into the corner of the rotated content; gives the content's size.
template <class Rect> QSize gira(QPainter &p, const Rect &area, int rotazione) {
    p.translate(area.topLeft());
    if (rotazione == 90)
        p.translate(area.width(), 0);
    else if (rotazione == 180)
        p.translate(area.width(), area.height());
    else if (rotazione == 270)
        p.translate(0, area.height());
    p.rotate(rotazione);
    return diTraverso(rotazione) ? area.size().transposed() : area.size();
}

bool daStampare(const Condizione &condizione, const Valori &valori) {
    if (condizione.variabile.isEmpty())
        return true;
    const Variabile *v = valori.trova(condizione.variabile);
    return (v == nullptr || v->testo.isEmpty()) == condizione.seVuota;
}

QString testoStampato(const Oggetto &o, const Valori &valori, Pittore::Modo modo) {
    QStringList mancanti;
    return valori.componi(o.testo, modo == Pittore::Modo::Stampa ? &mancanti : nullptr);
}

} // namespace

QList<std::optional<QRect>> Pittore::disponi(const Etichetta &e, const Valori &valori, Modo modo) {
    QList<std::optional<QRect>> posti;
    for (const Oggetto &o : e.oggetti)
        posti << (modo == Modo::Progetto || daStampare(o.condizione, valori) ? std::optional(o.area) : std::nullopt);
    if (!e.carta.cresce || modo == Modo::Progetto)
        return posti;
    for (qsizetype i = 0; i < posti.size(); ++i) {
        const Oggetto &o = e.oggetti[i];
        if (!posti[i] || o.tipo != TipoOggetto::Testo || !o.stile.cresce || diTraverso(o.rotazione))
            continue;
        const int di = altezzaTesto(testoStampato(o, valori, modo), o.stile, o.area.width()) - o.area.height();
        if (di <= 0)
            continue;
        posti[i]->setHeight(posti[i]->height() + di);
        for (qsizetype j = 0; j < posti.size(); ++j)
            if (posti[j] && j != i && e.oggetti[j].area.y() >= o.area.y() + o.area.height())
                posti[j]->translate(0, di);
    }
    return posti;
}

QSize Pittore::misuraCarta(const Etichetta &e, const Valori &valori, Modo modo) {
    int altezza = e.carta.altezza;
    if (e.carta.cresce)
        for (const auto &posto : disponi(e, valori, modo))
            if (posto)
                altezza = std::max(altezza, posto->y() + posto->height() + e.carta.margini.bottom());
    return {e.carta.larghezza, std::min(altezza, 100000)};
}

void Pittore::disegna(QPainter &pittore, const Etichetta &e, const Valori &valori, Modo modo) {
    const auto posti = disponi(e, valori, modo);
    for (qsizetype i = 0; i < posti.size(); ++i)
        if (posti[i])
            disegnaOggetto(pittore, e.oggetti[i], *posti[i], e.carta.dpi, valori, modo);
}

void Pittore::disegnaOggetto(QPainter &p, const Oggetto &o, const QRect &area, int dpi, const Valori &valori,
                             Modo modo) {
    p.save();
    p.setPen(Qt::black);
    switch (o.tipo) {
    case TipoOggetto::Testo:
        testo(p, o, gira(p, area, o.rotazione), valori, modo);
        break;
    case TipoOggetto::Codice:
        codice(p, o, area, dpi, valori, modo);
        break;
    case TipoOggetto::Immagine:
        immagine(p, o, area, dpi, modo);
        break;
    case TipoOggetto::Linea: {
        QPen penna(Qt::black, o.spessore);
        penna.setCapStyle(Qt::FlatCap);
        p.setPen(penna);
        p.drawLine(area.topLeft(), area.topLeft() + QPoint(area.width(), area.height()));
        break;
    }
    case TipoOggetto::Cornice: {
        const double meta = o.spessore / 2.0;
        p.setPen(QPen(Qt::black, o.spessore, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        p.setBrush(o.pieno ? QBrush(Qt::black) : QBrush(Qt::NoBrush));
        const QRectF dentro = QRectF(area).adjusted(meta, meta, -meta, -meta);
        if (dentro.isValid())
            p.drawRoundedRect(dentro, o.raggio, o.raggio);
        break;
    }
    }
    p.restore();
}

QString Pittore::componi(const Oggetto &o, const Valori &valori, Modo modo) {
    QStringList mancanti;
    QString composto = valori.componi(o.testo, modo == Modo::Stampa ? &mancanti : nullptr);
    for (const QString &nome : mancanti)
        avvisa(u"La variabile «%1» non esiste più: al suo posto non è stampato nulla."_s.arg(nome));
    return composto;
}

void Pittore::testo(QPainter &p, const Oggetto &o, const QSize &misura, const Valori &valori, Modo modo) {
    if (!disegnaTesto(p, componi(o, valori, modo), o.stile, misura))
        avvisa(u"Il testo «%1» non sta tutto nel suo riquadro."_s.arg(o.testo.left(40)));
}

void Pittore::codice(QPainter &p, const Oggetto &o, const QRect &area, int dpi, const Valori &valori, Modo modo) {
    const QString contenuto = componi(o, valori, modo);
    Codice c = codifica(o.simbologia, contenuto);
    const QRect tutto = inPunti(area, dpi);
    const QSize misura = diTraverso(o.rotazione) ? tutto.size().transposed() : tutto.size();
    const bool scritta = o.leggibile && !c.bidimensionale();
    const int sotto = scritta ? inPunti(altezzaScritta, dpi) : 0;
    const int larghi = c.colonne + 2 * c.margine;
    int modulo = larghi > 0 ? misura.width() / larghi : 0;
    if (c.bidimensionale())
        modulo = std::min(modulo, misura.height() / (c.righe + 2 * c.margine));
    if (c.errore.isEmpty() && (modulo < 1 || misura.height() - sotto < 1))
        c.errore = u"Il codice non sta nel suo riquadro: allargarlo."_s;
    if (!c.errore.isEmpty()) {
        avvisa(c.errore);
        const QSize dentro = gira(p, area, o.rotazione);
        if (modo == Modo::Progetto)
            guasto(p, dentro, c.errore);
        else // who holds the ticket can still read what it says
            disegnaTesto(p, contenuto, {.punti = 10, .orizzontale = Lato::Centro, .riduci = true}, dentro);
        return;
    }
    p.scale(decimiPerPollice / dpi, decimiPerPollice / dpi);
    gira(p, tutto, o.rotazione);
    p.setRenderHint(QPainter::Antialiasing, false);
    const int alto = c.bidimensionale() ? modulo : misura.height() - sotto;
    const QPoint primo((misura.width() - c.colonne * modulo) / 2,
                       c.bidimensionale() ? (misura.height() - c.righe * modulo) / 2 : 0);
    for (int r = 0; r < c.righe; ++r)
        for (int da = 0, a = 0; da < c.colonne; da = a) { // runs of dark modules: no seams between them
            for (a = da + 1; a < c.colonne && c.scuro(a, r) == c.scuro(da, r);)
                ++a;
            if (c.scuro(da, r))
                p.fillRect(QRect(primo.x() + da * modulo, primo.y() + r * alto, (a - da) * modulo, alto), Qt::black);
        }
    if (scritta) {
        p.translate(0, misura.height() - sotto);
        p.scale(dpi / decimiPerPollice, dpi / decimiPerPollice);
        const int larghezza = diTraverso(o.rotazione) ? area.height() : area.width();
        disegnaTesto(p, contenuto,
                     {.punti = 9, .orizzontale = Lato::Centro, .verticale = Lato::Fine, .aCapo = false, .riduci = true},
                     QSize(larghezza, altezzaScritta));
    }
}

void Pittore::immagine(QPainter &p, const Oggetto &o, const QRect &area, int dpi, Modo modo) {
    const QRect tutto = inPunti(area, dpi);
    const QSize misura = diTraverso(o.rotazione) ? tutto.size().transposed() : tutto.size();
    const QImage dots = misura.isEmpty() ? QImage() : punti(o, misura);
    if (dots.isNull()) {
        const QString errore = o.immagine.isEmpty() ? u"Nessuna immagine scelta."_s : u"L'immagine non è leggibile."_s;
        avvisa(errore);
        if (modo == Modo::Progetto)
            guasto(p, gira(p, area, o.rotazione), errore);
        return;
    }
    p.scale(decimiPerPollice / dpi, decimiPerPollice / dpi);
    gira(p, tutto, o.rotazione);
    p.setRenderHint(QPainter::SmoothPixmapTransform, o.riduzione == RiduzioneColori::Colori);
    p.drawImage(QPoint((misura.width() - dots.width()) / 2, (misura.height() - dots.height()) / 2), dots);
}

void Pittore::guasto(QPainter &p, const QSize &misura, const QString &errore) {
    p.setPen(QPen(coloreGuasto, 2, Qt::DashLine));
    p.drawRect(QRect(QPoint(0, 0), misura));
    p.setPen(coloreGuasto);
    disegnaTesto(p, errore, {.punti = 9, .orizzontale = Lato::Centro, .verticale = Lato::Centro, .riduci = true},
                 misura);
}

QImage Pittore::punti(const Oggetto &o, const QSize &misura) {
    QCryptographicHash somma(QCryptographicHash::Sha1);
    somma.addData(o.immagine);
    const QByteArray chiave = somma.result() + QByteArray::number(misura.width()) + 'x' +
                              QByteArray::number(misura.height()) + ':' + QByteArray::number(int(o.riduzione)) + ':' +
                              QByteArray::number(o.soglia);
    if (const QImage *pronta = m_immagini.object(chiave))
        return *pronta;
    QImage dots = puntiImmagine(o.immagine, misura, o.riduzione, o.soglia);
    m_immagini.insert(chiave, new QImage(dots), 1 + dots.sizeInBytes() / 1024);
    return dots;
}

void Pittore::avvisa(const QString &avviso) {
    if (!m_avvisi.contains(avviso))
        m_avvisi << avviso;
}

QImage puntiImmagine(const QByteArray &file, const QSize &misura, RiduzioneColori riduzione, int soglia) {
    QBuffer buffer;
    buffer.setData(file);
    QImageReader lettore(&buffer);
    lettore.setAutoTransform(true);
    if (const QSize intera = lettore.size();
        troppiPunti(misura) || misura.isEmpty() || (intera.isValid() && troppiPunti(intera)))
        return {};
    const QImage intera = lettore.read();
    if (intera.isNull())
        return {};
    const QImage ridotta = intera.scaled(misura, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QImage suBianco(ridotta.size(), QImage::Format_RGB32);
    suBianco.fill(Qt::white);
    QPainter(&suBianco).drawImage(0, 0, ridotta);
    if (riduzione == RiduzioneColori::Colori)
        return suBianco;
    QImage grigia = suBianco.convertToFormat(QImage::Format_Grayscale8);
    if (riduzione == RiduzioneColori::Retino)
        return grigia.convertToFormat(QImage::Format_Mono, Qt::DiffuseDither);
    for (int y = 0; y < grigia.height(); ++y) {
        uchar *riga = grigia.scanLine(y);
        for (int x = 0; x < grigia.width(); ++x)
            riga[x] = riga[x] < soglia ? 0 : 255;
    }
    return grigia;
}

} // namespace zuvora
