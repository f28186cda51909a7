#include "shell/immagini/LetturaImmagine.h"

#include <QFileInfo>
#include <QImageReader>

namespace zuvora {
namespace {

bool eFile(const QString &percorso) {
    return !percorso.isEmpty() && QFileInfo(percorso).isFile();
}

bool supera(const QSize &misura, const QSize &massimo) {
    return misura != misura.boundedTo(massimo);
}

QSize ridotta(const QSize &misura, const QSize &massimo, Riduzione riduzione) {
    if (riduzione == Riduzione::Riempi)
        return misura.boundedTo(massimo);
    return misura.scaled(massimo, Qt::KeepAspectRatio).expandedTo({1, 1});
}

} // namespace

QSize misuraImmagine(const QString &percorso) {
    if (!eFile(percorso))
        return {};
    QImageReader lettore(percorso);
    lettore.setDecideFormatFromContent(true);
    const QSize misura = lettore.size();
    return misura.isValid() ? misura : QSize();
}

bool pareImmagine(const QString &percorso) {
    if (!eFile(percorso))
        return false;
    QImageReader lettore(percorso);
    lettore.setDecideFormatFromContent(true);
    return lettore.canRead();
}

QImage leggiImmagine(const QString &percorso, const QSize &massimo, Riduzione riduzione) {
    if (!eFile(percorso))
        return {};
    QImageReader lettore(percorso);
    lettore.setDecideFormatFromContent(true);
    // A large photo would not fit the decoder's memory limit at its full size, and takes many times longer.
    if (const QSize misura = lettore.size(); misura.isValid() && supera(misura, massimo))
        lettore.setScaledSize(ridotta(misura, massimo, riduzione));
    QImage letta = lettore.read();
    if (!letta.isNull() && supera(letta.size(), massimo)) // a format that doesn't tell its size before decoding
        return letta.scaled(ridotta(letta.size(), massimo, riduzione), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return letta;
}

QImage leggiRitaglio(const QString &percorso, const QSize &misura) {
    if (!eFile(percorso))
        return {};
    QImageReader lettore(percorso);
    lettore.setDecideFormatFromContent(true);
    const QRect ritaglio(QPoint(), misura);
    // Only where it cuts something off: told of its whole size, a decoder would take another way for nothing.
    if (const QSize intera = lettore.size(); intera.isValid() && supera(intera, misura))
        lettore.setClipRect(ritaglio & QRect(QPoint(), intera));
    const QImage letta = lettore.read();
    return supera(letta.size(), misura) ? letta.copy(ritaglio & letta.rect()) : letta;
}

} // namespace zuvora
