#include "etichette/biglietto/Uscite.h"

#include "etichette/logic/Pittore.h"
#include "shell/logic/FileAtomico.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int dpiPdf = 1200;
constexpr qint64 puntiMassimi = 200'000'000; // of a picture

void disegna(QPainter &p, double dpi, const Etichetta &e, const Valori &valori, const QPoint &scostamento,
             QStringList &avvisi) {
    Pittore pittore;
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    p.scale(dpi / decimiPerPollice, dpi / decimiPerPollice);
    p.translate(scostamento);
    pittore.disegna(p, e, valori, Pittore::Modo::Stampa);
    avvisi = pittore.prendiAvvisi();
}

} // namespace

QByteArray pdf(const Etichetta &e, const Valori &valori, const QPoint &scostamento, QStringList &avvisi) {
    QByteArray byte;
    QBuffer buffer(&byte);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter scrittore(&buffer);
    scrittore.setResolution(dpiPdf);
    const QSize carta = Pittore::misuraCarta(e, valori);
    const QPageSize pagina(QSizeF(carta) / 10, QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    scrittore.setPageLayout(QPageLayout(pagina, QPageLayout::Portrait, QMarginsF()));
    QPainter p;
    if (!p.begin(&scrittore))
        return {};
    disegna(p, dpiPdf, e, valori, scostamento, avvisi);
    return p.end() ? byte : QByteArray();
}

EsitoStampa scriviPdf(const QString &file, const Etichetta &e, const Valori &valori) {
    EsitoStampa esito;
    const QByteArray byte = pdf(e, valori, {}, esito.avvisi);
    esito.motivo = byte.isEmpty() ? u"Il PDF non è stato creato."_s : scriviFile(file, byte);
    return esito;
}

EsitoStampa scriviPng(const QString &file, const Etichetta &e, const Valori &valori, int dpi) {
    EsitoStampa esito;
    const double punti = dpi > 0 ? dpi : e.carta.dpi;
    const QSize carta = Pittore::misuraCarta(e, valori);
    const QSize misura(qCeil(carta.width() * punti / decimiPerPollice),
                       qCeil(carta.height() * punti / decimiPerPollice));
    if (qint64(misura.width()) * misura.height() > puntiMassimi)
        return {u"L'immagine sarebbe troppo grande: scegliere meno punti per pollice."_s, {}};
    QImage immagine(misura, QImage::Format_RGB32);
    if (immagine.isNull())
        return {u"Memoria insufficiente per l'immagine."_s, {}};
    immagine.fill(Qt::white);
    immagine.setDotsPerMeterX(static_cast<int>(std::lround(punti / 0.0254)));
    immagine.setDotsPerMeterY(immagine.dotsPerMeterX());
    QPainter p(&immagine);
    disegna(p, punti, e, valori, {}, esito.avvisi);
    p.end();
    QByteArray byte;
    QBuffer buffer(&byte);
    buffer.open(QIODevice::WriteOnly);
    esito.motivo = immagine.save(&buffer, "PNG") ? scriviFile(file, byte) : u"L'immagine non è stata creata."_s;
    return esito;
}

} // namespace zuvora
