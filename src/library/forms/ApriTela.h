#pragma once

#include "shell/host/Ambiente.h"

class QString;
class QWidget;

namespace zuvora {

// Reads the layout `tabella` and shows it in the designer, with the forms that it opens; returns when it closes.
// `risoluzione` as the main panel gives it: 1 to 4, 0 for none chosen. Throws EngineError when the table can't be read.
void apriTela(const Ambiente &ambiente, int risoluzione, const QString &tabella, QWidget *padre);

} // namespace zuvora
