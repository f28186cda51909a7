#pragma once

#include "shell/host/Ambiente.h"
#include "shell/immagini/LetturaImmagine.h"

#include <QString>

class QWidget;

namespace zuvora {

// Reads a picture file whole, beside the window, and tells the user when it can't be used. True also when the user
// called the reading off: the picture is not to be used. `uso` is how it will be read where it is shown.
bool avvisaSeIllegibile(const Ambiente &ambiente, const QString &percorso, QWidget *padre,
                        Lettura uso = Lettura::Ridotta);

} // namespace zuvora
