// The window of a reminder: a small borderless note with its text, up to four buttons that open
// something, and reminders that wait inside it for their turn.
#pragma once

#include "controls/wb_button.h"
#include "delivery/rwin_table.h"

#include <QString>
#include <QWidget>

#include <array>
#include <cstdint>
#include <deque>

class QPlainTextEdit;

class frmImportantRWin : public QWidget {
    Q_OBJECT
public:
    // slot: the entry of the reminder that UpdateWindow brings on view first.
    frmImportantRWin(RWinTable& table, std::size_t slot);
    // Frees the entries that it still has.
    ~frmImportantRWin() override;

    // Fills the window for a reminder that is there; its height may change.
    void UpdateWindow(const ReminderRef& reminder);
    // The one on view; it may be gone since.
    const ReminderRef& Shown_Reminder() const { return reminderOnView; }
    // Adds a waiting reminder, by its entry of the window's table.
    void AddReminder(std::size_t slot);
    std::int32_t PendingCount() const { return static_cast<std::int32_t>(PendingList.size()); }
    // Above the other windows, without the focus, and out of the task bar. A fade if it is wanted.
    void Show_Window();
    // Above the other windows, once for all who ask before the event loop goes on: each time takes
    // a way to the window system and back.
    void Raise_Soon();

    // Opens what action button "index" stands for.
    void wbButton1_Click(int index);
    // Opens the menu of the reminder. The window may be gone afterwards.
    void wbButton2_Click();
    // Shows the next waiting reminder, or closes the window.
    void wbButton3_Click();
    // Closed by its user, and about to be released.
    bool Is_Closed() const { return closed; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Build_Controls();
    void Show_Text(const QString& text);
    int Show_Actions(const ReminderClass& reminder);
    void Show_Action(int row, const FunctionEntry& entry);
    void Lay_Out(int actions);
    void Stay_OnScreen(int formerBottom);
    void Mark_Pending();
    void Tell_ScreenReader();
    void Free_Entry();
    bool Take_Entry(std::size_t slot);
    void Close_Window();
    void Come_Up();

    std::array<FunctionType, ReminderClass::FunctionCount> ActionKind{};
    std::array<QString, ReminderClass::FunctionCount> ActionTarget;
    std::array<std::uint8_t, ReminderClass::FunctionCount> ActionWindowState{};
    RWinTable& table;
    std::optional<std::size_t> slotOnView; // its entry of the table
    std::deque<std::size_t> PendingList;   // entries of those that wait, first added first
    ReminderRef reminderOnView;

    QPlainTextEdit* Text1 = nullptr;
    std::array<wbButton*, ReminderClass::FunctionCount> wbButton1{};
    wbButton* wbButton2 = nullptr;
    wbButton* wbButton3 = nullptr;
    int shapeHeight = 77; // pixels, of the outline
    bool comesUp = false; // with the next painting: now it is not on the screen yet
    QPoint shownAt;       // where it was to stand then
    bool raiseAsked = false;
    bool closed = false;
};

// Releases all of them, at the end of the program.
void Unload_ReminderWindows();
