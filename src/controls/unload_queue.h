// Forms that must go away from inside their own handlers: they hide, queue themselves and go when
// UnloadFormsTimer ticks, so that none is destroyed under its own running code. A loop of the
// toolkit's (a menu, a box, dragged text) runs inside a handler, which may be the form's own: no
// form is released before it has ended.
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

extern std::vector<QPointer<QWidget>> Global_PendingUnloads;

// Adds the form once and enables UnloadFormsTimer.
void Queue_FormUnload(QWidget* form);
// Hides every form in the list and releases it. May be called from anywhere.
void Unload_PendingForms();
// The work of UnloadFormsTimer: stops the timer and unloads; inside a loop of the toolkit's it
// waits.
void UnloadFormsTimer_Tick();
