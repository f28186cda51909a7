#pragma once

#include <QString>

namespace zuvora {

class Percorsi;

// Plays a sound and returns when it has ended or the user has pressed Esc. Meanwhile the program's windows paint
// themselves and take no input. `scritto` is a path as rows have it; `componenti` the folder of the player's component.
// Gives an Italian sentence where the sound can't be played, else nothing.
QString provaSuono(const QString &componenti, const Percorsi &percorsi, const QString &scritto);

} // namespace zuvora
