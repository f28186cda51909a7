#include "shell/host/Spunta.h"

#include "shell/disegni/Tavolozza.h"
#include "shell/host/Controllo.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QTimer>
#include <algorithm>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace zuvora {
namespace {

constexpr auto durata = 2s;
constexpr int diametro = 11; // pixels
constexpr int distanza = 2;
constexpr auto nomeSpunta = "spunta"_L1;

void descrivi(QWidget &controllo, const QString &testo) {
    controllo.setAccessibleDescription(testo);
    QAccessibleEvent evento(&controllo, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&evento);
}

// Beside the caption of a radio button or a check box; else in the corner, where few captions reach.
QPoint angolo(const QWidget &controllo) {
    const int destra = controllo.width() - diametro - distanza;
    const auto *didascalia = dynamic_cast<const ConDidascalia *>(&controllo);
    const auto *bottone = qobject_cast<const QAbstractButton *>(&controllo);
    if (didascalia == nullptr || bottone == nullptr || !bottone->isCheckable())
        return {destra, distanza};
    const int inizio = controllo.width() - didascalia->spazioDidascalia().width();
    const int fine = inizio + misuraDidascalia(bottone->text(), controllo.font()).width() + 2 * distanza;
    return {std::min(fine, destra), (controllo.height() - diametro) / 2};
}

// Lies over the control that it is a child of; a further save begins its time anew.
class Spunta : public QWidget {
public:
    explicit Spunta(QWidget &controllo) : QWidget(&controllo), m_prima(controllo.accessibleDescription()) {
        setObjectName(nomeSpunta);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(QRect(angolo(controllo), QSize(diametro, diametro)));
        m_fine.setSingleShot(true);
        connect(&m_fine, &QTimer::timeout, this, [this] {
            if (parentWidget()->accessibleDescription() == detto()) // nobody has described it meanwhile
                descrivi(*parentWidget(), m_prima);
            deleteLater();
        });
        show();
    }
    void comincia() {
        m_fine.start(durata);
        descrivi(*parentWidget(), detto());
    }

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter pittore(this);
        pittore.setRenderHint(QPainter::Antialiasing);
        pittore.setPen(QPen(tavolozza::bianco, 1));
        pittore.setBrush(tavolozza::riuscita);
        pittore.drawEllipse(QRectF(rect()));
        QPainterPath segno(QPointF(2.7, 5.8));
        segno.lineTo(4.8, 7.8);
        segno.lineTo(8.4, 3.4);
        pittore.setBrush(Qt::NoBrush);
        pittore.setPen(QPen(tavolozza::bianco, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pittore.drawPath(segno);
    }

private:
    static QString detto() { return u"Salvato"_s; }
    QString m_prima; // accessible description without the tick
    QTimer m_fine;
};

Spunta *spuntaDi(const QWidget &controllo) {
    return static_cast<Spunta *>(controllo.findChild<QWidget *>(nomeSpunta, Qt::FindDirectChildrenOnly));
}

} // namespace

void mostraSpunta(QWidget &controllo) {
    Spunta *spunta = spuntaDi(controllo);
    if (spunta == nullptr)
        spunta = new Spunta(controllo);
    spunta->comincia();
}

bool conSpunta(const QWidget &controllo) {
    return spuntaDi(controllo) != nullptr;
}

} // namespace zuvora
