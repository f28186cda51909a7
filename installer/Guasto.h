#pragma once

#include <QString>

namespace zuvora::installa {

// What stops the making or the checking of an installation: an Italian sentence for the user.
struct Guasto {
    QString frase;
};

} // namespace zuvora::installa
