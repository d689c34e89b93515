// The operating system's own providers, made one by one: for system.h, and for whoever needs one of
// them behind a provider of its own. Each backend defines them.
#pragma once

#include <memory>

namespace platform {

class Clock;
class Desktop;
class Dialogs;
class Files;
class Instance;
class Media;
class Paths;
class Registry;
class Session;
class SessionEnd;
class Shell;
class Tray;
class Windows;

// Without a window system.
std::unique_ptr<Clock> Make_Clock();
std::unique_ptr<Files> Make_Files();
std::unique_ptr<Paths> Make_Paths();
std::unique_ptr<Registry> Make_Registry();
std::unique_ptr<Session> Make_Session();

// With the toolkit's application object.
std::unique_ptr<Desktop> Make_Desktop();
std::unique_ptr<Dialogs> Make_Dialogs();
std::unique_ptr<Instance> Make_Instance();
std::unique_ptr<Media> Make_Media();
std::unique_ptr<SessionEnd> Make_SessionEnd();
std::unique_ptr<Shell> Make_Shell();
std::unique_ptr<Tray> Make_Tray();
std::unique_ptr<Windows> Make_Windows();

} // namespace platform
