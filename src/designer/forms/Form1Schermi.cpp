// The designer's form among the screens.
#include "designer/forms/Form1.h"

#include "shell/host/Piattaforma.h"

#include <QWheelEvent>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int scattoRotella = 120; // of the wheel's own units
constexpr int bottoneSalvaPosizione = 15;
constexpr int passoRotella = 90; // pixels a notch

QList<QRect> schermi(const Piattaforma &piattaforma) {
    QList<QRect> posti;
    const clsMonitors tutti(piattaforma.monitor());
    for (const clsMonitor &m : tutti.Monitors())
        posti.append({m.left, m.top, m.Width, m.Height});
    return posti;
}

int superficie(const QRect &r) {
    return r.isEmpty() ? 0 : r.width() * r.height();
}

} // namespace

void Form1::vai(PuntoTwips posizione) {
    move(pixelVicino(posizione.left), pixelVicino(posizione.top));
}

// A form that opens where neither strip nor grip can be reached could never be brought back with the mouse.
void Form1::raggiungi() {
    const QPoint strumenti = pos() + SSPanel1.pos();
    const QList<QRect> prese{rettangoloTela(strisciaStrumenti).translated(strumenti),
                             rettangoloTela(presaForm).translated(strumenti)};
    move(x(), topRaggiungibile(geometry(), prese, schermi(ambiente().piattaforma)));
}

// Over the screen of which it covers most.
void Form1::scorriSchermata(QPoint passo) {
    const QList<QRect> tutti = schermi(ambiente().piattaforma);
    const auto schermo =
        std::ranges::max_element(tutti, {}, [this](const QRect &s) { return superficie(s.intersected(geometry())); });
    if (schermo != tutti.end() && schermo->intersects(geometry()))
        move(scorri(geometry(), *schermo, passo));
}

void Form1::wheelEvent(QWheelEvent *e) {
    if (!fermo())
        return;
    QPoint passo = e->pixelDelta().isNull() ? e->angleDelta() * passoRotella / scattoRotella : e->pixelDelta();
    if (e->modifiers().testFlag(Qt::ShiftModifier) && passo.x() == 0)
        passo = passo.transposed();
    scorriSchermata(passo);
}

void Form1::VaiSecondoSchermo() {
    const PuntoTwips posizione = zuvora::VaiSecondoSchermo(twipsDa(ambiente().piattaforma.schermo().width()));
    const QRect la(QPoint(pixelVicino(posizione.left), pixelVicino(posizione.top)), size());
    const QList<QRect> tutti = schermi(ambiente().piattaforma);
    if (std::ranges::none_of(tutti, [&](const QRect &s) { return s.intersects(la); }))
        avvisa(u"Il secondo schermo non è collegato !"_s, u"Il tasto Esc riporta qui la schermata."_s);
    vai(posizione);
}

void Form1::SalvaPosizioneFinestra() {
    zuvora::SalvaPosizioneFinestra(cartella(), {double(twipsDa(x())), double(twipsDa(y()))});
    SSPanel1.Btn(bottoneSalvaPosizione).spunta();
}

} // namespace zuvora
