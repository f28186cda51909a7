#include "content/forms/Form3.h"

#include "shell/host/Tastiera.h"
#include "shell/store/EngineError.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

Form3::Form3(const Ambiente &contesto, const QString &host, QWidget *padre)
    : Form(contesto, "Form3", "Impostazione Meteo per FrontEnd", {11580, 6255}, padre), m_indirizzo(host) {
    grid.setAccessibleName(u"Comuni"_s);
    grid.lega(Data2);
    quando(Text4, &QLineEdit::textChanged, [this] { elenca(sorgenteComuni(Text4.text())); });
    alClic(CBT_3, [this] { prova(); });
    quando(grid, &Grid::attivato, [this] { prova(); });
    CBT_2.setRuolo(Ruolo::Principale);
    alClic(CBT_2, [this] { salva(); });
    alClic(CBT_0, [this] { scarica(); });
    bottoneDi(Text4, CBT_3); // what was searched is tried
    Text4.setFocus();
    // Without the towns a code can still be typed.
    proteggi([this] { elenca(elencoComuni.toString()); });
    proteggi([this] { riempi(); });
}

void Form3::riempi() {
    const MeteoScelto scelto = leggiMeteo(cartella());
    FE1.setText(scelto.MeteoCode);
    if (scelto.meteo)
        wb1.vai(*scelto.meteo);
}

// Each key searches: what hinders all of them is told once.
void Form3::elenca(const QString &sorgente) {
    try {
        apri(Data2, cartella(), sorgente);
        m_elencoGuasto = false;
    } catch (const EngineError &) {
        if (!std::exchange(m_elencoGuasto, true))
            throw;
    }
}

void Form3::prova() {
    if (grid.Rows() == 0)
        return;
    FE1.setText(testoDi(Data2.Recordset()[u"Codice"].Value(), {}));
    wb1.vai(m_indirizzo.di(FE1.text()));
}

void Form3::salva() {
    const QString codice = FE1.text();
    if (!eCodiceComune(codice))
        return;
    salvaMeteo(cartella(), m_indirizzo, codice);
    Text4.clear();
    avvisa(u"Impostazioni Meteo aggiornate !"_s);
}

} // namespace zuvora
