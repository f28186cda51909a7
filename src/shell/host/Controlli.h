#pragma once

// The controls of which most forms are made.
#include "shell/host/Button.h"
#include "shell/host/Edit.h"
#include "shell/host/Label.h"
#include "shell/host/Scelte.h"
