// The windows that set the program up.
#pragma once

class Timers;

// Opens the window, or brings forward the one that is open.
void Show_ProgramSetup();
void Show_SetupWizard();

// After the load: at the first start of a user the wizard comes by itself, once.
void Connect_RunWizard(Timers& timers);
// Before the settings are saved at the end: a wizard that is open is dropped, and the toolbar is
// back at its place.
void Drop_SetupWizard();
