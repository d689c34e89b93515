// What the pages of the reminder list window need of the window around them.
#pragma once

#include "core/reminder.h"

enum class EditPage { DateSetup = 0, HoursSetup = 1, Message = 2, Sound = 3, Misc = 4 };
enum class CategoryOnSave { Take, Keep };
enum class ShowErrors { No, Yes };

class EditHost {
public:
    virtual ~EditHost() = default;
    // Null without a selection. The reminder may be gone after anything that pumped events.
    virtual ReminderClass* Selected_Reminder() = 0;
    // Brings the page into view, because a field on it is at fault.
    virtual void Show_Page(EditPage page) = 0;
    // Error marks go again after a while: counted from now.
    virtual void Restart_HideErrorShapeTimer() = 0;
    // True: saved, or nothing is selected.
    virtual bool Save_View_To_Reminder(CategoryOnSave category) = 0;
    // To the selected reminder, at once: a save that is refused does not take it back.
    virtual void Condition_Added(const HourSetup& condition) = 0;
    // The next run date on the selected card; -1 = none.
    virtual void Show_NextRun(Day nextRun) = 0;
};
