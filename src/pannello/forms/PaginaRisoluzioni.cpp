#include "pannello/forms/PaginaRisoluzioni.h"

#include "pannello/logic/Configurazione.h"
#include "shell/host/Piattaforma.h"
#include "shell/logic/Risoluzioni.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr Posto PostiRB1[] = {
    {1440, 720, 3000, 255}, {1440, 960, 3000, 255}, {1440, 1200, 3000, 255}, {1440, 1440, 3480, 255}};
constexpr int leftUnMonitor = 1680;
constexpr int leftPrimo = 600;
constexpr int leftSecondo = 2760;

// Where the desktop is scaled, the size that the screen has, not the one that programs reckon with.
QString misureDi(const clsMonitor &m, const SistemaMonitor &sistema) {
    const auto info = sistema.GetMonitorInfo(m.Handle);
    const double scala = info ? info->scala : 1;
    return QString::number(std::lround(m.Width * scala)) + u" x "_s + QString::number(std::lround(m.Height * scala));
}

} // namespace

PaginaRisoluzioni::PaginaRisoluzioni(const Apertura &apertura)
    : Pagina(apertura, "BoxImpostazioni(0)"), m_scelta(apertura.cambiaRisoluzione), m_risoluzione(apertura.risoluzione),
      RB1("RB1", 0, int(risoluzioni.size()) - 1, [this](int i, const char *nome) {
          const QByteArray didascalia = risoluzioni[std::size_t(i)].didascalia.toUtf8();
          return std::make_unique<RadioButton>(this, nome, didascalia.constData(), PostiRB1[i]);
      }) {
    m_scelte.setScelto(m_risoluzione - 1);
    alClic(RB1, [this](int indice) { scegli(indice); });
}

void PaginaRisoluzioni::scegli(int indice) {
    try {
        salvaRisoluzione(cartella(), indice + 1);
    } catch (...) {
        m_scelte.setScelto(m_risoluzione - 1); // the buttons go on showing what is stored, none if nothing is
        throw;
    }
    m_risoluzione = indice + 1;
    m_scelta(m_risoluzione);
    RB1(indice).spunta();
}

void PaginaRisoluzioni::riempi() {
    const SistemaMonitor &sistema = ambiente().piattaforma.monitor();
    const clsMonitors elenco(sistema);
    const auto &monitors = elenco.Monitors();
    const bool uno = monitors.size() == 1;
    QMonitor.setCaption(QString::number(monitors.size()));
    Image2.setLeft(uno ? leftUnMonitor : leftPrimo);
    Image3.setLeft(uno ? leftUnMonitor : leftSecondo);
    const bool due = monitors.size() == 2;
    // With three or more monitors the two lines can't name them all: they stay empty.
    RisM1.setCaption(uno || due ? misureDi(monitors[0], sistema) : QString());
    L1.setCaption(uno || due ? QString::number(monitors[0].left) : QString());
    RisM2.setCaption(due ? misureDi(monitors[1], sistema) : QString());
    L2.setCaption(due ? QString::number(monitors[1].left) : QString());
    for (Label *seconda : {&Label7(2), &RisM2, &L2})
        seconda->setVisible(!uno);
}

} // namespace zuvora
