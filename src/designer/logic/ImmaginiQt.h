#pragma once

#include "designer/logic/Squadra.h"

#include <QCache>
#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>

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
// What was decoded is kept, so that the canvas gets at once what the reading of a layout has loaded; a file that has
// changed on disk is decoded again.
class ImmaginiQt final : public CaricatoreImmagini {
public:
    // Pictures larger than `massimo` (pixels) in either direction are reduced to fit, proportions kept. `fili`: how
    // many threads decode what is prepared.
    explicit ImmaginiQt(QSize massimo = {1920, 1920}, int fili = QThread::idealThreadCount());

    void prepara(const QString &percorso) override;
    bool carica(const QString &percorso) override;
    // The picture, null when it can't be loaded.
    QImage immagine(const QString &percorso);
    // For more work on pictures.
    Squadra &squadra() { return m_squadra; }

private:
    struct Voce {
        QImage immagine;
        QDateTime modifica;
        qint64 byte = 0;
    };
    static Voce decodifica(const QString &percorso, QSize massimo);
    bool attuale(const QString &percorso);

    QSize m_massimo;
    QCache<QString, Voce> m_decodificate; // cost in KiB
    QHash<QString, std::shared_future<Voce>> m_attese;
    Squadra m_squadra;
};

} // namespace zuvora
