#pragma once

#include "shell/host/Ambiente.h"

#include <QString>

class QWidget;

namespace zuvora {

// Tells the user when a picture file can't be used, missing or no picture; true when it did.
bool avvisaSeIllegibile(const Ambiente &ambiente, const QString &percorso, QWidget *padre);

} // namespace zuvora
