// The window in which reminders are listed, made, deleted, copied and edited: cards on the left,
// filtered by a category, and on the right the five pages of the selected reminder.
//
// It changes the reminders of the table; only the copy buffer is a file of its own.
#pragma once

#include "controls/form.h"
#include "editors/list/refused_save.h"
#include "editors/pages/reminder_page.h"

#include <QPointer>
#include <QTimer>

#include <array>

class CardList;
class ComboBox;
class CoolTab;
class DatePage;
class frmRE_FunctionEdit;
class HourPage;
class MessagePage;
class MiscPage;
class SoundPage;
class wbButton;

class frmReminderEdit : public Form, public EditHost {
    Q_OBJECT
public:
    frmReminderEdit();

    // Builds the list anew from the table.
    void UpdateReminderView();
    // Selects the reminder of a slot, if it has a card.
    void SelectReminder_Using_RListIndex(std::int32_t index);
    void SelectReminder_Using_ListRow(int row);
    // What others did to the table: a selected reminder that is gone takes its pages along.
    void Refresh_View();
    bool Store_OpenPage();
    void Restore_RefusedPage();

    ReminderClass* Selected_Reminder() override { return selection.Get(); }
    bool Save_View_To_Reminder(CategoryOnSave category) override;
    // Row of the selected card; -1 = none, or its card is filtered away.
    int SelectedRow() const;

protected:
    bool Query_Unload(UnloadMode mode) override;
    void On_Unload() override;
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class ShowErrors { No, Yes };
    enum class FilterText { Reset, Keep };

    void Build_List(int listHeight);
    void Build_Buttons(int top);
    void Build_Pages();
    void Add_Shortcuts();
    void Place_OnScreen();

    // Selection.
    void Select_Reminder(const ReminderRef& target);
    // Selects it if it is not; false: the selection stays with another, or none.
    bool Is_SelectedNow(const ReminderRef& target);
    // A new card comes into view; the frame goes to it only where nothing is selected.
    void Show_NewCard(const ReminderRef& added);
    void Drop_Selection();
    void Update_Filter(FilterText text);
    void Filter_Chosen();
    void RefreshTimer_Tick();

    // The pages.
    ReminderPage* Page(EditPage page) const { return pages[static_cast<std::size_t>(page)]; }
    void Show_Page(EditPage page);
    void Set_CurrentPage(EditPage page);
    void Hide_Popups();
    void Hide_ErrorShapes();
    void Load_Reminder_To_View();
    bool Save_View(CategoryOnSave category, ShowErrors show);
    void Show_Fault(EditPage page, const QString& fault);
    void Title_Typed(const QString& title);
    void Text_Typed(const QString& text);
    void Function_Enabled(int k, bool on);
    void Edit_Function(int k);
    void Row_Enabled_Changed(const ReminderRef& reminder, bool ticked);

    // The buttons of the list.
    void New_Click();
    void Delete_Click();
    void Copy_Click();
    void Paste_Click();
    void Test_Click();
    void Save_SelectedIcon();

    ReminderRef selection;
    RefusedSave refused;
    QString filter;         // the category that the list shows
    QStringList shownNames; // categories in the boxes
    bool categoryChanged = false;
    Day shownDay = 0;
    EditPage currentPage = EditPage::DateSetup;

    ComboBox* filterBox = nullptr;
    CardList* cards = nullptr;
    wbButton* deleteButton = nullptr;
    wbButton* copyButton = nullptr;
    wbButton* runButton = nullptr;
    CoolTab* tabs = nullptr;
    DatePage* datePage = nullptr;
    HourPage* hourPage = nullptr;
    MessagePage* messagePage = nullptr;
    SoundPage* soundPage = nullptr;
    MiscPage* miscPage = nullptr;
    std::array<ReminderPage*, EditPageCount> pages{}; // by EditPage
    QPointer<frmRE_FunctionEdit> functionEdit;
    QTimer hideErrorShapeTimer;
    QTimer refreshTimer{this};
};
