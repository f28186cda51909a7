#pragma once

#include <cstdint>

namespace zuvora {

// One monitor of the machine, pixels of the virtual desktop. Holds data only.
struct clsMonitor {
    std::int32_t Handle = 0;
    std::int32_t Height = 0;
    std::int32_t Width = 0;
    std::int32_t left = 0;
    std::int32_t right = 0;
    std::int32_t top = 0;
    std::int32_t bottom = 0;
    std::int32_t WorkLeft = 0; // the Work members leave out task bars
    std::int32_t WorkRight = 0;
    std::int32_t WorkTop = 0;
    std::int32_t WorkBottom = 0;
};

} // namespace zuvora
