#include "kiosk/logic/ArchivioTotem.h"

#include "shell/logic/Percorsi.h"
#include "shell/store/Database.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// With the 2 s that a path may be silent it makes less than the 5 s that the user waits at most.
constexpr std::chrono::milliseconds attesaApertura{2500};
constexpr std::chrono::milliseconds attesaSblocco{1000};

void provaApertura(const QString &archivio, QObject &ricevente, std::function<void(bool)> risposta) {
    chiedi<bool>([archivio] { return totemRaggiungibile(archivio); }, ricevente,
                 [risposta = std::move(risposta)](std::optional<bool> esito) { risposta(esito.value_or(false)); },
                 attesaApertura);
}

} // namespace

QString fileTotem(const Percorsi &percorsi, const QString &cartellaTotem, QStringView nome) {
    const QString scritto = percorsi.unisci(cartellaTotem, nome);
    const auto esame = percorsi.esamina(scritto);
    return esame.percorso.isEmpty() ? percorsi.nativo(scritto).value_or(scritto) : esame.percorso;
}

bool percorsoMancante(Errore numero) {
    return numero == Errore::PercorsoNonTrovato || numero == Errore::PercorsoNonValido ||
           numero == Errore::FileNonTrovato;
}

bool totemRaggiungibile(const QString &archivio) {
    try {
        Database totem = Database::OpenDatabase(archivio, attesaSblocco);
        totem.Execute(u"Select * from [DatiDaStampareIMP]"_s);
    } catch (const EngineError &e) {
        return !percorsoMancante(e.numero());
    }
    return true;
}

void provaTotem(const Percorsi &percorsi, const QString &cartellaTotem, QObject &ricevente,
                std::function<void(bool)> risposta) {
    const QString scritto = percorsi.unisci(cartellaTotem, nomi::archivioTotem);
    percorsi.chiedi(scritto, ricevente,
                    [&ricevente, risposta = std::move(risposta)](const Percorsi::Esame &esame) mutable {
                        if (esame.specie == Specie::Manca)
                            risposta(false);
                        else
                            provaApertura(esame.percorso, ricevente, std::move(risposta));
                    });
}

EngineError totemMuto() {
    return {Errore::DiscoRete, u"Il Totem non risponde: l'operazione non è stata confermata. Controllare il "
                               "collegamento di rete e rileggere i dati prima di riprovare."_s};
}

} // namespace zuvora
