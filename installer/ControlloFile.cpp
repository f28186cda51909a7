#include "installer/ControlloFile.h"

#include "shell/immagini/LetturaImmagine.h"
#include "shell/logic/Percorsi.h"

#include <QFileInfo>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

QString difettoDi(const QString &scritto, Atteso atteso) {
    const Percorsi percorsi;
    if (!percorsi.nativo(scritto))
        return {};
    const auto esame = percorsi.esamina(scritto);
    const bool cartella = atteso == Atteso::Cartella;
    const bool immagine = atteso == Atteso::Immagine || atteso == Atteso::SfondoTotem;
    if (esame.specie != (cartella ? Specie::Cartella : Specie::File))
        return u"manca %1 %2"_s.arg(cartella ? u"la cartella"_s : u"il file"_s, scritto);
    const QFileInfo info(esame.percorso);
    if (!info.isReadable())
        return u"mancano i permessi per leggere %1"_s.arg(scritto);
    if ((atteso == Atteso::NonVuoto || immagine) && info.size() == 0)
        return u"il file %1 è vuoto"_s.arg(scritto);
    const Lettura uso = atteso == Atteso::SfondoTotem ? Lettura::Ritaglio : Lettura::Ridotta;
    const QString motivo = immagine ? difettoImmagine(esame.percorso, uso) : QString();
    return motivo.isEmpty() ? QString() : u"%1: %2"_s.arg(scritto, motivo);
}

} // namespace zuvora::installa
