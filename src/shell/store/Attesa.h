#pragma once

#include <chrono>

namespace zuvora {

// How long an operation waits for another program's lock before it gives up and says so.
inline constexpr std::chrono::milliseconds kAttesaBlocco{2000};

} // namespace zuvora
