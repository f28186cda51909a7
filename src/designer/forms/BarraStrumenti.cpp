#include "designer/forms/BarraStrumenti.h"

#include "designer/forms/PittoreElementi.h"
#include "designer/logic/Finestra.h"
#include "shell/disegni/Disegni.h"
#include "shell/disegni/Tavolozza.h"

#include <QPainter>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr Posto postoGruppo{120, 480, 2655, 4575}; // twips
constexpr QSize iconaBottone{28, 28};              // pixels
constexpr int distacco = 3;                        // pixels between the toolbox and the caption
constexpr QMargins marginiDidascalia{7, 2, 7, 2};

std::vector<int> indiciBottoni() {
    std::vector<int> indici;
    for (const BottoneStrumenti &b : bottoniStrumenti())
        indici.push_back(b.indice);
    return indici;
}

std::unique_ptr<Button> creaBottone(QWidget *padre, int indice, const char *nome) {
    const BottoneStrumenti &b = *bottoneStrumenti(indice);
    auto bottone = std::make_unique<Button>(padre, nome, "", Posto{b.left, b.top, b.width, altezzaBottone});
    bottone->setIcon(icona(b.disegno));
    bottone->setIconSize(iconaBottone);
    bottone->setCaption(b.didascalia.toString());
    bottone->setToolTip(b.suggerimento.toString());
    bottone->setAccessibleName((b.didascalia.isEmpty() ? b.suggerimento : b.didascalia).trimmed().toString());
    return bottone;
}

// A tick on a button's corner, or how many: what the button places stands on the canvas.
class Segno final : public QWidget {
public:
    explicit Segno(Button &bottone) : QWidget(&bottone), m_bottone(bottone) {
        setObjectName(u"Segno"_s);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }
    void mostra(int quanti, bool conta) {
        m_testo = conta ? QString::number(quanti) : QString();
        m_bottone.setAccessibleDescription(quanti == 0 ? QString()
                                           : conta     ? u"%1 sulla schermata"_s.arg(quanti)
                                                       : u"Già sulla schermata"_s);
        const int lato = fontMetrics().height() + 2;
        resize(std::max(lato, fontMetrics().horizontalAdvance(m_testo) + 6), lato);
        move(m_bottone.width() - width() - 1, 1);
        setVisible(quanti > 0);
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(tavolozza::bianco, 1));
        p.setBrush(tavolozza::primario);
        const QRectF fondo = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        p.drawRoundedRect(fondo, fondo.height() / 2, fondo.height() / 2);
        if (!m_testo.isEmpty()) {
            p.drawText(rect(), Qt::AlignCenter, m_testo);
            return;
        }
        p.setPen(QPen(tavolozza::bianco, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const qreal u = fondo.height() / 10;
        const QPointF c = fondo.center();
        p.drawPolyline(
            QPolygonF{c + QPointF(-2.2 * u, 0.2 * u), c + QPointF(-0.6 * u, 1.8 * u), c + QPointF(2.4 * u, -1.8 * u)});
    }

private:
    Button &m_bottone;
    QString m_testo;
};

// The grip that moves the form.
class PresaForm final : public Bersaglio {
public:
    using Bersaglio::Bersaglio;

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter p(this);
        p.fillRect(rect(), tavolozza::bianco);
        riquadra(p, rect(), tavolozza::testoTenue);
        dipingi(p, Disegno::SpostaFinestra, rect().adjusted(4, 4, -4, -4));
    }
};

QLabel *creaDidascalia(QWidget *form) {
    auto *didascalia = new QLabel(form);
    didascalia->setObjectName(u"DidascaliaForm"_s);
    didascalia->setAttribute(Qt::WA_TransparentForMouseEvents);
    didascalia->setContentsMargins(marginiDidascalia);
    didascalia->setTextFormat(Qt::PlainText);
    didascalia->setAutoFillBackground(true);
    QPalette colori = didascalia->palette();
    colori.setColor(QPalette::Window, tavolozza::primario);
    colori.setColor(QPalette::WindowText, tavolozza::bianco);
    didascalia->setPalette(colori);
    return didascalia;
}

} // namespace

BarraStrumenti::BarraStrumenti(QWidget *form, Gestore striscia, Gestore presa, Gestore altrove)
    : Bersaglio(form, u"SSPanel1"_s, std::move(altrove)), GroupBox2(this, "GroupBox2", "", postoGruppo),
      Btn("Btn", indiciBottoni(),
          [this](int indice, const char *nome) { return creaBottone(&GroupBox2, indice, nome); }),
      m_didascalia(creaDidascalia(form)) {
    setAccessibleName(u"Strumenti"_s);
    auto *Image2 = new Bersaglio(this, u"Image2"_s, std::move(striscia));
    Image2->setGeometry(rettangoloTela(strisciaStrumenti));
    Image2->setToolTip(u"Sposta gli strumenti"_s);
    auto *Image3 = new PresaForm(this, u"Image3"_s, std::move(presa));
    Image3->setGeometry(rettangoloTela(presaForm));
    Image3->setCursor(Qt::SizeAllCursor);
    Image3->setToolTip(u"Sposta la schermata"_s);
    sposta({postoStrumenti.left, postoStrumenti.top});
}

void BarraStrumenti::segna(int indice, int quanti) {
    Button &bottone = Btn(indice);
    auto *segno = static_cast<Segno *>(bottone.findChild<QWidget *>(u"Segno"_s));
    if (segno == nullptr)
        segno = new Segno(bottone);
    segno->mostra(quanti, bottoneStrumenti(indice)->comando != Comando::PiazzaElemento);
}

void BarraStrumenti::sposta(PuntoTwips posto) {
    m_posto = posto;
    setGeometry(rettangoloTela({posto.left, posto.top, postoStrumenti.width, postoStrumenti.height}));
    disponiDidascalia();
}

void BarraStrumenti::mostraDidascalia(const QString &testo) {
    m_didascalia->setText(testo);
    disponiDidascalia();
}

// Above the toolbox; below it where there is no room above.
void BarraStrumenti::disponiDidascalia() {
    const QSize serve = m_didascalia->sizeHint();
    const int sopra = y() - distacco - serve.height();
    const int sinistra = std::clamp(x(), 0, std::max(0, parentWidget()->width() - serve.width()));
    m_didascalia->setGeometry({{sinistra, sopra >= 0 ? sopra : y() + height() + distacco}, serve});
}

void BarraStrumenti::impila(QWidget *sopra) {
    stackUnder(sopra);
    m_didascalia->stackUnder(sopra);
}

void BarraStrumenti::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.fillRect(rect(), tavolozza::sfondo);
    const QRect striscia = rettangoloTela(strisciaStrumenti).intersected(rect());
    p.fillRect(striscia, tavolozza::primarioChiaro);
    riquadra(p, rect(), tavolozza::testoTenue);
    dipingi(p, Disegno::Presa, striscia.adjusted(0, 4, -striscia.width() / 3, -4));
}

} // namespace zuvora
