#pragma once

#include <QString>
#include <optional>

namespace zuvora {

// The address in an embed code, made to start by itself: what stands in the quotes behind the first "src=", up to the
// blank before the first "frameborder", with the tail that starts the film. Case counts. Nothing when the code's parts
// don't stand in that order; a code without "src=" counts from its fifth character.
std::optional<QString> EstraiUrl(const QString &Codice);

} // namespace zuvora
