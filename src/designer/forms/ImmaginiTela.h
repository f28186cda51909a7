#pragma once

#include "designer/logic/ImmaginiQt.h"
#include "shell/disegni/Disegni.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QMap>
#include <QSize>

namespace zuvora {

// Whether a picture is kept at this size on the canvas; a larger one is painted from the original each time.
bool siCopia(QSize misura, qreal scala);

// Pictures stretched to the sizes at which the canvas shows them. Once asked for, a picture isn't looked up on the disk
// again until it is forgotten.
class ImmaginiTela {
public:
    explicit ImmaginiTela(ImmaginiQt &sorgente);

    // The picture will be asked for at this size: helper threads may stretch it meanwhile.
    void prepara(const QString &percorso, QSize pixel);
    // The picture in device pixels, whatever its own proportions; null when it can't be loaded or the size is empty.
    QImage stirata(const QString &percorso, QSize pixel);
    // As the file gives it, for places too large to keep a copy of that size.
    QImage intera(const QString &percorso);
    void dimentica(const QString &percorso);

    // The same of a placeholder, at a size on the canvas and a whole scale.
    void prepara(Segnaposto quale, QSize misura, qreal scala);
    QImage segnaposto(Segnaposto quale, QSize misura, qreal scala);

private:
    struct Chiave {
        QString percorso;
        QSize pixel;
        friend bool operator==(const Chiave &, const Chiave &) = default;
        friend size_t qHash(const Chiave &c, size_t seme) {
            return qHashMulti(seme, c.percorso, c.pixel.width(), c.pixel.height());
        }
    };
    struct Disegnato {
        QSize misura;
        qreal scala = 0;
        std::shared_future<QImage> immagine;
    };
    static QImage stira(QImage intera, QSize pixel);

    ImmaginiQt &m_sorgente;
    QHash<Chiave, std::shared_future<QImage>> m_attese;
    QCache<Chiave, QImage> m_stirate; // cost in KiB
    QMap<Segnaposto, Disegnato> m_segnaposti;
};

} // namespace zuvora
