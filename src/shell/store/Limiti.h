#pragma once

#include <chrono>

namespace zuvora {

// How long an operation waits for another program's lock before it gives up and says so.
inline constexpr std::chrono::milliseconds attesaBlocco{2000};

// How many rows a record set takes when its form states no limit of its own. A view can give rows without end.
inline constexpr int righeMassime = 100'000;

} // namespace zuvora
