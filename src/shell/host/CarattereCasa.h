#pragma once

#include <QByteArray>
#include <QFont>
#include <future>

namespace zuvora {

// Begins to read the font system's configuration, beside whatever else the program does to start: it takes as long as
// the platform's own start, and no text can be measured before. Needs no application.
std::future<void> avviaCaratteri();

// Begins to list the fonts, while the first form is made; needs the application and its font.
std::future<void> elencaCaratteri();

// Tahoma 8.25, from the file of the platform where its font system doesn't list it. Loads the font on the first call.
QFont carattereCasa();

// A TrueType file made ready for the program's texts; data that are no such file come back unchanged.
//
// The platform's Tahoma asks for its typographic ascent, which leaves a quarter of a line out: text stands too high and
// two lines collide. Without that flag the ascent of the horizontal header holds, the one that the places of all
// controls and layouts were made for. The bold file has bold distances but regular shapes; said to be a little less
// than bold, it has its strokes thickened by the font system as a regular one has. Ready-drawn small letters are left
// out: at their sizes their own measures, again a quarter of a line short, would stand in for the font's.
QByteArray carattereCorretto(QByteArray file);

} // namespace zuvora
