// zuvora-foto INSTALLATION FOLDER: draws every form and page of the program, and sheets of its pictures. Forms are
// found through the menu's table; one that only another form opens has a line below.
#include "Composizione.h"
#include "foto/Fogli.h"
#include "foto/Fotografo.h"
#include "kit/FintaPiattaforma.h"
#include "pannello/forms/AAAggiorna.h"
#include "pannello/forms/SplasModule.h"
#include "shell/host/QtDialoghi.h"
#include "shell/host/Stile.h"

#include <QApplication>
#include <cstdio>

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

namespace {

// A form, and the button of it that opens the next one.
const QList<foto::Passo> passi{
    {"SceltaLayout", "PPBB1(2)"},
    {"SceltaLayout", "PB1(4)"},
    {"SceltaLayout", "PB1(3)"},
    {"Form1", "Btn(6)"},
    {"Form1", "Btn(7)"},
    {"Form1", "Image1(1)"},
    {"Form1", "WB2"},
    {"Impostatotem", "PercorsoTotem"},
    {"Impostatotem", "ImpostaSfondototem"},
    {"Impostatotem", "Crea"},
    {"VarieImpostaTotem", "PB1(3)"},
    {"ImpostaFoto", "SalvaNuovo"},
    {"UtentiServizi", "ctButton2(1)"},
    {"UtentiServizi", "ctButton2(2)"},
    {"SplasModule", "btnRadio(3)"},
    {"SplasModule", "Image1(0)"},
    {"SplasModule", "PB1(0)"}, // the last of the panel's: its exit form
};

} // namespace

int main(int argc, char *argv[]) {
    QApplication applicazione(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc != 3) {
        std::fprintf(stderr, "Uso: zuvora-foto INSTALLAZIONE CARTELLA\n");
        return 2;
    }
    preparaAspetto(applicazione);
    const QDir cartella(QString::fromLocal8Bit(argv[2]));
    cartella.mkpath(u"."_s);
    ValoriCondivisi valori;
    valori.PercorsoApplicazione = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    QtDialoghi dialoghi; // the platform's dialogs are drawn as well
    FintaPiattaforma piattaforma;
    piattaforma.cartella = valori.PercorsoApplicazione;
    const Ambiente ambiente{valori, dialoghi, piattaforma};

    foto::disegnaFogli(cartella);
    foto::disegnaCatalogo(valori.PercorsoApplicazione, cartella);
    auto voci = vociDelPannello();
    QStringList bottoni;
    for (const VoceMenu &voce : voci)
        bottoni += QString::fromLatin1(voce.nome);
    SplasModule pannello(ambiente, std::move(voci), QUrl(u"https://www.zuvora.example/"_s));
    AAAggiorna(ambiente, u"3.1.9"_s, nullptr).grab().save(cartella.filePath(u"AAAggiorna.png"_s));
    pannello.show();
    const foto::Fotografo fotografo(pannello, bottoni, passi, cartella);
    QApplication::exec();
    for (const QString &passo : fotografo.mancanti())
        std::fprintf(stderr, "Non c'è il bottone: %s\n", qPrintable(passo));
    return fotografo.mancanti().isEmpty() ? 0 : 1;
}
