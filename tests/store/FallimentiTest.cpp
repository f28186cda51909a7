#include "store/Archivio.h"
