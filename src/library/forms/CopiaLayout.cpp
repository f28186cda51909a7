#include "library/forms/CopiaLayout.h"

#include "library/logic/CopiaLogica.h"
#include "library/logic/SceltaLogica.h"

namespace zuvora {
namespace {

constexpr int passoRiga = 240; // twips
constexpr int ultimaSorgente = 10;
constexpr int ultimaDestinazione = 9;

template <class Numero>
std::unique_ptr<RadioButton> bottone(QWidget *padre, const char *nome, int n, Numero numero, Posto p) {
    p.top += passoRiga * n;
    return std::make_unique<RadioButton>(padre, nome, nomeLinea(numero(n)).toUtf8().constData(), p);
}

QFont inGrassetto(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace

CopiaLayout::CopiaLayout(const Ambiente &contesto, QWidget *padre)
    : Form(contesto, "CopiaLayout", "Funzione di Copia Layout", {5925, 5550}, padre),
      L0("L0", 0, ultimaSorgente,
         [this](int n, const char *nome) {
             return bottone(&GroupBox1, nome, n, layoutSorgente, {480, 720, n == ultimaSorgente ? 1575 : 1215, 255});
         }),
      L1("L1", 0, ultimaDestinazione, [this](int n, const char *nome) {
          return bottone(&GroupBox2, nome, n, layoutDestinazione, {240, 600, 1140, 255});
      }) {
    for (Label *titolo : {&Label1_0, &Label1_1, &Label3(0), &Label3(1)})
        titolo->setFontBase(inGrassetto(font()));
    m_sorgente.setScelto(0);
    m_destinazione.setScelto(0);
    Btn(1).setRuolo(Ruolo::Principale);
    quando(m_sorgente, &GruppoRadio::cambiato, [this](int n) { Label3(0).setCaption(nomeLinea(layoutSorgente(n))); });
    quando(m_destinazione, &GruppoRadio::cambiato,
           [this](int n) { Label3(1).setCaption(nomeLinea(layoutDestinazione(n))); });
    alClic(Btn(1), [this] { copia(); });
    alClic(Btn(0), [this] { scarica(); });
    L0(0).setFocus(); // the stored choices can't be copied: one of them has to change first
}

void CopiaLayout::ImpostaSorgente() {
    LayoutSorgente = layoutSorgente(m_sorgente.scelto());
}

void CopiaLayout::ImpostaDestinazione() {
    LayoutDestinazione = layoutDestinazione(m_destinazione.scelto());
}

void CopiaLayout::copia() {
    ImpostaSorgente();
    ImpostaDestinazione();
    const EsitoCopia esito = copiaLayout(cartella(), LayoutSorgente, LayoutDestinazione);
    avvisa(esito.messaggio.riga0, esito.messaggio.riga1);
}

} // namespace zuvora
