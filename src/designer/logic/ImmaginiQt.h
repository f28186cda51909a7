#pragma once

#include "designer/logic/CaricatoreImmagini.h"

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QSize>

namespace zuvora {

// Loads pictures for the canvas: regular files only, format told by content, large ones decoded at a reduced size.
// What was decoded is kept, so that the canvas gets at once what the reading of a layout has loaded; a file that has
// changed on disk is decoded again.
class ImmaginiQt final : public CaricatoreImmagini {
public:
    // Pictures larger than `massimo` (pixels) in either direction are reduced to fit, proportions kept.
    explicit ImmaginiQt(QSize massimo = {1920, 1920});

    bool carica(const QString &percorso) override;
    // The picture, null when it can't be loaded.
    QImage immagine(const QString &percorso);

private:
    struct Voce {
        QImage immagine;
        QDateTime modifica;
        qint64 byte = 0;
    };

    QSize m_massimo;
    QCache<QString, Voce> m_decodificate; // cost in KiB
};

} // namespace zuvora
