#pragma once

#include "pannello/forms/VoceMenu.h"

#include <vector>

namespace zuvora {

// The buttons of the main panel's menu and what each opens: the one table that knows every form.
std::vector<VoceMenu> vociDelPannello();

} // namespace zuvora
