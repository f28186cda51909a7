#include "designer/forms/PittoreElementi.h"

#include "designer/forms/ImmaginiTela.h"
#include "shell/disegni/Disegni.h"
#include "shell/disegni/Tavolozza.h"
#include "shell/host/ColorPicker.h"
#include "shell/host/Grassetto.h"
#include "shell/host/Twips.h"

#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr double puntiMinimi = 1;
constexpr double puntiMassimi = 2160;

constexpr int testoMassimo = 4000; // characters of one element that are painted

// The beginning of a text, with more of it than its place can show: letters outside cost as much as those inside.
QString visibile(const QString &testo, const QRect &r, const QFontMetricsF &lettere) {
    const double perRiga = r.width() / (lettere.height() / 10) + 1;
    const double righe = r.height() / lettere.height() + 1;
    return testo.left(static_cast<qsizetype>(std::min<double>(perRiga * righe, testoMassimo)));
}

Qt::Alignment allineamentoQt(Allineamento a) {
    switch (a) {
    case Allineamento::Destra:
        return Qt::AlignRight;
    case Allineamento::Centro:
        return Qt::AlignHCenter;
    case Allineamento::Sinistra:
        break;
    }
    return Qt::AlignLeft;
}

void etichetta(QPainter &p, const LayoutElement &e, const QRect &r, bool trasparente) {
    if (r.isEmpty())
        return;
    if (!trasparente)
        p.fillRect(r, coloreDa(e.coloreSfondo));
    if (e.didascalia.isEmpty())
        return;
    p.save();
    p.setClipRect(r, Qt::IntersectClip);
    p.setFont(fontTela(e.font));
    p.setPen(coloreDa(e.coloreTesto));
    const QString testo = visibile(e.didascalia, r, QFontMetricsF(p.font(), p.device()));
    const bool aCapo = e.tipo != TipoElemento::Text2; // the ticker runs in one line, the labels wrap in their place
    const Qt::Alignment allineamento = allineamentoQt(e.allineamento);
    scriviTesto(p, r,
                int(allineamento | Qt::AlignTop) | (aCapo ? Qt::TextWordWrap : Qt::TextSingleLine) | Qt::TextExpandTabs,
                testo);
    p.restore();
}

// The edge of a box that stands out of the canvas.
void rilievo(QPainter &p, const QRect &r, const QColor &colore) {
    constexpr int bordo = 2;
    p.fillRect(r, colore);
    if (r.width() <= 2 * bordo || r.height() <= 2 * bordo)
        return;
    const QColor luce(255, 255, 255, 140);
    const QColor ombra(0, 0, 0, 90);
    p.fillRect(QRect(r.left(), r.top(), r.width(), bordo), luce);
    p.fillRect(QRect(r.left(), r.top() + bordo, bordo, r.height() - bordo), luce);
    p.fillRect(QRect(r.left(), r.bottom() - bordo + 1, r.width(), bordo), ombra);
    p.fillRect(QRect(r.right() - bordo + 1, r.top(), bordo, r.height() - bordo), ombra);
}

// In place of a picture: what is to be seen there. Readable on any ground.
void sagoma(QPainter &p, const QRect &r, std::optional<Disegno> segno, const QString &testo) {
    if (r.width() < 4 || r.height() < 4)
        return;
    p.save();
    p.setClipRect(r, Qt::IntersectClip);
    if (segno)
        p.fillRect(r, QColor(255, 255, 255, 190));
    riquadra(p, r, tavolozza::bianco);
    riquadra(p, r, segno ? tavolozza::pericolo : tavolozza::testoTenue, Qt::DashLine);
    const int lato = segno ? std::clamp(std::min(r.width(), r.height()) / 3, 0, 48) : 0;
    QFont font(u"Tahoma"_s);
    font.setPixelSize(13);
    font.setStyleHint(QFont::SansSerif);
    p.setFont(font);
    const int riga = p.fontMetrics().height();
    const int alto = r.center().y() - (lato + riga) / 2;
    if (segno)
        dipingi(p, *segno, QRectF(r.center().x() - lato / 2.0, alto, lato, lato));
    const QString breve = p.fontMetrics().elidedText(testo, Qt::ElideMiddle, r.width() - 6);
    p.setPen(tavolozza::testo);
    if (segno)
        p.drawText(QRect(r.left(), alto + lato, r.width(), riga), Qt::AlignCenter | Qt::TextSingleLine, breve);
    p.restore();
}

// The name at the end of a path, whichever platform wrote it.
QString nomeFile(const QString &percorso) {
    constexpr qsizetype nomeMassimo = 255;
    return percorso.mid(percorso.lastIndexOf(QRegularExpression(u"[/\\\\]"_s)) + 1).left(nomeMassimo);
}

} // namespace

