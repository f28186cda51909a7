#pragma once

#include <QString>

namespace zuvora {

// Says whether files are pictures that can be shown; the logic knows pictures by path only.
class CaricatoreImmagini {
public:
    virtual ~CaricatoreImmagini() = default;
    // True when the file at `percorso` exists and could be decoded. Never blocks on folders, pipes and the like.
    virtual bool carica(const QString &percorso) = 0;
};

} // namespace zuvora
