#include "designer/forms/AnteprimaTGOnline.h"

#include <QResizeEvent>
#include <QScreen>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr Misura misuraMinima{12600, 9000};
constexpr int topPiano = 600;
constexpr int margine = 120;
constexpr int altezzaTitolo = 40; // pixels left for the window's title before it is known

int twips(double misura) {
    return static_cast<int>(std::lround(misura));
}

} // namespace

AnteprimaTGOnline::AnteprimaTGOnline(const Ambiente &contesto, const Dimensione &wb2, const QString &indirizzo,
                                     Accettata accettata, QWidget *padre)
    : Form(contesto, "AnteprimaTGOnline", "Anteprima TG Online", misuraMinima, padre), m_misura(wb2),
      m_accettata(std::move(accettata)) {
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_finestra->setObjectName(u"finestra"_s);
    m_finestra->setFrameStyle(QFrame::NoFrame);
    m_finestra->setFocusPolicy(Qt::NoFocus);
    m_finestra->setWidget(m_piano);
    Label1.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    A1.setAccessibleName(u"Larghezza"_s);
    A2.setAccessibleName(u"Altezza"_s);
    for (Edit *casella : {&A1, &A2})
        casella->setAlignment(Qt::AlignCenter);
    alClic(Allarga, [this] { passo(&AnteprimaTG::Allarga); });
    alClic(Stringi, [this] { passo(&AnteprimaTG::Stringi); });
    alClic(Alza, [this] { passo(&AnteprimaTG::Alza); });
    alClic(Abbassa, [this] { passo(&AnteprimaTG::Abbassa); });
    alClic(Accetta, [this] { accetta(); });
    alClic(Chiudi, [this] { scarica(); });
    for (Button *bottone : {&Allarga, &Stringi, &Alza, &Abbassa})
        bottone->setAutoRepeat(true);
    Accetta.setRuolo(Ruolo::Principale);
    disponi();
    WB22.vai(indirizzo);
}

void AnteprimaTGOnline::attivata() {
    mostraMisura();
}

void AnteprimaTGOnline::resizeEvent(QResizeEvent *e) {
    Form::resizeEvent(e);
    const int top = pixelDa(topPiano);
    m_finestra->setGeometry(0, top, width(), height() - top);
}

void AnteprimaTGOnline::passo(void (AnteprimaTG::*cambia)()) {
    (m_misura.*cambia)();
    disponi();
    mostraMisura();
}

void AnteprimaTGOnline::disponi() {
    const auto [larghezza, altezza] = m_misura.WB22();
    const auto [larghezzaCornice, altezzaCornice] = m_misura.GB1();
    WB22.setPosto({120, 240, twips(larghezza), twips(altezza)});
    GB1.setPosto({margine, 0, twips(larghezzaCornice), twips(altezzaCornice)});
    m_piano->resize(pixelDa(Misura{twips(larghezzaCornice) + 2 * margine, twips(altezzaCornice) + margine}));
    adattaFinestra();
}

// Only grows: under the mouse that presses a step button again and again, the window stays where it is.
void AnteprimaTGOnline::adattaFinestra() {
    const QRect schermo = screen()->availableGeometry();
    const QPoint origine = isVisible() ? geometry().topLeft() : schermo.topLeft() + QPoint(0, altezzaTitolo);
    const QSize posto(schermo.right() + 1 - origine.x(), schermo.bottom() + 1 - origine.y());
    const QSize serve(m_piano->width(), pixelDa(topPiano) + m_piano->height());
    resize(size().expandedTo(serve.boundedTo(posto)));
}

void AnteprimaTGOnline::mostraMisura() {
    A1.setText(m_misura.A1());
    A2.setText(m_misura.A2());
}

void AnteprimaTGOnline::accetta() {
    if (const auto misura = AnteprimaTG::leggi(A1.text(), A2.text())) {
        m_accettata(*misura);
        return Accetta.spunta();
    }
    const Messaggio rifiuto = AnteprimaTG::rifiuto();
    avvisa(rifiuto.riga0, rifiuto.riga1);
}

} // namespace zuvora
