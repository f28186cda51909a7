#pragma once

#include <QImage>

class QVideoFrame;

namespace zuvora {

// The picture of a film's frame. Common formats are converted here, without the graphics context that Qt's own
// conversion asks for and that must not be made beside the web view's.
QImage immagineDi(const QVideoFrame &fotogramma);

} // namespace zuvora
