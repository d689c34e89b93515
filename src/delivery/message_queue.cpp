#include "delivery/message_queue.h"

#include "controls/timers.h"
#include "controls/toolbar.h"
#include "delivery/message_line.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t FirstSlots = 21;
constexpr std::size_t MoreSlots = 20;
constexpr std::int32_t MinutesOnLine = 5;
constexpr std::int32_t FirstStepAfter =
    100; // ms between the choice of a message and its first step
constexpr std::int32_t WidestText = 1 << 30; // pixels
constexpr ::Day DaysBack = 10;

std::int32_t labelLeft = 0; // pixels: left edge of the text on the line

bool Is_Valid(std::int32_t index) {
    return index >= 0 && static_cast<std::size_t>(index) < Global_ToolbarMessages.size();
}

ToolbarMessage& Message_At(std::int32_t index) {
    return Global_ToolbarMessages[static_cast<std::size_t>(index)];
}

// Nothing when the reminder is in the queue already.
ToolbarMessage* Take_FreeSlot(const ReminderRef& due) {
    ToolbarMessage* freeSlot = nullptr;
    for (ToolbarMessage& message : Global_ToolbarMessages) {
        if (!message.Active) {
            if (freeSlot == nullptr)
                freeSlot = &message;
        } else if (message.Reminder == due) {
            return nullptr;
        }
    }
    if (freeSlot != nullptr)
        return freeSlot;
    const std::size_t index = Global_ToolbarMessages.size();
    Global_ToolbarMessages.resize(index + MoreSlots);
    return &Global_ToolbarMessages[index];
}

void Make_Current(std::size_t index) {
    Global_CurrentMessage = static_cast<std::int32_t>(index);
    Global_ToolbarMessages[index].LastShown = platform::Clock::Get().Milliseconds();
}

// A new message comes first, then the first that had no turn in this round.
bool Choose_InRound() {
    std::size_t waiting = Global_ToolbarMessages.size();
    for (std::size_t i = 0; i < Global_ToolbarMessages.size(); ++i) {
        const ToolbarMessage& message = Global_ToolbarMessages[i];
        if (!message.Active)
            continue;
        if (message.IsNew) {
            Make_Current(i);
            return true;
        }
        if (!message.Shown && waiting == Global_ToolbarMessages.size())
            waiting = i;
    }
    if (waiting == Global_ToolbarMessages.size())
        return false;
    Make_Current(waiting);
    return true;
}

// LastShown stays as it was: the first message of a round starts to move at once.
bool Start_NextRound() {
    for (std::size_t i = 0; i < Global_ToolbarMessages.size(); ++i) {
        ToolbarMessage& message = Global_ToolbarMessages[i];
        if (!message.Active)
            continue;
        message.Shown = false;
        if (Global_CurrentMessage == -1)
            Global_CurrentMessage = static_cast<std::int32_t>(i);
    }
    return Global_CurrentMessage != -1;
}

void Put_OnLine() {
    const ToolbarMessage& message = Message_At(Global_CurrentMessage);
    labelLeft = Global_MessageLine->Line_Width();
    Global_MessageLine->Put_Text(message.Text, message.LabelWidth, labelLeft);
    Global_Toolbar->AutoHide_ShowProc(false);
}

void End_CurrentMessage() {
    Message_At(Global_CurrentMessage).Active = false;
    Global_CurrentMessage = -1;
    const bool more = Select_NextMessage();
    if (!more)
        Global_MessageLine->Clear_Line();
    Global_Timers->Enable(TimerName::S_Reminder_Timer, more);
}

void Leave_ForNextTurn() {
    ToolbarMessage& message = Message_At(Global_CurrentMessage);
    message.Shown = true;
    message.IsNew = false;
    Global_CurrentMessage = -1;
    Select_NextMessage();
}

} // namespace

MessageLine* Global_MessageLine = nullptr;
std::vector<ToolbarMessage> Global_ToolbarMessages;
std::int32_t Global_CurrentMessage = -1;
bool Global_MessagePaused = false;

void Init_ToolbarMessages() {
    Global_ToolbarMessages.assign(FirstSlots, ToolbarMessage());
    Global_CurrentMessage = -1;
    Global_MessagePaused = false;
    labelLeft = 0;
}

void Show_ToolbarMessage(const ReminderRef& due) {
    const ReminderClass* reminder = due.Peek();
    ToolbarMessage* slot = reminder == nullptr ? nullptr : Take_FreeSlot(due);
    if (slot == nullptr)
        return;
    const Moment now = Read_Moment();
    ToolbarMessage message;
    message.Active = true;
    message.IsNew = true;
    message.Text = reminder->rs_Text;
    message.Text.replace("\r\n"_L1, ". "_L1);
    message.LabelWidth = std::clamp(Global_MessageLine->Text_Width(message.Text), 0, WidestText);
    message.StartMinute = now.Minute;
    message.EndMinute = now.Minute + MinutesOnLine;
    message.Day = now.Today;
    message.Reminder = due;
    *slot = message;
    Global_Timers->Enable(TimerName::S_Reminder_Timer);
}

void Message_Tick() {
    // The menu of the message is open: what it will do concerns the message on the line.
    if (Global_MessagePaused || !Select_NextMessage())
        return;
    const ToolbarMessage& message = Message_At(Global_CurrentMessage);
    if (platform::Clock::Get().Milliseconds_Since(message.LastShown) < FirstStepAfter)
        return;
    --labelLeft;
    Global_MessageLine->Move_Text(labelLeft);
    if (labelLeft >= -message.LabelWidth)
        return;
    const Moment now = Read_Moment();
    // EndMinute may lie past midnight: then the first pass of the next day is the last.
    const bool stays =
        now.Today <= message.Day && (now.Minute < message.EndMinute || now.Today != message.Day);
    if (stays)
        Leave_ForNextTurn();
    else
        End_CurrentMessage();
}

bool Select_NextMessage() {
    if (Global_CurrentMessage != -1)
        return true;
    if (!Choose_InRound() && !Start_NextRound())
        return false;
    Put_OnLine();
    return true;
}

bool Any_MessageActive() {
    return std::any_of(Global_ToolbarMessages.begin(), Global_ToolbarMessages.end(),
                       [](const ToolbarMessage& message) { return message.Active; });
}

void Dismiss_Message(std::int32_t index) {
    if (!Is_Valid(index) || !Message_At(index).Active)
        return;
    ToolbarMessage& message = Message_At(index);
    labelLeft = -(message.LabelWidth + 100);
    message.Day -= DaysBack;
    Global_MessageLine->Move_Text(labelLeft);
}
