#include "library/forms/CopiaLayout.h"

#include "library/logic/CopiaLogica.h"
#include "library/logic/SceltaLogica.h"

namespace zuvora {
namespace {

constexpr int PassoRiga = 240; // twips
constexpr int UltimaSorgente = 10;
constexpr int UltimaDestinazione = 9;

template <class Numero>
std::unique_ptr<RadioButton> bottone(QWidget *padre, const char *nome, int n, Numero numero, Posto p) {
    p.top += PassoRiga * n;
    return std::make_unique<RadioButton>(padre, nome, nomeLinea(numero(n)).toUtf8().constData(), p);
}

QFont inGrassetto(QFont font) {
    font.setBold(true);
    return font;
}

int sceltoIn(const Schiera<RadioButton> &gruppo) {
    for (const auto &[indice, bottone] : gruppo)
        if (bottone->isChecked())
            return indice;
    return 0; // one of a group is always on
}

} // namespace

CopiaLayout::CopiaLayout(const Ambiente &ambiente_, QWidget *padre)
    : Form(ambiente_, "CopiaLayout", "Funzione di Copia Layout", {5925, 5550}, padre),
      L0("L0", 0, UltimaSorgente,
         [this](int n, const char *nome) {
             return bottone(&GroupBox1, nome, n, layoutSorgente, {480, 720, n == UltimaSorgente ? 1575 : 1215, 255});
         }),
      L1("L1", 0, UltimaDestinazione, [this](int n, const char *nome) {
          return bottone(&GroupBox2, nome, n, layoutDestinazione, {240, 600, 1140, 255});
      }) {
    for (Label *titolo : {&Label1_0, &Label1_1, &Label3(0), &Label3(1)})
        titolo->setFontBase(inGrassetto(font()));
    L0(0).setChecked(true);
    L1(0).setChecked(true);
    alClic(L0, [this](int n) { Label3(0).setCaption(nomeLinea(layoutSorgente(n))); });
    alClic(L1, [this](int n) { Label3(1).setCaption(nomeLinea(layoutDestinazione(n))); });
    alClic(Btn(1), [this] { copia(); });
    alClic(Btn(0), [this] { scarica(); });
    L0(0).setFocus();
}

void CopiaLayout::ImpostaSorgente() {
    LayoutSorgente = layoutSorgente(sceltoIn(L0));
}

void CopiaLayout::ImpostaDestinazione() {
    LayoutDestinazione = layoutDestinazione(sceltoIn(L1));
}

void CopiaLayout::copia() {
    ImpostaSorgente();
    ImpostaDestinazione();
    const EsitoCopia esito = copiaLayout(cartella(), LayoutSorgente, LayoutDestinazione);
    avvisa(esito.messaggio.riga0, esito.messaggio.riga1);
}

} // namespace zuvora
