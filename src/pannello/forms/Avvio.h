#pragma once

#include "pannello/forms/SplasModule.h"

namespace zuvora {

// Runs the program from the second-instance guard to the closing of the main panel. Gives the process's exit code: 0
// after an orderly end, 1 when the program could not start.
int eseguiProgramma(const Ambiente &ambiente, std::vector<VoceMenu> voci, const QUrl &sito);

} // namespace zuvora
