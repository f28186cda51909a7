#pragma once

#include <QString>

namespace zuvora {

// Whether the kiosk's database can be opened: false when its folder or file is missing. Any other failure (locked,
// damaged, read-only) counts as reached: the forms that use the file tell it. May block for as long as the network
// does.
bool totemRaggiungibile(const QString &archivio);

} // namespace zuvora
