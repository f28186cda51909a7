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

// A second start brings up what is there; a form that stands over the panel comes with it.
void vieniDavanti(QWidget &pannello) {
    QWidget *modale = QApplication::activeModalWidget();
    pannello.setWindowState(pannello.windowState() & ~Qt::WindowMinimized);
    for (QWidget *w : {&pannello, modale == nullptr ? &pannello : modale}) {
        w->raise();
        w->activateWindow();
    }
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
    ambiente.piattaforma.setAllaSecondaIstanza([&pannello] { vieniDavanti(*pannello); });
    pannello->show();
    return QApplication::exec();
}

} // namespace zuvora
