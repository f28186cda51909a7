#include "shell/host/Grassetto.h"

#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QtEndian>
#include <cmath>

namespace zuvora {
namespace {

// Text in letters that are thickened here. Lines stand as in any other text, advances are those of the face.
void scriviIspessito(QPainter &p, const QRect &r, int opzioni, QString testo) {
    constexpr double tratto = 1.0 / 24; // of the letter's height, as the font system does
    const QFont font = p.font();
    const double altezza = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * p.device()->logicalDpiY() / 72;
    const double spessore = altezza * tratto;
    const bool aCapo = (opzioni & (Qt::TextWordWrap | Qt::TextWrapAnywhere)) != 0;
    testo.replace(u'\n', aCapo ? QChar(QChar::LineSeparator) : u' ');
    QTextLayout righe(testo, p.font(), p.device());
    QTextOption modo(Qt::Alignment(opzioni) & Qt::AlignHorizontal_Mask);
    modo.setWrapMode((opzioni & Qt::TextWrapAnywhere) != 0 ? QTextOption::WrapAnywhere
                     : aCapo                               ? QTextOption::WordWrap
                                                           : QTextOption::NoWrap);
    righe.setTextOption(modo);
    QTextCharFormat formato;
    formato.setForeground(p.pen().color());
    formato.setTextOutline(QPen(p.pen().color(), spessore, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    righe.setFormats({{0, static_cast<int>(testo.size()), formato}});
    const double interlinea = QFontMetricsF(p.font(), p.device()).leading();
    double alto = -interlinea;
    righe.beginLayout();
    for (QTextLine riga = righe.createLine(); riga.isValid(); riga = righe.createLine()) {
        riga.setLineWidth(r.width());
        alto = std::ceil(alto + interlinea);
        riga.setPosition({0, alto});
        alto += riga.height();
    }
    righe.endLayout();
    const double sopra = (opzioni & Qt::AlignVCenter) != 0 ? (r.height() - alto) / 2 : 0;
    righe.draw(&p, r.topLeft() + QPointF(spessore / 2, sopra - spessore / 2)); // it grows from its lower left
}

} // namespace

bool grassettoApparente(const QFont &font) {
    constexpr int posizionePeso = 4; // of the weight in the font's table OS/2
    const QByteArray tabella = font.bold() ? QRawFont::fromFont(font).fontTable("OS/2") : QByteArray();
    return tabella.size() >= posizionePeso + 2 &&
           qFromBigEndian<quint16>(tabella.constData() + posizionePeso) < QFont::Bold;
}

void scriviTesto(QPainter &p, const QRect &r, int opzioni, const QString &testo) {
    if (grassettoApparente(p.font()))
        scriviIspessito(p, r, opzioni, testo);
    else
        p.drawText(r, opzioni, testo);
}

} // namespace zuvora
