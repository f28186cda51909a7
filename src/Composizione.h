#pragma once

#include "shell/forms/SplasModule.h"

namespace zuvora {

// What each button of the main panel opens: the one list that knows every form.
Apritori apritoriDelPannello();

} // namespace zuvora
