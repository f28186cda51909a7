#include "designer/logic/ImmaginiQt.h"

#include <QFileInfo>
#include <QImageReader>

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
    const QImage nuova = decodifica(percorso);
    if (!nuova.isNull())
        m_decodificate.insert(percorso, new Voce{nuova, modifica, file.size()}, nuova.sizeInBytes() / 1024 + 1);
    return nuova;
}

QImage ImmaginiQt::decodifica(const QString &percorso) const {
    QImageReader lettore(percorso);
    lettore.setDecideFormatFromContent(true);
    const auto troppoGrande = [this](QSize misura) { return misura != misura.boundedTo(m_massimo); };
    const auto ridotta = [this](QSize misura) {
        return misura.scaled(m_massimo, Qt::KeepAspectRatio).expandedTo({1, 1});
    };
    // A large photo would not fit the decoder's memory limit at its full size.
    if (const QSize misura = lettore.size(); misura.isValid() && troppoGrande(misura))
        lettore.setScaledSize(ridotta(misura));
    const QImage letta = lettore.read();
    if (!letta.isNull() && troppoGrande(letta.size())) // a format that doesn't tell its size before decoding
        return letta.scaled(ridotta(letta.size()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return letta;
}

} // namespace zuvora
