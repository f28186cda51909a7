#pragma once

#include <QSize>

class QIODevice;

namespace zuvora {

// Whether a picture file goes on to its own end: the end marker of JPEG, GIF and PNG, the declared length of BMP and
// WebP. The decoders take a file that was cut for a whole one. Other formats count as whole; nothing is decoded.
// `file` is open for reading, at any place.
bool arrivaAllaFine(QIODevice &file);

// Size in pixels that a PNG or BMP declares; empty for other formats. The decoders tell none above limits of their own.
// `file` as before.
QSize misuraDichiarata(QIODevice &file);

} // namespace zuvora
