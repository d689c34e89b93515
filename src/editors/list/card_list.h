// The column of cards with its scroll bar. It shows rows of slots; cards exist for the rows on view
// only, so that a long list costs no more than a short one.
#pragma once

#include "editors/list/card_view.h"

#include <QWidget>

#include <optional>
#include <vector>

class ClickLabel;
class QLabel;
class QScrollBar;

class CardList : public QWidget {
    Q_OBJECT
public:
    // height: pixels of the list; it is as wide as a card and the bar.
    CardList(int height, QWidget* parent);
    static constexpr int BarWidth = 16;

    // Slots of the table in ascending order. All cards are shown afresh.
    void Set_Slots(std::vector<std::int32_t> newSlots);
    const std::vector<std::int32_t>& Slots() const { return slots; }
    // -1 = not in the list.
    int Row_Of(const ReminderRef& reminder) const;
    // Shows the records as they are now.
    void Refresh_Cards();
    // Colour or grey by the tick of each card.
    void Refresh_Row_Icons();

    // The card of the selected reminder wears what its pages say, saved or not.
    void Set_Selected(const ReminderRef& reminder);
    void Set_SelectedIcon(const QString& name);
    void Set_SelectedNextRun(Day nextRun);
    // Null when the reminder has no card on view.
    CardView* Card_Of(const ReminderRef& reminder) const;

    // The row that the keyboard stands on, and that its keys concern; it is brought into view.
    void Set_CurrentRow(int row);
    int Current_Row() const { return currentRow; }
    void Bring_IntoView(int row);

Q_SIGNALS:
    void Card_Chosen(const ReminderRef& reminder);
    // Typed into the selected card.
    void Text_Changed(const QString& text);
    void Enabled_Changed(const ReminderRef& reminder, bool ticked);
    // On the reminder that the frame stands on.
    void Delete_Pressed(const ReminderRef& reminder);
    void Copy_Pressed(const ReminderRef& reminder);
    void Paste_Pressed();
    // By a click on the words of an empty category: for all reminders.
    void All_Asked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    CardView* Add_Card();
    void Lay_Out();
    void Show_Row(CardView& card, int row);
    CardContent Content_Of(std::int32_t slot) const;
    int Row_ForKey(int key) const;
    ReminderRef Reminder_At(int row) const;
    void Note_Current(int row);
    void Mark_Current();
    int Visible_Rows() const;

    std::vector<std::int32_t> slots;
    QWidget* inside = nullptr; // the window onto the cards
    QScrollBar* scrollBar = nullptr;
    QLabel* nothing = nullptr;
    ClickLabel* showAll = nullptr;
    std::vector<CardView*> cards; // row r stands on card r modulo their number
    ReminderRef selected;
    std::optional<QString> selectedIcon;
    std::optional<Day> selectedNextRun;
    int currentRow = -1;
    ReminderRef current; // of that row, also when the rows have changed
};
