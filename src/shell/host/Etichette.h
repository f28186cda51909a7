#pragma once

#include "shell/logic/TipoEtichetta.h"

#include <QString>
#include <QtPlugin>
#include <memory>

class QWidget;

namespace zuvora {

class Dialoghi;

// The ticket designer, a component that is loaded at first use. Its three operations are called in the order in which
// they stand here; what they return is not examined.
class Etichette {
public:
    virtual ~Etichette() = default;
    // Forgets the variables of the last time.
    virtual void LlDefineVariableStart() = 0;
    // Once a column: its name and sample contents.
    virtual int LlDefineVariableExt(const QString &nome, const QString &contenuto, TipoEtichetta tipo) = 0;
    // Shows the designer over `finestra` on the project file (native form), which it creates when it isn't there, and
    // returns when the user is done. Must not throw: it tells its failures itself.
    virtual int LlDefineLayout(QWidget *finestra, const QString &titolo, int tipoProgetto, const QString &file) = 0;
};

// The component's root object.
class FabbricaEtichette {
public:
    virtual ~FabbricaEtichette() = default;
    virtual std::unique_ptr<Etichette> crea(Dialoghi &dialoghi) = 0; // which outlive it
};

} // namespace zuvora

Q_DECLARE_INTERFACE(zuvora::FabbricaEtichette, "zuvora.FabbricaEtichette/2")
