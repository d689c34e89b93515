// Whether the program is on its way out. Whoever waits inside a handler for a menu or a box asks
// this afterwards, and does nothing more if so.
#pragma once

bool Program_Is_Ending();
// Set by the application when the end begins.
void Set_Program_Ending(bool ending);
