// The program: look, platform and dialogs, then the forms of the composition.
#include "Composizione.h"
#include "pannello/forms/Avvio.h"
#include "shell/host/AiutoF1.h"
#include "shell/host/CarattereCasa.h"
#include "shell/host/QtDialoghi.h"
#include "shell/host/QtPiattaforma.h"
#include "shell/host/Stile.h"

#include <QApplication>

using namespace zuvora;

int main(int argc, char *argv[]) {
    const auto caratteri = avviaCaratteri();
    QApplication applicazione(argc, argv);
    caratteri.wait();
    preparaAspetto(applicazione);
    const auto elenco = elencaCaratteri();
    ValoriCondivisi valori;
    QtDialoghi dialoghi;
    QtPiattaforma piattaforma("zuvora-modulo-impostazione");
    const Ambiente ambiente{valori, dialoghi, piattaforma};
    AiutoF1 aiuto(ambiente);
    applicazione.installEventFilter(&aiuto);
    return eseguiProgramma(ambiente, vociDelPannello(), QUrl(QStringLiteral(ZUVORA_SITO)));
}
