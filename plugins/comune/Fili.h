#pragma once

class QThread;

namespace zuvora {

// A thread, not started yet, for work that may hang. Nobody ends it: it quits by itself and is cleared away when the
// next one is made, or when the program ends, which waits for all of them half a second at most and leaves behind one
// that hangs. Only on the window's thread.
QThread *nuovoFilo();

} // namespace zuvora
