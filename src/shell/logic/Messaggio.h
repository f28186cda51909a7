#pragma once

#include <QString>

namespace zuvora {

// The two lines of the message form.
struct Messaggio {
    QString riga0;
    QString riga1;

    friend bool operator==(const Messaggio &, const Messaggio &) = default;
};

} // namespace zuvora
