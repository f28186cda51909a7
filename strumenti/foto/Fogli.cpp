#include "foto/Fogli.h"

#include "shell/disegni/Disegni.h"
#include "shell/disegni/Tavolozza.h"
#include "shell/store/NomiFile.h"

#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora::foto {
namespace {

constexpr QSize pulsante{49, 39};

void foglioStrumenti(const QDir &cartella, qreal dpr) {
    constexpr int riga = 104;
    constexpr int righe = static_cast<int>(Disegno::Zuvora);
    QImage foglio{QSize{2 * 340, riga * ((righe + 1) / 2)} * dpr, QImage::Format_RGB32};
    foglio.setDevicePixelRatio(dpr);
    foglio.fill(tavolozza::sfondo);
    QPainter p{&foglio};
    for (int i = 0; i < righe; ++i) {
        const auto d = static_cast<Disegno>(i);
        const int x = 340 * (i % 2) + 4;
        const int y = riga * (i / 2) + 4;
        p.fillRect(QRect{{x + 46, y}, pulsante}, tavolozza::bianco);
        icona(d).paint(&p, {x, y, 16, 16});
        icona(d).paint(&p, {x + 20, y, 24, 24});
        icona(d).paint(&p, QRect{{x + 46, y}, pulsante}.adjusted(4, 4, -4, -4));
        icona(d).paint(&p, {x, y + 46, 32, 32}, Qt::AlignCenter, QIcon::Disabled);
        icona(d).paint(&p, {x + 110, y, 48, 48});
        icona(d).paint(&p, {x + 180, y, 96, 96});
    }
    foglio.save(cartella.filePath(u"strumenti@%1.png"_s.arg(dpr)));
}

void foglioIllustrazioni(const QDir &cartella, qreal dpr) {
    QImage foglio{QSize{760, 660} * dpr, QImage::Format_RGB32};
    foglio.setDevicePixelRatio(dpr);
    foglio.fill(tavolozza::sfondo);
    QPainter p{&foglio};
    QRect posto{10, 10, 0, 0};
    int riga = 0;
    for (int i = static_cast<int>(Disegno::Zuvora); i <= static_cast<int>(ultimoDisegno); ++i) {
        const auto d = static_cast<Disegno>(i);
        posto.setSize(misura(d).toSize());
        if (posto.right() > 750)
            posto.moveTo(10, std::exchange(riga, 0));
        p.drawImage(posto.topLeft(), immagineRaster(d, posto.size(), dpr));
        riga = std::max(riga, posto.bottom() + 10);
        posto.moveLeft(posto.right() + 20);
    }
    for (const int lato : {16, 24, 32, 48, 128}) {
        icona(Disegno::Zuvora).paint(&p, {10 + lato * 3, 520, lato, lato});
    }
    foglio.save(cartella.filePath(u"illustrazioni@%1.png"_s.arg(dpr)));
}

void foglioSegnaposto(const QDir &cartella) {
    QImage foglio{1400, 1000, QImage::Format_RGB32};
    foglio.fill(tavolozza::bianco);
    QPainter p{&foglio};
    const std::array posti{QRect{0, 0, 641, 441},     QRect{650, 0, 585, 409}, QRect{0, 450, 451, 337},
                           QRect{460, 450, 585, 393}, QRect{0, 850, 506, 92},  QRect{1050, 450, 300, 337}};
    for (size_t i = 0; i < posti.size(); ++i)
        dipingiSegnaposto(p, static_cast<Segnaposto>(i), posti[i]);
    const std::array piccoli{QRect{520, 850, 60, 40},  QRect{590, 850, 24, 120}, QRect{630, 850, 120, 100},
                             QRect{760, 850, 200, 20}, QRect{970, 850, 8, 8},    QRect{990, 850, 400, 140}};
    for (size_t i = 0; i < piccoli.size(); ++i)
        dipingiSegnaposto(p, static_cast<Segnaposto>(i), piccoli[i]);
    foglio.save(cartella.filePath(u"segnaposto.png"_s));
}

void foglioCatalogo(const QString &immagini, const QString &foglioDa) {
    constexpr QSize cella{150, 120};
    constexpr int colonne = 12;
    const QStringList file = QDir(immagini).entryList(QDir::Files, QDir::Name);
    const int righe = (static_cast<int>(file.size()) + colonne - 1) / colonne;
    QImage foglio{colonne * cella.width(), std::max(1, righe) * cella.height(), QImage::Format_RGB32};
    foglio.fill(tavolozza::velo);
    QPainter p{&foglio};
    for (int i = 0; i < file.size(); ++i) {
        QImageReader lettore(immagini + u'/' + file.at(i));
        const QRect posto{QPoint{(i % colonne) * cella.width(), (i / colonne) * cella.height()}, cella};
        const QImage immagine =
            lettore.read().scaled(cella - QSize{10, 26}, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        p.drawImage(posto.topLeft() + QPoint{5, 5}, immagine);
        p.drawText(posto.adjusted(2, 0, -2, -2), Qt::AlignBottom | Qt::AlignLeft, file.at(i));
    }
    foglio.save(foglioDa);
}

} // namespace

void disegnaFogli(const QDir &cartella) {
    for (const qreal dpr : {1.0, 2.0}) {
        foglioStrumenti(cartella, dpr);
        foglioIllustrazioni(cartella, dpr);
    }
    foglioSegnaposto(cartella);
}

void disegnaCatalogo(const QString &installazione, const QDir &cartella) {
    for (const QStringView immagini : {nomi::cornici, nomi::banner, nomi::elementi, nomi::sfondi}) {
        const QString da = installazione + u'/' + immagini.toString();
        foglioCatalogo(da, cartella.filePath(u"catalogo-%1.png"_s.arg(QFileInfo(da).fileName())));
    }
}

} // namespace zuvora::foto
