#pragma once

#include <QStringView>
#include <optional>
#include <span>

namespace zuvora {

// A button of the main panel's menu. `nome` is its objectName and the key under which the composition root gives what
// it opens; with a title the button first changes the page area's title and hides the pages.
struct VoceMenu {
    const char *nome;
    int top; // twips, inside the menu
    const char *didascalia;
    std::optional<QStringView> titolo;
};

std::span<const VoceMenu> vociMenu();

} // namespace zuvora
