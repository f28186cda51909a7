#include "Composizione.h"

namespace zuvora {

Apritori apritoriDelPannello() {
    Apritori apritori;
    return apritori;
}

} // namespace zuvora
