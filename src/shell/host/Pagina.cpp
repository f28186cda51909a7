#include "shell/host/Pagina.h"

#include "shell/host/Form.h"
#include "shell/host/Tastiera.h"

namespace zuvora {
namespace {

constexpr int LarghezzaPagina = 5535;
constexpr int LeftAperta = 2880;
constexpr int TopNascosta = 12000;

} // namespace

Pagina::Pagina(const Apertura &apertura, const char *nome, int altezza, int topAperta)
    : GroupBox(apertura.padre, nome, "", {LeftAperta, TopNascosta, LarghezzaPagina, altezza}),
      Schermata(apertura.ambiente, static_cast<QWidget &>(*this)), m_topAperta(topAperta) {
    setAutoFillBackground(true);
    hide();
}

void Pagina::nascondi() {
    setTop(TopNascosta);
    hide();
}

void Pagina::apri() {
    riempi();
    nominaCampi(this);
    sposta(LeftAperta, m_topAperta);
    raise();
    show();
    ordinaFuochi(*window());
    if (QWidget *primo = primoFuoco(*this))
        primo->setFocus(Qt::TabFocusReason);
}

} // namespace zuvora
