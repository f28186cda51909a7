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

} // namespace zuvora
