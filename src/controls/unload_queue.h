// Forms that must go away from inside their own handlers: they queue themselves and go when
// UnloadFormsTimer ticks, so that none is destroyed under its own running code.
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

extern std::vector<QPointer<QWidget>> Global_PendingUnloads;

// Adds the form once and enables UnloadFormsTimer.
void Queue_FormUnload(QWidget* form);
// Hides and releases every form in the list, and empties it. May be called from anywhere.
void Unload_PendingForms();
// The work of UnloadFormsTimer: stops the timer, then unloads.
void UnloadFormsTimer_Tick();
