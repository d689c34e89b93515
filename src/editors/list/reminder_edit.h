// The way to the reminder list window for the rest of the house.
#pragma once

class frmReminderEdit;

// Opens the window, or brings it to the front.
void Show_ReminderEdit();
// Null when it is not open.
frmReminderEdit* Open_ReminderEdit();
// At the end of the program, without any box: the page on view goes to its record if it passes its
// checks; a record that a refused save left half cleared is brought back as it stood. False when
// the page was not taken.
bool Store_OpenPage();
// The same without the page, when no window may be touched any more.
void Restore_RefusedPage();
