// GIF89a, written here because Qt only reads the format.
#pragma once

#include <QByteArray>
#include <QImage>

namespace zuvora::disegna {

// One still picture with at most 255 colours and a transparent one: pixels less than half opaque become transparent.
// More colours are brought together step by step until they fit. Throws std::invalid_argument for a null picture or one
// with a side above 65535 pixels.
QByteArray gif(const QImage &immagine);

} // namespace zuvora::disegna
