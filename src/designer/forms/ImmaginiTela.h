#pragma once

#include <QCache>
#include <QImage>
#include <QSize>

namespace zuvora {

class ImmaginiQt;

// Pictures stretched to the sizes at which the canvas shows them. Once asked for, a picture isn't looked up on the disk
// again until it is forgotten.
class ImmaginiTela {
public:
    explicit ImmaginiTela(ImmaginiQt &sorgente);

    // The picture in device pixels, whatever its own proportions; null when it can't be loaded or the size is empty.
    QImage stirata(const QString &percorso, QSize pixel);
    // As the file gives it, for places too large to keep a copy of that size.
    QImage intera(const QString &percorso);
    void dimentica(const QString &percorso);

private:
    struct Chiave {
        QString percorso;
        QSize pixel;
        friend bool operator==(const Chiave &, const Chiave &) = default;
        friend size_t qHash(const Chiave &c, size_t seme) {
            return qHashMulti(seme, c.percorso, c.pixel.width(), c.pixel.height());
        }
    };
    ImmaginiQt &m_sorgente;
    QCache<Chiave, QImage> m_stirate; // cost in KiB
};

} // namespace zuvora
