// The window in which reminders are listed, made, deleted, copied and edited: cards on the left,
// filtered by a category, and on the right the five pages of the selected reminder.
//
// It changes the reminders of the table; only the copy buffer is a file of its own.
#pragma once

#include "controls/form.h"
#include "core/reminder_ref.h"
#include "editors/list/message_page.h"
#include "editors/list/refused_save.h"
#include "editors/pages/edit_host.h"

#include <QPointer>
#include <QTimer>

#include <array>

class CardList;
class CardText;
class ComboBox;
class CoolTab;
class DatePage;
class frmRE_FunctionEdit;
class HourPage;
class MiscPage;
class SoundPage;
class wbButton;

enum class FilterText { Reset, Keep };
enum class CardIcon { Keep, Update };

class frmReminderEdit : public Form, public EditHost {
    Q_OBJECT
public:
    frmReminderEdit();
    ~frmReminderEdit() override;

    // Builds the list anew from the table.
    void UpdateReminderView();
    // Selects the reminder of a slot, if it has a card.
    void SelectReminder_Using_RListIndex(std::int32_t index);
    void SelectReminder_Using_ListRow(int row);
    void UpdateFunctions(const ReminderClass& wOBJ, TitlesOfFunctions titles);
    // Leaves the cards of the category only.
    void UpdateRList_ByCategory(const QString& wCategory);
    void Text4_SetDate_FromCalendar(int Index, const QString& NewDate);
    // What others did to the table: a selected reminder that is gone takes its pages along.
    void Refresh_View();
    bool Store_OpenPage();
    void Restore_RefusedPage();

    // For the pages.
    ReminderClass* Selected_Reminder() override { return selection.Get(); }
    void Show_Page(EditPage page) override;
    void Restart_HideErrorShapeTimer() override;
    bool Save_View_To_Reminder(CategoryOnSave category) override;
    void Show_NextRun(Day nextRun) override;
    void Condition_Added(const HourSetup& condition) override {
        refused.Condition_Added(condition);
    }

    // Row of the selected card; -1 = none, or its card is filtered away.
    int SelectedRow() const;
    EditPage CurrentPage = EditPage::DateSetup;

    CardList* Cards = nullptr;
    ComboBox* Combo2 = nullptr; // the filter
    CoolTab* CoolTab1 = nullptr;
    DatePage* Picture2 = nullptr;
    HourPage* Picture3 = nullptr;
    MessagePage* Picture6 = nullptr;
    SoundPage* Picture7 = nullptr;
    MiscPage* Picture10 = nullptr;
    wbButton* wbButton5 = nullptr;  // new
    wbButton* wbButton6 = nullptr;  // delete
    wbButton* wbButton8 = nullptr;  // copy
    wbButton* wbButton9 = nullptr;  // paste
    wbButton* wbButton10 = nullptr; // test
    wbButton* wbButton14 = nullptr; // help

protected:
    bool Query_Unload(UnloadMode mode) override;
    void On_Unload() override;
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Build_List(int listHeight);
    void Build_Buttons(int top);
    void Build_Pages();
    void Connect_Pages();
    void Add_Shortcuts();
    void Place_OnScreen();

    // Selection.
    void Select_Reminder(const ReminderRef& target);
    // Selects it if it is not; false: the selection stays with another, or none.
    bool Is_SelectedNow(const ReminderRef& target);
    // A new card comes into view; the frame goes to it only where nothing is selected.
    void Show_NewCard(const ReminderRef& added);
    void Drop_Selection();
    void Hide_Popups();
    void Hide_All_Pages();
    void Hide_ErrorShapes();
    void HideErrorShapeTimer_Tick();
    void Set_CurrentPage(int page);
    void RefreshTimer_Tick();
    QWidget* Page_Widget(int page) const;

    // The record and the pages.
    void Load_Reminder_To_View();
    void Clear_Reminder_View();
    bool Save_View(CategoryOnSave category, ShowErrors show);
    void Save_Category(ReminderClass& reminder);
    void Title_Changed(const QString& title);
    void Text_Changed(const QString& text);
    void Card_Text_Changed(const QString& text);
    void Function_Enable_Changed(int k);
    void Edit_Function(int k);
    void Row_Enabled_Changed(const ReminderRef& reminder, bool ticked);

    // The buttons of the list.
    void New_Click();
    void Delete_Click();
    void Copy_Click();
    void Paste_Click();
    void Test_Click();

    // Categories and icons.
    void Update_Category_Combos(FilterText text);
    void Combo2_Click();
    void Combo1_Click(const QString& name);
    void Delete_Category_Click();
    void Use_Icon_Click();
    void No_Icon_Click();
    void Change_Icons_OfCategory(const QString& name, const QString& icon);
    void Select_Icon_By_Name(const QString& name, CardIcon card);
    void Save_Selected_Icon();
    void Show_Category_OfRecord();

    ReminderRef selection;
    RefusedSave refused;
    QString filter;         // the text of Combo2 that the list shows
    QStringList shownNames; // categories in the boxes
    bool CategoryChanged = false;
    Day shownDay = 0;
    QPointer<frmRE_FunctionEdit> functionEdit;
    QTimer HideErrorShapeTimer;
    QTimer refreshTimer;
};
