// Puts the operating system's own providers in force, once, at the start of the program.
#pragma once

namespace platform {

// Clock, files, paths, registry, session: needs no window system (and a QCoreApplication only for
// the executable's path).
void Provide_Base_Services();
// All the others; needs the application object of the toolkit.
void Provide_Window_Services();

} // namespace platform
