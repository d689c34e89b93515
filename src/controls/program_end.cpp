#include "controls/program_end.h"

namespace {
bool programEnding = false;
}

bool Program_Is_Ending() {
    return programEnding;
}

void Set_Program_Ending(bool ending) {
    programEnding = ending;
}
