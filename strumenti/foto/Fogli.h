#pragma once

#include <QDir>

namespace zuvora::foto {

// Sheets of all drawings of the program, to look at.
void disegnaFogli(const QDir &cartella);
// Sheets of the pictures of the installation in `installazione`: the catalogue and the backgrounds.
void disegnaCatalogo(const QString &installazione, const QDir &cartella);

} // namespace zuvora::foto
