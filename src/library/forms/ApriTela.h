#pragma once

#include "designer/forms/ApritoriTela.h"
#include "shell/host/Ambiente.h"

namespace zuvora {

// The forms that the canvas opens: decoration, background, size of the news box.
ApritoriTela apritoriTela(const Ambiente &ambiente);

// Opens the layout `tabella` in the designer with those forms; returns when it closes. `risoluzione` is 1 to 4, 0 for
// none chosen. Throws EngineError when the table can't be read.
void apriTela(const Ambiente &ambiente, int risoluzione, const QString &tabella, QWidget *padre);

} // namespace zuvora
