// Puts the operating system's own providers in force, once, at the start of the program.
#pragma once

namespace platform {

// Before the toolkit's application object is made: chooses the window system. On a Wayland desktop
// the toolbar runs through X11, since a strip there cannot choose its place.
void Prepare_Process();
// Once it is made: what the program starts gets the environment that it was started with itself.
void Restore_Environment();
// Clock, files, paths, registry, session: needs no window system (and a QCoreApplication only for
// the executable's path).
void Provide_Base_Services();
// All the others; needs the application object of the toolkit.
void Provide_Window_Services();

} // namespace platform
