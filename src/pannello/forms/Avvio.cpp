#include "pannello/forms/Avvio.h"

#include "shell/host/Dialoghi.h"
#include "shell/host/Piattaforma.h"
#include "shell/store/EngineError.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

int fermati(const Ambiente &ambiente, const EngineError &e) {
    ambiente.dialoghi.messaggio(nullptr, Dialoghi::Icona::Critica, u"ATTENZIONE"_s,
                                testoErrore(e, u"Il programma viene chiuso. Nessun dato è stato modificato."_s));
    return 1;
}

} // namespace

int eseguiProgramma(const Ambiente &ambiente, std::vector<VoceMenu> voci, const QUrl &sito) {
    if (ambiente.piattaforma.altraIstanza()) {
        ambiente.dialoghi.messaggio(nullptr, Dialoghi::Icona::Critica, u"ATTENZIONE"_s,
                                    u"Zuvora-Modulo Impostazione risulta già in esecuzione sulla macchina !"_s);
        return 0;
    }
    ambiente.valori.PercorsoApplicazione = ambiente.piattaforma.cartellaEseguibile();
    std::unique_ptr<SplasModule> pannello;
    try {
        pannello = std::make_unique<SplasModule>(ambiente, std::move(voci), sito);
    } catch (const EngineError &e) {
        return fermati(ambiente, e);
    }
    if (pannello->ControllaVersione())
        return 0;
    pannello->show();
    return QApplication::exec();
}

} // namespace zuvora
