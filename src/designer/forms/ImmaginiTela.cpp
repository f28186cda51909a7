#include "designer/forms/ImmaginiTela.h"

#include "designer/forms/PittoreElementi.h"

#include <QPainter>

namespace zuvora {
namespace {

constexpr qsizetype memoria = 192 * 1024;   // KiB
constexpr qint64 copiaMassima = 16'000'000; // pixels

// Called by helper threads too.
QImage disegna(Segnaposto quale, QSize misura, qreal scala) {
    QImage foglio = foglioTela(misura, scala, QImage::Format_RGB32);
    QPainter p(&foglio);
    dipingiSegnaposto(p, quale, QRect({}, misura));
    return foglio;
}

} // namespace

bool siCopia(QSize misura, qreal scala) {
    const QSize pixel = pixelDispositivo(misura, scala);
    return qint64(pixel.width()) * pixel.height() <= copiaMassima;
}

ImmaginiTela::ImmaginiTela(ImmaginiQt &sorgente) : m_sorgente(sorgente), m_stirate(memoria) {}

// Called by helper threads too.
QImage ImmaginiTela::stira(QImage intera, QSize pixel) {
    if (intera.isNull())
        return intera;
    if (intera.size() != pixel)
        intera = intera.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    intera.convertTo(intera.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return intera;
}

void ImmaginiTela::prepara(const QString &percorso, QSize pixel) {
    const Chiave chiave{percorso, pixel};
    if (percorso.isEmpty() || pixel.isEmpty() || !siCopia(pixel, 1) || m_attese.contains(chiave) ||
        m_stirate.contains(chiave))
        return;
    if (const QImage immagine = m_sorgente.immagine(percorso); !immagine.isNull())
        m_attese.insert(chiave, m_sorgente.squadra().affida([immagine, pixel] { return stira(immagine, pixel); }));
}

QImage ImmaginiTela::stirata(const QString &percorso, QSize pixel) {
    if (percorso.isEmpty() || pixel.isEmpty())
        return {};
    const Chiave chiave{percorso, pixel};
    if (const QImage *pronta = m_stirate.object(chiave))
        return *pronta;
    const auto attesa = m_attese.take(chiave);
    QImage nuova = attesa.valid() ? attesa.get() : stira(m_sorgente.immagine(percorso), pixel);
    m_stirate.insert(chiave, new QImage(nuova), nuova.sizeInBytes() / 1024 + 1);
    return nuova;
}

QImage ImmaginiTela::intera(const QString &percorso) {
    return m_sorgente.immagine(percorso);
}

void ImmaginiTela::dimentica(const QString &percorso) {
    const auto chiavi = m_stirate.keys();
    for (const Chiave &c : chiavi)
        if (c.percorso == percorso)
            m_stirate.remove(c);
}

void ImmaginiTela::prepara(Segnaposto quale, QSize misura, qreal scala) {
    Disegnato &tenuto = m_segnaposti[quale];
    if ((tenuto.misura == misura && tenuto.scala == scala) || !siCopia(misura, scala))
        return;
    tenuto = {misura, scala,
              m_sorgente.squadra().affida([quale, misura, scala] { return disegna(quale, misura, scala); })};
}

QImage ImmaginiTela::segnaposto(Segnaposto quale, QSize misura, qreal scala) {
    prepara(quale, misura, scala);
    return m_segnaposti[quale].immagine.get();
}

} // namespace zuvora
