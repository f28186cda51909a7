#pragma once

#include "designer/logic/Squadra.h"
#include "shell/logic/Avanzamento.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>
#include <functional>

namespace zuvora {

// Says whether files are pictures that can be shown; the reading of a layout knows pictures by path only.
class CaricatoreImmagini {
public:
    virtual ~CaricatoreImmagini() = default;
    // The file at `percorso` will be asked for: it may be decoded meanwhile.
    virtual void prepara(const QString &) {}
    // True when the file at `percorso` exists and could be decoded. Never blocks on folders, pipes and the like.
    virtual bool carica(const QString &percorso) = 0;
};

// Loads pictures for the canvas: regular files only, format told by content, large ones decoded at a reduced size.
// What was decoded is kept, and so is what could not be, so that the canvas gets at once what the reading of a layout
// has loaded and its thread asks no disk; a file is read again when it is chosen again.
class ImmaginiQt final : public CaricatoreImmagini {
public:
    // Pictures larger than `massimo` (pixels) in either direction are reduced to fit, proportions kept. `fili`: how
    // many threads decode what is prepared.
    explicit ImmaginiQt(QSize massimo = {1920, 1920}, int fili = QThread::idealThreadCount());

    void prepara(const QString &percorso) override;
    bool carica(const QString &percorso) override;
    // The picture, null when it can't be loaded.
    QImage immagine(const QString &percorso);
    // The reading of a file anew, for a thread that nobody may wait for, and the keeping of what came of it.
    std::function<QImage(Avanzamento &)> lettura(const QString &percorso) const;
    void tieni(const QString &percorso, const QImage &immagine);
    // For more work on pictures.
    Squadra &squadra() { return m_squadra; }

private:
    QSize m_massimo;
    QCache<QString, QImage> m_decodificate; // cost in KiB
    QHash<QString, std::shared_future<QImage>> m_attese;
    Squadra m_squadra;
};

} // namespace zuvora
