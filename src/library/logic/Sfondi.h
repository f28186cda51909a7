#pragma once

#include <QString>

namespace zuvora {

// The path under which another machine reaches a picture of this one: the drive and ":\" give way to the host's name.
// The first folder under the drive's root is taken to be shared under its own name. A path of a platform without drives
// counts from its root, and a network path stays as it is; the result always has backslashes. Empty for an empty path.
QString percorsoDiRete(const QString &percorso, const QString &nomeHost);

} // namespace zuvora
