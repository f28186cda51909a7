#pragma once

#include "designer/forms/ApritoriTela.h"

#include <QString>

class QWidget;

namespace zuvora {

struct Ambiente;

// Reads the layout `tabella` and shows it in the designer over `padre`; returns when the designer closes.
// `risoluzione` as the main panel gives it: 1 to 4, 0 for none chosen. Throws EngineError when the table can't be read.
void apriDesigner(const Ambiente &ambiente, QWidget *padre, int risoluzione, const QString &tabella,
                  const ApritoriTela &apritori);

} // namespace zuvora
