#include "designer/logic/ImmaginiQt.h"

#include "shell/immagini/LetturaImmagine.h"

#include <QFileInfo>

namespace zuvora {

namespace {

constexpr qsizetype memoria = 128 * 1024; // KiB

} // namespace

ImmaginiQt::ImmaginiQt(QSize massimo) : m_massimo(massimo), m_decodificate(memoria) {}

bool ImmaginiQt::carica(const QString &percorso) {
    return !immagine(percorso).isNull();
}

QImage ImmaginiQt::immagine(const QString &percorso) {
    const QFileInfo file(percorso);
    if (percorso.isEmpty() || !file.isFile())
        return {};
    const QDateTime modifica = file.lastModified();
    if (const Voce *voce = m_decodificate.object(percorso);
        voce && voce->modifica == modifica && voce->byte == file.size())
        return voce->immagine;
    QImage nuova = leggiImmagine(percorso, m_massimo);
    if (!nuova.isNull())
        m_decodificate.insert(percorso, new Voce{nuova, modifica, file.size()}, nuova.sizeInBytes() / 1024 + 1);
    return nuova;
}

} // namespace zuvora
