#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "shell/host/MsgForm.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(MsgForm, IlSegnoDiceSeEAndata) {
    for (const char *fatto : {"Salvataggio effettuato !", "Memorizzazione e Copia effettuate !", "Voce cancellata !",
                              "PlayList predefinita memorizzata !", "Numero Modificato !"})
        EXPECT_EQ(tonoDi(QString::fromUtf8(fatto)), Tono::Riuscita) << fatto;
    for (const char *rifiuto :
         {"Inserire i dati prima di salvare !", "Percorso TOTEM non impostato o TOTEM non raggiungibile !",
          "Voce già presente in archivio !", "Impossibile cancellare Immagini", "La playlist non è stata salvata !"})
        EXPECT_EQ(tonoDi(QString::fromUtf8(rifiuto)), Tono::Rifiuto) << rifiuto;
}

TEST(MsgForm, UnMotivoLungoSiLeggeTuttoEUnoBreveStaAlSuoPosto) {
    InstallazioneProva i;
    const QString lungo =
        u"Copia interrotta: scritte 12 righe su 70. L'archivio è occupato da un altro programma, che non "
        "lo ha lasciato nel tempo previsto."_s;
    MsgForm form(i.ambiente, lungo, lungo, false, nullptr);
    form.show();
    EXPECT_EQ(didascalieTagliate(form), QStringList());
    const QRect prima = trova<Label>(form, "Label2(0)").geometry();
    const QRect seconda = trova<Label>(form, "Label2(1)").geometry();
    EXPECT_LT(prima.bottom(), seconda.top());
    EXPECT_LT(seconda.bottom(), trova<Button>(form, "PB1(0)").geometry().top());

    MsgForm breve(i.ambiente, u"Salvataggio effettuato !"_s, u"Due."_s, false, nullptr);
    EXPECT_EQ(trova<Label>(breve, "Label2(1)").Top(), 2400);
}

} // namespace
} // namespace zuvora
