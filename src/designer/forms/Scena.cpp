#include "designer/forms/Scena.h"

#include <QGuiApplication>
#include <QPainter>

namespace zuvora {

Scena::Scena(const DisplayLayout &layout, ImmaginiQt &immagini, QSize misura)
    : m_layout(layout), m_immagini(immagini), m_pittore(layout, m_immagini), m_misura(misura) {
    ricorda();
    stiraTutte(qGuiApp->devicePixelRatio()); // while the form is being made
}

void Scena::mostra(QPainter &p, const QRegion &parte, qreal scala) {
    if (m_tela.isNull() || m_tela.devicePixelRatio() != scala) {
        m_tela = foglioTela(m_misura, scala, QImage::Format_RGB32);
        stiraTutte(scala);
        dipingi(QRect({}, m_misura));
    }
    for (const QRect &r : parte)
        p.drawImage(QRectF(r), m_tela, QRectF(QPointF(r.topLeft()) * scala, QSizeF(r.size()) * scala));
}

// All pictures at once, by several threads.
void Scena::stiraTutte(qreal scala) {
    m_immagini.prepara(m_layout.tela().immagine, pixelDispositivo(m_misura, scala));
    for (const LayoutElement &e : m_layout) {
        const QSize misura = rettangoloTela(e.area).size();
        if (!e.visibile || misura.isEmpty())
            continue;
        if (const auto segnaposto = segnapostoDi(e.tipo))
            m_immagini.prepara(*segnaposto, misura, scala);
        else if (e.tipo == TipoElemento::Image1 && !e.immagineMancante)
            m_immagini.prepara(m_layout.immagineMostrata(e), pixelDispositivo(misura, scala));
    }
}

QImage Scena::figura(int posto, qreal scala) {
    const QRect dove = parte(posto);
    QImage sola = foglioTela(dove.size(), scala, QImage::Format_ARGB32_Premultiplied);
    sola.fill(Qt::transparent);
    QPainter p(&sola);
    p.translate(-dove.topLeft());
    m_pittore.elemento(p, posto);
    return sola;
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
