#include "shell/host/Abbreviate.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// A tool tip would take what looks like it for markup.
QString suggerimento(const QString &testo) {
    return Qt::mightBeRichText(testo) ? u"<qt>"_s + testo.toHtmlEscaped() + u"</qt>"_s : testo;
}

class VoceAbbreviata : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // No wider than the list makes it, which would scroll sideways. A column may be made as wide as its texts.
    QSize sizeHint(const QStyleOptionViewItem &opzione, const QModelIndex &indice) const override {
        const QSize intera = QStyledItemDelegate::sizeHint(opzione, indice);
        return qobject_cast<const QTableView *>(opzione.widget) != nullptr ? intera : QSize(1, intera.height());
    }
    bool helpEvent(QHelpEvent *e, QAbstractItemView *vista, const QStyleOptionViewItem &opzione,
                   const QModelIndex &indice) override {
        if (e->type() != QEvent::ToolTip)
            return QStyledItemDelegate::helpEvent(e, vista, opzione, indice);
        const bool tagliata =
            QStyledItemDelegate::sizeHint(opzione, indice).width() > vista->visualRect(indice).width();
        QToolTip::showText(e->globalPos(), tagliata ? suggerimento(indice.data().toString()) : QString(), vista);
        return true;
    }
};

} // namespace

void abbreviaVoci(QAbstractItemView &vista) {
    vista.setItemDelegate(new VoceAbbreviata(&vista));
    vista.setTextElideMode(Qt::ElideMiddle);
    vista.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void abbreviaScelta(QComboBox &scelta) {
    QObject::connect(&scelta, &QComboBox::currentTextChanged, &scelta, [&scelta](const QString &testo) {
        QStyleOptionComboBox opzione;
        opzione.initFrom(&scelta);
        const int posto = scelta.style()
                              ->subControlRect(QStyle::CC_ComboBox, &opzione, QStyle::SC_ComboBoxEditField, &scelta)
                              .width();
        const int icona = scelta.iconSize().width() + 4;
        const bool tagliata = scelta.fontMetrics().horizontalAdvance(testo) > posto - icona - 2;
        scelta.setToolTip(tagliata ? suggerimento(testo) : QString());
    });
}

} // namespace zuvora
