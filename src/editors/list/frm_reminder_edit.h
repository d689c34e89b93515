// The window in which reminders are listed, made, deleted, copied and edited: cards on the left,
// filtered by a category, and on the right the five pages of the selected reminder.
//
// It changes the reminders of the table; only the copy buffer is a file of its own.
#pragma once

#include "controls/form.h"
#include "core/reminder_ref.h"
#include "editors/pages/reminder_page.h"

#include <QStringList>
#include <QTimer>

class CardList;
class ComboBox;
class RecordPages;
class wbButton;

class frmReminderEdit : public Form {
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

    // Null without a selection. The reminder may be gone after anything that pumped events.
    ReminderClass* Selected_Reminder() const { return Selection().Get(); }
    // True: saved, or nothing is selected.
    bool Save_View_To_Reminder(CategoryOnSave category);
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
    enum class FilterText { Reset, Keep };

    void Build_List(int listHeight);
    void Build_Buttons(int top);
    void Build_Pages();
    void Add_Shortcuts();
    void Place_OnScreen();

    const ReminderRef& Selection() const;
    void Select_Reminder(const ReminderRef& target);
    // Selects it if it is not; false: the selection stays with another, or none.
    bool Is_SelectedNow(const ReminderRef& target);
    // A new card comes into view; the frame goes to it only where nothing is selected.
    void Show_NewCard(const ReminderRef& added);
    void Drop_Selection();
    void Update_Filter(FilterText text);
    void Filter_Chosen();
    void RefreshTimer_Tick();
    void Row_Enabled_Changed(const ReminderRef& reminder, bool ticked);

    // The buttons of the list.
    void New_Click();
    void Delete_Click();
    void Copy_Click();
    void Paste_Click();
    void Test_Click();
    void Save_SelectedIcon();

    QString filter;         // the category that the list shows
    QStringList shownNames; // categories in the boxes
    Day shownDay = 0;
    ComboBox* filterBox = nullptr;
    CardList* cards = nullptr;
    wbButton* deleteButton = nullptr;
    wbButton* copyButton = nullptr;
    wbButton* runButton = nullptr;
    RecordPages* pages = nullptr;
    QTimer refreshTimer{this};
};
