#pragma once

#include <QString>
#include <functional>
#include <optional>

class QWidget;

namespace zuvora {

// What the decoration form gives back: the picture's full path, empty for none, and its plane.
struct SceltaDecorazione {
    QString percorso;
    bool secondoPiano = false; // behind the other elements
};

// What the background form may do with the canvas while it is open.
struct UsoSfondo {
    // Shows the picture on the canvas at once; an empty path clears it. False, and nothing changed, when the file isn't
    // a picture that can be loaded: the form tells the user.
    std::function<bool(const QString &percorso)> imposta;
    std::function<void()> elimina;
};

// The forms of other rooms that the canvas opens, given by whoever opens it. Each shows its form modally over `padre`
// and returns when it closes.
struct ApritoriTela {
    // For Image1(indice), 1 to 25; nothing when the user closed the form without a choice.
    std::function<std::optional<SceltaDecorazione>(QWidget *padre, int indice)> decorazione;
    std::function<void(QWidget *padre, const UsoSfondo &uso)> sfondo;
};

} // namespace zuvora