std::optional<Segnaposto> segnapostoDi(TipoElemento tipo) {
    switch (tipo) {
    case TipoElemento::IM1:
        return Segnaposto::IM1;
    case TipoElemento::MP1:
        return Segnaposto::MP1;
    case TipoElemento::WB1:
        return Segnaposto::WB1;
    case TipoElemento::WB2:
        return Segnaposto::WB2;
    case TipoElemento::LeNews:
        return Segnaposto::LeNews;
    case TipoElemento::YT:
        return Segnaposto::YT;
    default:
        return std::nullopt;
    }
}

QRect rettangoloTela(const Area &a) {
    const int x = pixelVicino(a.left);
    const int y = pixelVicino(a.top);
    return {x, y, std::max(0, pixelVicino(a.left + a.width) - x), std::max(0, pixelVicino(a.top + a.height) - y)};
}

QSize pixelDispositivo(QSize misura, qreal scala) {
    return {qRound(misura.width() * scala), qRound(misura.height() * scala)};
}

// Points of a font become pixels by the device's resolution.
QImage foglioTela(QSize misura, qreal scala, QImage::Format formato) {
    constexpr double puntiPerMetro = puntiPerPollice / 0.0254;
    QImage vuoto((QSizeF(misura) * scala).toSize(), formato);
    vuoto.setDevicePixelRatio(scala);
    vuoto.setDotsPerMeterX(qRound(puntiPerMetro));
    vuoto.setDotsPerMeterY(qRound(puntiPerMetro));
    return vuoto;
}

// The pen stands astride its line: half a pixel inside, it covers the edge at every scale.
void riquadra(QPainter &p, const QRect &r, const QColor &colore, Qt::PenStyle tratto) {
    p.save();
    p.setPen(QPen(colore, 1, tratto, Qt::SquareCap, Qt::MiterJoin));
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5));
    p.restore();
}

QFont fontTela(const Carattere &c) {
    QFont font(c.nome);
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(std::clamp(c.dimensione, puntiMinimi, puntiMassimi));
    font.setBold(c.grassetto);
    font.setItalic(c.corsivo);
    return font;
}

void PittoreElementi::fondo(QPainter &p, const QRect &tela) const {
    const LayoutElement &e = m_layout.tela();
    p.fillRect(tela, coloreDa(e.coloreSfondo));
    stendi(p, e.immagine, tela);
}

void PittoreElementi::elemento(QPainter &p, int posto) const {
    const LayoutElement &e = m_layout[posto];
    const QRect r = rettangoloTela(e.area);
    if (!e.visibile || r.isEmpty())
        return;
    switch (e.tipo) {
    case TipoElemento::Pannello1:
        return pannello(p, e, r);
    case TipoElemento::Image1:
        return decorazione(p, e, r);
    case TipoElemento::Text2:
        return etichetta(p, e, r, false);
    case TipoElemento::Text9:
        return etichetta(p, e, r, e.trasparente);
    default:
        if (const auto quale = segnapostoDi(e.tipo))
            segnaposto(p, *quale, r);
    }
}

void PittoreElementi::pannello(QPainter &p, const LayoutElement &e, const QRect &r) const {
    rilievo(p, r, coloreDa(e.coloreSfondo));
    p.save();
    p.setClipRect(r, Qt::IntersectClip);
    const int primo = DisplayLayout::postoDi(TipoElemento::Text1, 3 * e.indice);
    for (int posto = primo; posto < primo + 3; ++posto)
        if (const LayoutElement &testo = m_layout[posto]; testo.visibile)
            etichetta(p, testo, rettangoloTela(m_layout.areaSullaTela(posto)), testo.trasparente);
    p.restore();
}

void PittoreElementi::decorazione(QPainter &p, const LayoutElement &e, const QRect &r) const {
    const QString &percorso = m_layout.immagineMostrata(e);
    if (percorso.isEmpty()) {
        sagoma(p, r, std::nullopt, {}); // without a picture the display shows nothing: only the place is marked
        return;
    }
    if (e.immagineMancante || !stendi(p, percorso, r))
        sagoma(p, r, Disegno::FileImmagine, nomeFile(percorso));
}

// At a fractional scale a place needn't begin on a whole pixel of the device: no copy fits there.
void PittoreElementi::segnaposto(QPainter &p, Segnaposto quale, const QRect &r) const {
    const qreal scala = p.device()->devicePixelRatioF();
    if (siCopia(r.size(), scala) && scala == std::floor(scala))
        p.drawImage(r.topLeft(), m_immagini.segnaposto(quale, r.size(), scala));
    else
        dipingiSegnaposto(p, quale, r);
}

bool PittoreElementi::stendi(QPainter &p, const QString &percorso, const QRect &r) const {
    const qreal scala = p.device()->devicePixelRatioF();
    if (!siCopia(r.size(), scala)) {
        const QImage immagine = m_immagini.intera(percorso);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(r, immagine);
        return !immagine.isNull();
    }
    const QImage immagine = m_immagini.stirata(percorso, pixelDispositivo(r.size(), scala));
    p.drawImage(r, immagine);
    return !immagine.isNull();
}

} // namespace zuvora
