// Whether the desktop starts the program when its user logs on: a value of the machine's run key.
#pragma once

#include <QString>

// What programs end with on this system, taken from the running one: ".exe", or nothing.
QString Program_Ending(const QString& executable);
// The whole path of the program, in the system's own form. The ending is added when it is missing.
QString Run_Command(const QString& folder, const QString& exeName, const QString& ending);

bool Read_RunKey();
// A user who may not write there changes nothing, and hears nothing: the next look tells.
void Write_RunKey(bool runs);
