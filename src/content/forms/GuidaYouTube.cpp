#include "content/forms/GuidaYouTube.h"

namespace zuvora {
namespace {

constexpr int sopraLaForm = 0; // twips
constexpr int fuoriVista = 6120;
constexpr int deposito = 5880; // where it is kept until it is first asked for

} // namespace

GuidaYouTube::GuidaYouTube(QWidget *form) : GroupBox(form, "GB2", "", {120, deposito, 9105, 5295}) {
    setAutoFillBackground(true);
    setEnabled(false);
}

// Behind the open panel, and outside the form, nothing takes the focus.
void GuidaYouTube::setAperta(bool mostrata) {
    setTop(mostrata ? sopraLaForm : fuoriVista);
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
