#include "voce/FabbricaEspeak.h"

#include "voce/VoceEspeak.h"

namespace zuvora {

// Qt's other media backend, its default, ends the program where parts of it are not installed.
FabbricaEspeak::FabbricaEspeak() {
    qputenv("QT_MEDIA_BACKEND", "ffmpeg");
}

std::unique_ptr<Voce> FabbricaEspeak::crea() {
    return std::make_unique<VoceEspeak>();
}

} // namespace zuvora
