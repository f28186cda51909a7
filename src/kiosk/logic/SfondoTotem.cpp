#include "kiosk/logic/SfondoTotem.h"

#include "shell/immagini/LetturaImmagine.h"
#include "shell/logic/Domanda.h"
#include "shell/logic/Percorsi.h"

#include <QFileInfo>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// A large picture on a slow network takes its time; one that is not here by then is given up.
constexpr std::chrono::seconds attesaImmagine{20};

QString cartellaDi(const QString &scritto) {
    return scritto.left(std::max(scritto.lastIndexOf(u'\\'), scritto.lastIndexOf(u'/')));
}

SfondoTotem decodifica(const QString &percorso, const QSize &finestra) {
    if (!QFileInfo(percorso).isReadable())
        return {EsitoSfondo::Inaccessibile, {}, {}};
    ImmagineLetta letta = leggiRitaglio(percorso, finestra);
    if (letta.immagine.isNull())
        return {EsitoSfondo::NonLeggibile, {}, letta.motivo};
    return {EsitoSfondo::Caricato, std::move(letta.immagine), {}};
}

} // namespace

SfondoTotem leggiSfondo(const Percorsi &percorsi, const QString &scritto, const QSize &finestra,
                        const std::function<void()> &intanto) {
    if (scritto.isEmpty())
        return {};
    const auto esame = percorsi.chiediEAspetta(scritto);
    if (esame.muto)
        return {EsitoSfondo::Inaccessibile, {}, {}};
    if (esame.specie == Specie::Manca) {
        const auto cartella = percorsi.chiediEAspetta(cartellaDi(scritto));
        const bool esiste = cartella.specie == Specie::Cartella;
        return {esiste ? EsitoSfondo::Mancante : EsitoSfondo::Inaccessibile, {}, {}};
    }
    if (esame.specie != Specie::File)
        return {EsitoSfondo::Inaccessibile, {}, {}};
    const std::function<SfondoTotem()> lettura = [=] { return decodifica(esame.percorso, finestra); };
    QObject attesa; // which runs the events
    if (intanto)
        QTimer::singleShot(0, &attesa, intanto);
    return chiediEAspetta(lettura, attesaImmagine).value_or(SfondoTotem{EsitoSfondo::Inaccessibile, {}, {}});
}

QString fraseSfondo(const SfondoTotem &sfondo, const QString &scritto) {
    switch (sfondo.esito) {
    case EsitoSfondo::Inaccessibile:
        return u"Lo sfondo non è raggiungibile e non viene mostrato: "_s + scritto;
    case EsitoSfondo::Mancante:
        return u"Lo sfondo non esiste più: la schermata non è stata disposta. File: "_s + scritto;
    case EsitoSfondo::NonLeggibile:
        return u"Lo sfondo non si può mostrare: la schermata non è stata disposta. %1 File: %2"_s.arg(sfondo.motivo,
                                                                                                      scritto);
    case EsitoSfondo::Nessuno:
    case EsitoSfondo::Caricato:
        break;
    }
    return {};
}

bool fermaDisposizione(EsitoSfondo esito) {
    return esito == EsitoSfondo::Mancante || esito == EsitoSfondo::NonLeggibile;
}

} // namespace zuvora
