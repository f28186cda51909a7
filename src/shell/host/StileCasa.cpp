#include "shell/host/StileCasa.h"

#include "shell/disegni/Tavolozza.h"
#include "shell/host/Button.h"

#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qreal raggio = 2.5; // pixels

struct Tinte {
    QColor fondo;
    QColor bordo;
};

bool ha(const QStyleOption *opzione, QStyle::StateFlag stato) {
    return (opzione->state & stato) != 0;
}

// A ground as the mouse finds it.
QColor secondoIlMouse(const QColor &fondo, const QStyleOption *opzione) {
    const bool scuro = fondo.lightness() < 128;
    if (ha(opzione, QStyle::State_Sunken) || ha(opzione, QStyle::State_On))
        return scuro ? fondo.darker(130) : fondo.darker(110);
    if (ha(opzione, QStyle::State_MouseOver))
        return scuro ? fondo.lighter(125) : tavolozza::primarioChiaro;
    return fondo;
}

Tinte tinteBottone(const QStyleOption *opzione, const Button *bottone) {
    if (!ha(opzione, QStyle::State_Enabled))
        return {tavolozza::sfondo, tavolozza::bordoControllo};
    if (bottone != nullptr && bottone->ruolo() == Ruolo::Principale)
        return {secondoIlMouse(tavolozza::primario, opzione), tavolozza::primario};
    if (bottone != nullptr && bottone->ruolo() == Ruolo::Distruttivo)
        return {secondoIlMouse(opzione->palette.color(QPalette::Button), opzione), tavolozza::pericoloScuro};
    if (bottone != nullptr && bottone->segnato())
        return {secondoIlMouse(tavolozza::accentoChiaro, opzione), tavolozza::primario};
    return {secondoIlMouse(opzione->palette.color(QPalette::Button), opzione), tavolozza::bordoControllo};
}

QColor testoBottone(const QStyleOption *opzione, const Button *bottone) {
    if (bottone == nullptr || !ha(opzione, QStyle::State_Enabled))
        return opzione->palette.color(QPalette::ButtonText);
    switch (bottone->ruolo()) {
    case Ruolo::Principale:
        return tavolozza::bianco;
    case Ruolo::Distruttivo:
        return tavolozza::pericoloScuro;
    case Ruolo::Normale:
        break;
    }
    return opzione->palette.color(QPalette::ButtonText);
}

void riquadro(QPainter &pittore, const QRect &dove, const Tinte &tinte) {
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(tinte.bordo);
    pittore.setBrush(tinte.fondo);
    pittore.drawRoundedRect(QRectF(dove).adjusted(0.5, 0.5, -0.5, -0.5), raggio, raggio);
    pittore.restore();
}

void dipingiBottone(QPainter &pittore, const QStyleOption *opzione, const Button *bottone) {
    riquadro(pittore, opzione->rect, tinteBottone(opzione, bottone));
    if (bottone != nullptr && bottone->segnato())
        pittore.fillRect(opzione->rect.adjusted(1, 2, 0, -2).intersected({0, 0, 4, opzione->rect.height()}),
                         tavolozza::primario);
    if (ha(opzione, QStyle::State_HasFocus))
        disegnaAnello(pittore, opzione->rect);
}

bool solaLettura(const QWidget *w) {
    if (const auto *riga = qobject_cast<const QLineEdit *>(w))
        return riga->isReadOnly();
    return false;
}

void dipingiCampo(QPainter &pittore, const QStyleOption *opzione, const QWidget *w) {
    const bool spento = !ha(opzione, QStyle::State_Enabled) || solaLettura(w);
    const QColor fondo = spento ? tavolozza::sfondo : opzione->palette.color(QPalette::Base);
    riquadro(pittore, opzione->rect, {fondo, tavolozza::bordoControllo});
    if (ha(opzione, QStyle::State_HasFocus))
        disegnaAnello(pittore, opzione->rect);
}

