#pragma once

#include <QAudioDevice>

namespace zuvora {

// The machine's output for sound; null where it has none. Waits for the sound server: never call it on the window's
// thread. The first call starts a thread on which the platform's list of devices lives from then on: whoever asks
// first owns that list, and a player's own thread would be gone too soon.
QAudioDevice uscitaPredefinita();

} // namespace zuvora
