#include "designer/forms/ImmaginiTela.h"

#include "designer/logic/ImmaginiQt.h"

namespace zuvora {
namespace {

constexpr qsizetype Memoria = 192 * 1024; // KiB

} // namespace

ImmaginiTela::ImmaginiTela(ImmaginiQt &sorgente) : m_sorgente(sorgente), m_stirate(Memoria) {}

QImage ImmaginiTela::stirata(const QString &percorso, QSize pixel) {
    if (percorso.isEmpty() || pixel.isEmpty())
        return {};
    const Chiave chiave{percorso, pixel};
    if (const QImage *pronta = m_stirate.object(chiave))
        return *pronta;
    QImage nuova = m_sorgente.immagine(percorso);
    if (!nuova.isNull()) {
        if (nuova.size() != pixel)
            nuova = nuova.scaled(pixel, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const bool trasparente = nuova.hasAlphaChannel();
        nuova.convertTo(trasparente ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    }
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

} // namespace zuvora
