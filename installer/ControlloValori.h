#pragma once

#include "installer/ControlloArchivio.h"

namespace zuvora::installa {

// Values of the settings database that the program's choices don't have. Null is a choice not made yet.
void controllaValori(ControlloArchivio &zuvora);

} // namespace zuvora::installa
