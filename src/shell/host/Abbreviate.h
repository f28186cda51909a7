#pragma once

class QAbstractItemView;
class QComboBox;

namespace zuvora {

// Texts that find no room are cut in their middle, where paths and names of files tell least, and come whole as tool
// tip.
void abbreviaVoci(QAbstractItemView &vista);
void abbreviaScelta(QComboBox &scelta);

} // namespace zuvora
