#pragma once

#include "shell/disegni/Disegni.h"
#include "shell/host/Apertura.h"
#include "shell/host/Pagina.h"

#include <QStringView>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace zuvora {

using ApriForm = std::function<void(const Apertura &)>; // shows the form modally, returns when it is closed
using ApriPagina = std::function<std::unique_ptr<Pagina>(const Apertura &)>;

// A button of the main panel's menu. With a title it first changes the page area's title and hides the pages.
struct VoceMenu {
    const char *nome; // objectName
    int top;          // twips, inside the menu
    const char *didascalia;
    Disegno disegno; // where it finds room before the caption
    std::optional<QStringView> titolo;
    bool soloPrincipale; // no other installation may press it
    std::variant<ApriForm, ApriPagina> apri;
};

} // namespace zuvora
