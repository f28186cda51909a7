#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "shell/host/MsgForm.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

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
    fotografa(form, u"MsgForm-lungo"_s);

    MsgForm breve(i.ambiente, u"Salvataggio effettuato !"_s, u"Due."_s, false, nullptr);
    EXPECT_EQ(trova<Label>(breve, "Label2(1)").Top(), 2400);
}

} // namespace
} // namespace zuvora