void dipingiSegno(QPainter &pittore, const QStyleOption *opzione, bool tondo) {
    const bool acceso = ha(opzione, QStyle::State_Enabled);
    const QRectF dove = QRectF(opzione->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    QColor fondo = acceso ? tavolozza::bianco : tavolozza::sfondo;
    if (acceso && (ha(opzione, QStyle::State_MouseOver) || ha(opzione, QStyle::State_Sunken)))
        fondo = tavolozza::primarioChiaro;
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(tavolozza::bordoControllo);
    pittore.setBrush(fondo);
    const QColor segno = acceso ? tavolozza::primario : tavolozza::testoSpento;
    if (tondo) {
        pittore.drawEllipse(dove);
        if (ha(opzione, QStyle::State_On)) {
            pittore.setPen(Qt::NoPen);
            pittore.setBrush(segno);
            const qreal bordo = dove.width() * 0.27;
            pittore.drawEllipse(dove.adjusted(bordo, bordo, -bordo, -bordo));
        }
    } else {
        pittore.drawRoundedRect(dove, 1.5, 1.5);
        if (ha(opzione, QStyle::State_On)) {
            const qreal lato = dove.width();
            QPainterPath tratto(dove.topLeft() + QPointF(lato * 0.22, lato * 0.52));
            tratto.lineTo(dove.topLeft() + QPointF(lato * 0.43, lato * 0.74));
            tratto.lineTo(dove.topLeft() + QPointF(lato * 0.80, lato * 0.26));
            pittore.setBrush(Qt::NoBrush);
            pittore.setPen(QPen(segno, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            pittore.drawPath(tratto);
        }
    }
    pittore.restore();
}

// The combo box that isn't typed into: a field with the mark of a choice that opens.
void dipingiElenco(QPainter &pittore, const QStyleOptionComplex *opzione) {
    const bool acceso = ha(opzione, QStyle::State_Enabled);
    const QColor fondo = acceso ? secondoIlMouse(tavolozza::bianco, opzione) : tavolozza::sfondo;
    riquadro(pittore, opzione->rect, {fondo, tavolozza::bordoControllo});
    const QPointF centro(opzione->rect.right() - 9, opzione->rect.center().y() + 0.5);
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(acceso ? tavolozza::testo : tavolozza::testoSpento);
    pittore.drawPolygon(
        QPolygonF{{centro.x() - 4, centro.y() - 2}, {centro.x() + 4, centro.y() - 2}, {centro.x(), centro.y() + 3}});
    pittore.restore();
    if (ha(opzione, QStyle::State_HasFocus))
        disegnaAnello(pittore, opzione->rect);
}

// Fusion draws its edges 1.4 times darker than the window: with this one they come out as those of our own controls.
QPalette conBordoVisibile(QPalette palette) {
    palette.setColor(QPalette::Window, tavolozza::bordoControllo.lighter(140));
    return palette;
}

} // namespace

void disegnaAnello(QPainter &pittore, const QRect &dove) {
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setBrush(Qt::NoBrush);
    pittore.setPen(QPen(tavolozza::primario, 2));
    pittore.drawRoundedRect(QRectF(dove).adjusted(1, 1, -1, -1), raggio, raggio);
    // On a ground of the ring's own colour the line inside tells it.
    pittore.setPen(QPen(tavolozza::bianco, 1));
    pittore.drawRoundedRect(QRectF(dove).adjusted(2.5, 2.5, -2.5, -2.5), raggio - 1, raggio - 1);
    pittore.restore();
}

StileCasa::StileCasa() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

void StileCasa::drawControl(ControlElement elemento, const QStyleOption *opzione, QPainter *pittore,
                            const QWidget *w) const {
    const auto *bottone = qobject_cast<const Button *>(w);
    if (elemento == CE_PushButtonBevel) {
        dipingiBottone(*pittore, opzione, bottone);
        return;
    }
    if (const auto *scritto = qstyleoption_cast<const QStyleOptionButton *>(opzione);
        elemento == CE_PushButtonLabel && scritto != nullptr) {
        QStyleOptionButton copia = *scritto;
        copia.palette.setColor(QPalette::ButtonText, testoBottone(opzione, bottone));
        QProxyStyle::drawControl(elemento, &copia, pittore, w);
        return;
    }
    if (const auto *barra = qstyleoption_cast<const QStyleOptionProgressBar *>(opzione);
        elemento == CE_ProgressBarGroove && barra != nullptr) {
        QStyleOptionProgressBar copia = *barra;
        copia.palette = conBordoVisibile(copia.palette);
        QProxyStyle::drawControl(elemento, &copia, pittore, w);
        return;
    }
    if (const auto *scelta = qstyleoption_cast<const QStyleOptionComboBox *>(opzione);
        elemento == CE_ComboBoxLabel && scelta != nullptr) {
        QStyleOptionComboBox copia = *scelta;
        const int icona = copia.currentIcon.isNull() ? 0 : copia.iconSize.width() + 4;
        const QRect posto = subControlRect(CC_ComboBox, &copia, SC_ComboBoxEditField, w);
        copia.currentText = copia.fontMetrics.elidedText(copia.currentText, Qt::ElideMiddle, posto.width() - icona - 2);
        QProxyStyle::drawControl(elemento, &copia, pittore, w);
        return;
    }
    QProxyStyle::drawControl(elemento, opzione, pittore, w);
    if (elemento == CE_ShapedFrame && ha(opzione, State_HasFocus) && qobject_cast<const QAbstractScrollArea *>(w))
        disegnaAnello(*pittore, opzione->rect);
}

void StileCasa::drawPrimitive(PrimitiveElement elemento, const QStyleOption *opzione, QPainter *pittore,
                              const QWidget *w) const {
    switch (elemento) {
    case PE_PanelLineEdit:
        if (const auto *cornice = qstyleoption_cast<const QStyleOptionFrame *>(opzione);
            cornice != nullptr && cornice->lineWidth > 0) {
            dipingiCampo(*pittore, opzione, w);
            return;
        }
        break;
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea *>(w) != nullptr) {
            riquadro(*pittore, opzione->rect, {Qt::transparent, tavolozza::bordoControllo});
            return;
        }
        break;
    case PE_FrameFocusRect:
        // Rows of lists say by their ground which one is current; their list has the ring.
        if (qobject_cast<const QAbstractScrollArea *>(w) == nullptr)
            disegnaAnello(*pittore, opzione->rect);
        return;
    case PE_IndicatorCheckBox:
        dipingiSegno(*pittore, opzione, false);
        return;
    case PE_IndicatorRadioButton:
        dipingiSegno(*pittore, opzione, true);
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(elemento, opzione, pittore, w);
}

void StileCasa::drawComplexControl(ComplexControl controllo, const QStyleOptionComplex *opzione, QPainter *pittore,
                                   const QWidget *w) const {
    const auto *elenco = qstyleoption_cast<const QStyleOptionComboBox *>(opzione);
    if (controllo == CC_ComboBox && elenco != nullptr && !elenco->editable) {
        dipingiElenco(*pittore, opzione);
        return;
    }
    if (const auto *cursore = qstyleoption_cast<const QStyleOptionSlider *>(opzione)) {
        QStyleOptionSlider copia = *cursore;
        copia.palette = conBordoVisibile(copia.palette);
        if (!ha(opzione, State_Enabled))
            copia.palette.setColor(QPalette::Highlight, tavolozza::bordo);
        QProxyStyle::drawComplexControl(controllo, &copia, pittore, w);
        if (controllo == CC_Slider && ha(opzione, State_HasFocus))
            disegnaAnello(*pittore, subControlRect(CC_Slider, &copia, SC_SliderHandle, w));
        return;
    }
    if (const auto *numero = qstyleoption_cast<const QStyleOptionSpinBox *>(opzione)) {
        QStyleOptionSpinBox copia = *numero;
        copia.palette = conBordoVisibile(copia.palette);
        QProxyStyle::drawComplexControl(controllo, &copia, pittore, w);
        return;
    }
    QProxyStyle::drawComplexControl(controllo, opzione, pittore, w);
}

int StileCasa::pixelMetric(PixelMetric misura, const QStyleOption *opzione, const QWidget *w) const {
    // Room for the ring around what a list shows.
    if (misura == PM_DefaultFrameWidth && qobject_cast<const QAbstractScrollArea *>(w) != nullptr)
        return 2;
    return QProxyStyle::pixelMetric(misura, opzione, w);
}

int StileCasa::styleHint(StyleHint suggerimento, const QStyleOption *opzione, const QWidget *w,
                         QStyleHintReturn *dati) const {
    // Mnemonics are seen from the start: who doesn't know them can't look for them.
    if (suggerimento == SH_UnderlineShortcut)
        return 1;
    return QProxyStyle::styleHint(suggerimento, opzione, w, dati);
}

} // namespace zuvora
