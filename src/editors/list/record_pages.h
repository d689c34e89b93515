// The five pages of the selected reminder: the way of its record into them and back.
#pragma once

#include "editors/list/refused_save.h"
#include "editors/pages/reminder_page.h"

#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <array>

class CoolTab;
class DatePage;
class frmRE_FunctionEdit;
class HourPage;
class MessagePage;
class MiscPage;
class SoundPage;

enum class ShowErrors { No, Yes };

class RecordPages : public QObject, public EditHost {
    Q_OBJECT
public:
    // tabsPlace, pagePlace: pixels of the window.
    RecordPages(QWidget* window, const QRect& tabsPlace, const QRect& pagePlace);

    const ReminderRef& Shown() const { return shown; }
    // Loads the record; a box may tell of it.
    void Show_Record(const ReminderRef& reminder);
    // No reminder: nothing but the tabs is seen.
    void Clear();
    // The first field at fault ends it.
    bool Save(CategoryOnSave category, ShowErrors show = ShowErrors::Yes);
    // By the last save.
    bool Category_Changed() const { return categoryChanged; }
    // At the end of the program, without any box; false: not taken, and the record is as it stood.
    bool Store_Open();
    void Restore_Refused() { refused.Restore(shown); }

    void Turn_Page(int step);
    void Update_NextRun();
    void Set_Text(const QString& text);
    void Set_Categories(const QStringList& names);
    // Of the icon that is chosen; empty: none.
    QString Icon_Name() const;
    void Hide_Popups();
    // What goes with the window.
    void Unload();

    ReminderClass* Selected_Reminder() override { return shown.Get(); }
    bool Save_View_To_Reminder(CategoryOnSave category) override { return Save(category); }

Q_SIGNALS:
    // By the user; the record has it.
    void Title_Changed(const QString& title);
    void Text_Changed(const QString& text);
    // Not saved yet. -1 = none.
    void NextRun_Changed(Day nextRun);
    void Icon_Chosen(const QString& name);
    // Of other reminders.
    void Icons_Changed();
    void Category_Deleted();

private:
    ReminderPage* Page(EditPage page) const { return pages[static_cast<std::size_t>(page)]; }
    void Connect_Pages();
    void Show_Page(EditPage page);
    void Set_CurrentPage(EditPage page);
    void Hide_Marks();
    void Show_Fault(EditPage page, const QString& fault);
    void Function_Enabled(int k, bool on);
    void Edit_Function(int k);

    QWidget* window;
    ReminderRef shown;
    RefusedSave refused;
    bool categoryChanged = false;
    EditPage currentPage = EditPage::DateSetup;
    CoolTab* tabs = nullptr;
    DatePage* datePage = nullptr;
    HourPage* hourPage = nullptr;
    MessagePage* messagePage = nullptr;
    SoundPage* soundPage = nullptr;
    MiscPage* miscPage = nullptr;
    std::array<ReminderPage*, EditPageCount> pages{}; // by EditPage
    QPointer<frmRE_FunctionEdit> functionEdit;
    QTimer hideMarksTimer;
};
