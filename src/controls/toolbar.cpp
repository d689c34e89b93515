#include "controls/toolbar.h"

Toolbar* Global_Toolbar = nullptr;
