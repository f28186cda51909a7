#include "content/forms/GuidaYouTube.h"

namespace zuvora {
namespace {

constexpr int SopraLaForm = 0; // twips
constexpr int FuoriVista = 6120;
constexpr int Deposito = 5880; // where it is kept until it is first asked for

} // namespace

GuidaYouTube::GuidaYouTube(QWidget *form) : GroupBox(form, "GB2", "", {120, Deposito, 9105, 5295}) {
    setAutoFillBackground(true);
    setEnabled(false);
}

// Behind the open panel, and outside the form, nothing takes the focus.
void GuidaYouTube::setAperta(bool mostrata) {
    setTop(mostrata ? SopraLaForm : FuoriVista);
    const auto fratelli = parentWidget()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *fratello : fratelli)
        if (fratello != this)
            fratello->setEnabled(!mostrata);
    setEnabled(mostrata);
    raise();
    if (mostrata)
        PushButton1.setFocus();
}

} // namespace zuvora
