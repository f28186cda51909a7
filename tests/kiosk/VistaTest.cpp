#include "kiosk/forms/ImpoRete.h"
#include "kiosk/forms/Impostatotem.h"
#include "kiosk/forms/Impostazione.h"
#include "kiosk/forms/LayoutTotem.h"
#include "kiosk/forms/VarieImpostaTotem.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(FormDelTotem, CutNoCaptionAndNameEveryField) {
    InstallazioneProva i;
    Misura anteprima;
    Impostatotem impostatotem(i.ambiente, anteprima, nullptr);
    ImpoRete impoRete(i.ambiente, nullptr);
    Impostazione impostazione(i.ambiente, i.file(u"Totem"_s), nullptr);
    VarieImpostaTotem varie(i.ambiente, nullptr);
    for (Form *form : std::initializer_list<Form *>{&impostatotem, &impoRete, &impostazione, &varie}) {
        form->show();
        EXPECT_EQ(didascalieTagliate(*form), QStringList()) << form->objectName().toStdString();
        EXPECT_EQ(campiSenzaNome(*form), QStringList()) << form->objectName().toStdString();
        fotografa(*form);
        form->hide();
    }
}

} // namespace
} // namespace zuvora
