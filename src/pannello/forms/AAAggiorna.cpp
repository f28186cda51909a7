#include "pannello/forms/AAAggiorna.h"

#include "pannello/logic/Versione.h"
#include "shell/store/EngineError.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

AAAggiorna::AAAggiorna(const Ambiente &contesto, const QString &versione, QWidget *padre)
    : Form(contesto, "AAAggiorna", "Aggiornamento software  -  Zuvora", {5775, 3210}, padre),
      text1("text1", 0, 0, [this](int, const char *nome) {
          return std::make_unique<Edit>(this, nome, Posto{3240, 795, 975, 285}, "3.0.0");
      }) {
    QFont titolo = font();
    titolo.setPointSizeF(12);
    titolo.setBold(true);
    Label3(0).setFontBase(titolo);
    text1(0).setText(versione);
    text1(0).setReadOnly(true);
    command1(0).setRuolo(Ruolo::Principale);
    alClic(command1(0), [this] { aggiorna(); });
    alClic(command1(5), [this] { scarica(); });
    command1(5).setFocus();
}

void AAAggiorna::aggiorna() {
    if (!versioneConosciuta(text1(0).text()))
        return;
    if (!copiaConservata())
        return;
    AggiornaArchivio(cartella());
    scriviVersioneCorrente(cartella());
    scarica();
}

// False when there is no copy and the user doesn't want to go on without one.
bool AAAggiorna::copiaConservata() {
    try {
        conservaArchivio(cartella(), text1(0).text());
    } catch (const EngineError &) {
        return conferma(u"La copia dell'archivio di prima non si può fare."_s, u"Aggiornare senza copia ?"_s);
    }
    return true;
}

} // namespace zuvora
