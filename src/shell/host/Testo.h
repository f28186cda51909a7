#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QWidget;

namespace zuvora {

// Room that a caption needs in a font, pixels; with `larghezza` above 0 the text is wrapped at that width.
// An ampersand that marks a mnemonic takes no room.
QSize misuraDidascalia(const QString &testo, const QFont &font, int larghezza = 0);

// The font in which a caption fits into the room: `base` itself where it can, otherwise drawn narrower, down to three
// quarters, so that no caption is cut where the platform's fonts run wider than the house font.
QFont fontAdatto(const QString &testo, const QFont &base, const QSize &spazio, bool aCapo);

// The text as it stands in a room of that width, in pixels: cut by an ellipsis where it must. A mnemonic is dropped
// then.
QString abbreviata(const QString &testo, const QFont &font, int larghezza);

// True when the widget's caption needs more room than the widget gives it. Widgets without a caption never do.
bool didascaliaTagliata(const QWidget *w);

} // namespace zuvora
