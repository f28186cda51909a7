#include "designer/forms/Scena.h"

#include <QGuiApplication>
#include <QPainter>

namespace zuvora {
namespace {

constexpr double puntiPerMetro = puntiPerPollice / 0.0254;

} // namespace

Scena::Scena(const DisplayLayout &layout, ImmaginiQt &immagini, QSize misura)
    : m_layout(layout), m_immagini(immagini), m_pittore(layout, m_immagini), m_misura(misura) {
    ricorda();
    stiraTutte(qGuiApp->devicePixelRatio()); // while the form is being made
}

// Points of a font become pixels by the device's resolution.
QImage Scena::foglio(QSize misura, qreal scala, QImage::Format formato) const {
    QImage vuoto((QSizeF(misura) * scala).toSize(), formato);
    vuoto.setDevicePixelRatio(scala);
    vuoto.setDotsPerMeterX(qRound(puntiPerMetro));
    vuoto.setDotsPerMeterY(qRound(puntiPerMetro));
    return vuoto;
}

void Scena::mostra(QPainter &p, const QRegion &parte, qreal scala) {
    if (m_tela.isNull() || m_tela.devicePixelRatio() != scala) {
        m_tela = foglio(m_misura, scala, QImage::Format_RGB32);
        stiraTutte(scala);
        dipingi(QRect({}, m_misura));
    }
    for (const QRect &r : parte)
        p.drawImage(QRectF(r), m_tela, QRectF(QPointF(r.topLeft()) * scala, QSizeF(r.size()) * scala));
}

// All pictures at once, by several threads.
void Scena::stiraTutte(qreal scala) {
    m_immagini.prepara(m_layout.tela().immagine, pixelDispositivo(m_misura, scala));
    for (const LayoutElement &e : m_layout)
        if (e.tipo == TipoElemento::Image1 && e.visibile && !e.immagineMancante)
            m_immagini.prepara(m_layout.immagineMostrata(e), pixelDispositivo(rettangoloTela(e.area).size(), scala));
}

QImage Scena::figura(int posto, qreal scala) {
    const QRect dove = parte(posto);
    QImage sola = foglio(dove.size(), scala, QImage::Format_ARGB32_Premultiplied);
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
