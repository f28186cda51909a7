#include "shell/forms/Pagina.h"

#include "shell/host/Form.h"

namespace zuvora {
namespace {

constexpr int LarghezzaPagina = 5535;
constexpr int LeftAperta = 2880;
constexpr int TopNascosta = 12000;

} // namespace

Pagina::Pagina(QWidget *padre, const char *nome, int altezza, int topAperta)
    : GroupBox(padre, nome, "", {LeftAperta, TopNascosta, LarghezzaPagina, altezza}), m_topAperta(topAperta) {
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
}

} // namespace zuvora
