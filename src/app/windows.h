// The windows of the upper floors as the application knows them: what opens them, and what they
// still hold when the program ends.
#pragma once

class MainForm;
class ToolbarCommands;

// Connects buttons, menus and the links' commands with the windows.
void Connect_Windows(ToolbarCommands& commands, MainForm& toolbar);
// What is being typed goes to the tables; nothing asks. When the window system is gone, only what
// is plain data already.
enum class WindowsAre { There, Gone };
void Store_OpenEdits(WindowsAre windows);
// Once the event loop has returned.
void Release_Windows();
