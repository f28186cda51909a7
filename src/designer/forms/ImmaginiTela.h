#pragma once

#include "designer/logic/ImmaginiQt.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QSize>

namespace zuvora {

// Pixels of a stretched picture that is kept; a larger one is painted from the original each time.
inline constexpr qint64 copiaMassima = 16'000'000;

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

private:
    struct Chiave {
        QString percorso;
        QSize pixel;
        friend bool operator==(const Chiave &, const Chiave &) = default;
        friend size_t qHash(const Chiave &c, size_t seme) {
            return qHashMulti(seme, c.percorso, c.pixel.width(), c.pixel.height());
        }
    };
    static QImage stira(QImage intera, QSize pixel);

    ImmaginiQt &m_sorgente;
    QHash<Chiave, std::shared_future<QImage>> m_attese;
    QCache<Chiave, QImage> m_stirate; // cost in KiB
};

} // namespace zuvora
