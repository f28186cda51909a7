#include "designer/forms/Scena.h"

#include <QPainter>

namespace zuvora {
namespace {

constexpr double PuntiPerMetro = PuntiPerPollice / 0.0254;

} // namespace

Scena::Scena(const DisplayLayout &layout, ImmaginiQt &immagini, QSize misura)
    : m_layout(layout), m_immagini(immagini), m_pittore(layout, m_immagini), m_misura(misura) {
    ricorda();
}

void Scena::mostra(QPainter &p, const QRegion &parte, qreal scala) {
    if (m_tela.isNull() || m_tela.devicePixelRatio() != scala) {
        m_tela = QImage((QSizeF(m_misura) * scala).toSize(), QImage::Format_RGB32);
        m_tela.setDevicePixelRatio(scala);
        // Points of a font become pixels by the device's resolution.
        m_tela.setDotsPerMeterX(qRound(PuntiPerMetro));
        m_tela.setDotsPerMeterY(qRound(PuntiPerMetro));
        dipingi(QRect({}, m_misura));
    }
    for (const QRect &r : parte)
        p.drawImage(QRectF(r), m_tela, QRectF(QPointF(r.topLeft()) * scala, QSizeF(r.size()) * scala));
}

QRegion Scena::aggiorna(int numero) {
    const QRect ora = posto(numero);
    QRegion parte = QRegion(std::exchange(m_posti[static_cast<std::size_t>(numero)], ora)).united(ora);
    dipingi(parte);
    return parte;
}

QRegion Scena::aggiornaTutto() {
    ricorda();
    const QRect tutto({}, m_misura);
    dipingi(tutto);
    return tutto;
}

void Scena::dipingi(const QRegion &parte) {
    const QRect tutto({}, m_misura);
    const QRegion visibile = parte.intersected(tutto);
    if (m_tela.isNull() || visibile.isEmpty())
        return;
    QPainter p(&m_tela);
    p.setClipRegion(visibile);
    m_pittore.fondo(p, tutto);
    for (const int numero : m_layout.ordine())
        if (visibile.intersects(posto(numero)))
            m_pittore.elemento(p, numero);
}

// What an element covers on the canvas; a label's place counts as its panel's.
QRect Scena::posto(int numero) const {
    const LayoutElement &e = m_layout[numero];
    if (e.tipo == TipoElemento::Text1)
        return posto(DisplayLayout::postoDi(TipoElemento::Pannello1, e.indice / 3));
    return e.visibile && staSullaTela(e.tipo) ? rettangoloTela(e.area) : QRect();
}

void Scena::ricorda() {
    for (int numero = 0; numero < righeLayout; ++numero)
        m_posti[static_cast<std::size_t>(numero)] = posto(numero);
}

} // namespace zuvora
