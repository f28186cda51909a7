#pragma once

class QWidget;

namespace zuvora {

// A save that says nothing shows a tick on the control that was used, for two seconds, and tells it to screen readers
// by the accessible description; the caption stays.
void mostraSpunta(QWidget &controllo);
bool conSpunta(const QWidget &controllo);

} // namespace zuvora
