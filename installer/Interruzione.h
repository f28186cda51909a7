#pragma once

namespace zuvora::installa {

// From now on SIGINT, SIGTERM and SIGHUP don't end the process but wait for the next fermaSeInterrotto.
void ascoltaInterruzioni();
// Throws Guasto once one of them has come.
void fermaSeInterrotto();

} // namespace zuvora::installa
