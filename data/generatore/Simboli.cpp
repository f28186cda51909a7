#include "Simboli.h"

#include "Tracciato.h"

#include <stdexcept>

namespace zuvora::disegna {

namespace {

void posa(QPainter &p, const Strato &strato, const QColor &inchiostro) {
    const bool taglia = strato.mano == Mano::Taglio || strato.mano == Mano::TaglioTratto;
    const bool linea = strato.mano == Mano::Tratto || strato.mano == Mano::TaglioTratto;
    p.setCompositionMode(taglia ? QPainter::CompositionMode_DestinationOut : QPainter::CompositionMode_SourceOver);
    const QPainterPath forma = tracciato(strato.tracciato);
    if (linea)
        p.strokePath(forma, QPen{inchiostro, strato.penna, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    else
        p.fillPath(forma, inchiostro);
}

} // namespace

const Simbolo &simbolo(QStringView nome) {
    for (const auto tabella : {simboliServizi(), simboliSalute()})
        for (const Simbolo &s : tabella)
            if (s.nome == nome)
                return s;
    throw std::invalid_argument("simbolo sconosciuto: " + nome.toString().toStdString());
}

void disegnaSimbolo(QPainter &p, QStringView nome, const QRectF &dove, const QColor &inchiostro) {
    const Simbolo &s = simbolo(nome);
    // A sheet of its own, so that the cuts go through the symbol and not through what it is painted on.
    const QImage foglio = dipinto(dove.size().toSize(), [&](QPainter &q) {
        q.scale(dove.width() / 100, dove.height() / 100);
        for (const Strato &strato : s.strati)
            posa(q, strato, inchiostro);
    });
    p.drawImage(dove.topLeft(), foglio);
}

} // namespace zuvora::disegna
