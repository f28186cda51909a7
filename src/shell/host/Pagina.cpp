#include "shell/host/Pagina.h"

#include "shell/host/Form.h"
#include "shell/host/Tastiera.h"

namespace zuvora {
namespace {

constexpr int larghezzaPagina = 5535;
constexpr int leftAperta = 2880;
constexpr int topNascosta = 12000;

} // namespace

Pagina::Pagina(const Apertura &apertura, const char *nome, int altezza, int topAperta)
    : GroupBox(apertura.padre, nome, "", {leftAperta, topNascosta, larghezzaPagina, altezza}),
      Schermata(apertura.ambiente, static_cast<QWidget &>(*this)), m_topAperta(topAperta) {
    setAutoFillBackground(true);
    hide();
}

void Pagina::nascondi() {
    setTop(topNascosta);
    hide();
}

void Pagina::apri() {
    riempi();
    nominaCampi(this);
    sposta(leftAperta, m_topAperta);
    raise();
    show();
    ordinaFuochi(*window());
    if (QWidget *primo = fuocoIniziale())
        primo->setFocus(Qt::TabFocusReason);
}

QWidget *Pagina::fuocoIniziale() {
    return primoFuoco(*this);
}

} // namespace zuvora
