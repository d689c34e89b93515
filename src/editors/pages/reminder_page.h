// A page of the reminder list window, and what the pages need of the window around them.
#pragma once

#include "core/reminder.h"

#include <QWidget>

enum class EditPage { DateSetup = 0, HoursSetup = 1, Message = 2, Sound = 3, Misc = 4 };
constexpr int EditPageCount = 5;
enum class CategoryOnSave { Take, Keep };

class EditHost {
public:
    virtual ~EditHost() = default;
    // Null without a selection. The reminder may be gone after anything that pumped events.
    virtual ReminderClass* Selected_Reminder() = 0;
    // All pages. True: saved, or nothing is selected.
    virtual bool Save_View_To_Reminder(CategoryOnSave category) = 0;
};

class ReminderPage : public QWidget {
public:
    using QWidget::QWidget;

    // The record comes into view; a box may tell of it.
    virtual void Load(const ReminderClass& reminder) = 0;
    // The record takes what is on view. What is at fault, in words for the user; empty: nothing.
    // After a fault the record may be half cleared, until it is stored without one.
    virtual QString Store(ReminderClass& reminder) = 0;
    // Shows the place of the fault, which gets the focus; and takes the mark away.
    virtual void Mark_Fault() {}
    virtual void Hide_Marks() {}
    // What stands beside a field.
    virtual void Hide_Popup() {}
};
