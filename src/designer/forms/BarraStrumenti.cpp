#include "designer/forms/BarraStrumenti.h"

#include "designer/forms/PittoreElementi.h"
#include "designer/logic/Finestra.h"
#include "shell/disegni/Disegni.h"
#include "shell/disegni/Tavolozza.h"

#include <QPainter>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr Posto PostoGruppo{120, 480, 2655, 4575}; // twips
constexpr QSize IconaBottone{28, 28};              // pixels
constexpr int Distacco = 3;                        // pixels between the toolbox and the caption
constexpr QMargins MarginiDidascalia{7, 2, 7, 2};

struct Figura {
    int indice;
    Disegno disegno;
};
constexpr std::array figure{
    Figura{0, Disegno::TestoScorrevole},
    Figura{1, Disegno::Servizio},
    Figura{2, Disegno::Titolo},
    Figura{3, Disegno::Sottotitolo},
    Figura{4, Disegno::Data},
    Figura{5, Disegno::Ora},
    Figura{6, Disegno::Sfondo},
    Figura{7, Disegno::ColoreSfondo},
    Figura{8, Disegno::Decorazioni},
    Figura{9, Disegno::Immagini},
    Figura{10, Disegno::Video},
    Figura{12, Disegno::Meteo},
    Figura{14, Disegno::SecondoSchermo},
    Figura{15, Disegno::PosizioneFinestra},
    Figura{16, Disegno::Salva},
    Figura{17, Disegno::Chiudi},
    Figura{22, Disegno::YouTube},
};

Disegno figuraDi(int indice) {
    return std::ranges::find(figure, indice, &Figura::indice)->disegno;
}

std::vector<int> indiciBottoni() {
    std::vector<int> indici;
    for (const BottoneStrumenti &b : bottoniStrumenti())
        indici.push_back(b.indice);
    return indici;
}

std::unique_ptr<Button> creaBottone(QWidget *padre, int indice, const char *nome) {
    const BottoneStrumenti &b = *bottoneStrumenti(indice);
    auto bottone = std::make_unique<Button>(padre, nome, "", Posto{b.left, b.top, b.width, altezzaBottone});
    bottone->setIcon(icona(figuraDi(indice)));
    bottone->setIconSize(IconaBottone);
    bottone->setCaption(b.didascalia.toString());
    bottone->setToolTip(b.suggerimento.toString());
    bottone->setAccessibleName((b.didascalia.isEmpty() ? b.suggerimento : b.didascalia).trimmed().toString());
    return bottone;
}

// The grip that moves the form.
class PresaForm final : public Bersaglio {
public:
    using Bersaglio::Bersaglio;

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter p(this);
        p.setPen(tavolozza::testoTenue);
        p.setBrush(tavolozza::bianco);
        p.drawRect(rect().adjusted(0, 0, -1, -1));
        dipingi(p, Disegno::SpostaFinestra, rect().adjusted(4, 4, -4, -4));
    }
};

QLabel *creaDidascalia(QWidget *form) {
    auto *didascalia = new QLabel(form);
    didascalia->setObjectName(u"DidascaliaForm"_s);
    didascalia->setAttribute(Qt::WA_TransparentForMouseEvents);
    didascalia->setContentsMargins(MarginiDidascalia);
    didascalia->setTextFormat(Qt::PlainText);
    didascalia->setAutoFillBackground(true);
    QPalette colori = didascalia->palette();
    colori.setColor(QPalette::Window, tavolozza::primario);
    colori.setColor(QPalette::WindowText, tavolozza::bianco);
    didascalia->setPalette(colori);
    return didascalia;
}

} // namespace

BarraStrumenti::BarraStrumenti(QWidget *form, Bersaglio::Gestore striscia, Bersaglio::Gestore presa)
    : QWidget(form), GroupBox2(this, "GroupBox2", "", PostoGruppo),
      Btn("Btn", indiciBottoni(),
          [this](int indice, const char *nome) { return creaBottone(&GroupBox2, indice, nome); }),
      m_didascalia(creaDidascalia(form)) {
    setObjectName(u"SSPanel1"_s);
    setAttribute(Qt::WA_NoMousePropagation);
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
    const int sopra = y() - Distacco - serve.height();
    const int sinistra = std::clamp(x(), 0, std::max(0, parentWidget()->width() - serve.width()));
    m_didascalia->setGeometry({{sinistra, sopra >= 0 ? sopra : y() + height() + Distacco}, serve});
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
    p.setPen(tavolozza::testoTenue);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    dipingi(p, Disegno::Presa, striscia.adjusted(0, 4, -striscia.width() / 3, -4));
}

} // namespace zuvora
