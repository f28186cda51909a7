#include "shell/host/ImmagineIllegibile.h"

#include "shell/host/Attesa.h"
#include "shell/host/MsgForm.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

bool avvisaSeIllegibile(const Ambiente &ambiente, const QString &percorso, QWidget *padre, Lettura uso) {
    constexpr QSize prova{64, 64}; // the file is read whole all the same
    const auto letta = aspettaEsito<ImmagineLetta>(
        ambiente, padre, u"Lettura dell'immagine in corso..."_s, [percorso, prova, uso](Avanzamento &a) {
            const QString difetto = uso == Lettura::Ritaglio ? difettoImmagine(percorso, uso) : QString();
            return difetto.isEmpty() ? leggi(percorso, prova, Riduzione::Riempi, &a) : ImmagineLetta{{}, difetto};
        });
    if (letta && !letta->motivo.isEmpty())
        mostraMessaggio(ambiente, padre, u"Impossibile caricare l'immagine scelta !"_s, letta->motivo);
    return !letta || letta->immagine.isNull();
}

} // namespace zuvora
