// The program: look, platform and dialogs, then the forms of the composition.
#include "Composizione.h"
#include "pannello/forms/Avvio.h"
#include "shell/host/AiutoF1.h"
#include "shell/host/QtDialoghi.h"
#include "shell/host/QtPiattaforma.h"
#include "shell/host/Stile.h"

#include <QApplication>

using namespace zuvora;

int main(int argc, char *argv[]) {
    QApplication applicazione(argc, argv);
    preparaAspetto(applicazione);
    ValoriCondivisi valori;
    QtDialoghi dialoghi;
    QtPiattaforma piattaforma("zuvora-modulo-impostazione");
    const Ambiente ambiente{valori, dialoghi, piattaforma};
    AiutoF1 aiuto(ambiente);
    applicazione.installEventFilter(&aiuto);
    return eseguiProgramma(ambiente, vociDelPannello(), QUrl(QStringLiteral(ZUVORA_SITO)));
}
