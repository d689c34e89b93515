// The strip gets out of the way and comes back.
#include "controls/program_end.h"
#include "controls/show_beside.h"
#include "controls/the_screen.h"
#include "controls/timers.h"
#include "controls/transparency.h"
#include "controls/unload_queue.h"
#include "delivery/message_queue.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "settings/global_settings.h"
#include "toolbar/main_form.h"
#include "toolbar/mdl_tray.h"
#include "toolbar/tray_menu.h"

#include <algorithm>
#include <utility>

namespace {

// How long AutoHide leaves the strip alone after it came back, besides its wait time.
constexpr std::int32_t ShowGrace = 1000; // ms

std::int32_t Later_By(std::int32_t clock, std::int32_t milliseconds) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(clock) +
                                     static_cast<std::uint32_t>(milliseconds));
}

bool Fades_Wanted() {
    return Global_IsWinXP && Global_UseTransparency;
}

void Enable_Timer(TimerName timer, bool enabled) {
    if (Global_Timers != nullptr) {
        Global_Timers->Enable(timer, enabled);
    }
}

} // namespace

void MainForm::Connect_Hiding(HidePorts hidePorts) {
    ports = std::move(hidePorts);
}

bool MainForm::IsHiding() const {
    const TransparencyClass& fades = Global_Transparency();
    return collapsing || fades.IsRunning() || fades.Is_FadingOut(this);
}

bool MainForm::Toolbar_Visible() const {
    return isVisible() && !IsHiding() && !Is_Collapsed();
}

bool MainForm::Is_Collapsed() const {
    return !Picture2->isHidden();
}

HideMode MainForm::Get_Best_Auto_HideMode(bool forceBest) const {
    const auto selected = static_cast<HideMode>(Global_Autohide_SelectedHideMode);
    if (!forceBest && selected != HideMode::Best) {
        return selected;
    }
    return Best_HideMode(toolbarRect, TwipsX_To_Pixels(live.Width), The_Screen());
}

void MainForm::Guard_Hiding(const QString& reason) {
    DisableAutoHide_Method = true;
    DisableAutoHide_Method_ErrStr = reason;
}

void MainForm::Lift_HideGuard() {
    DisableAutoHide_Method = false;
    DisableAutoHide_Method_ErrStr.clear();
}

void MainForm::Show_HideDisabledMessage() {
    if (DisableAutoHide_Method && !DisableAutoHide_Method_ErrStr.isEmpty()) {
        platform::Dialogs::Get().Message(DisableAutoHide_Method_ErrStr,
                                         platform::BoxStyle::Exclamation);
    }
}

// The looks end while nothing can come of them: the settings, the way back of the strip and the
// mouse that touches or leaves it begin them again.
void MainForm::AutoHideTimer_Tick() {
    if (!Global_Autohide_Enabled || Is_Collapsed() || !isVisible()) {
        Enable_Timer(TimerName::AutoHideTimer, false);
        return;
    }
    AutoHideMoment moment;
    moment.Enabled = Global_Autohide_Enabled;
    moment.Collapsed = Is_Collapsed();
    moment.MessageActive = Any_MessageActive();
    moment.SinceMouseOver = platform::Clock::Get().Milliseconds_Since(LastMouseOver);
    moment.WaitTime = Global_Autohide_WaitTime;
    if (!moment.Has_Waited()) {
        return; // each look for the cursor wakes the window system
    }
    moment.Cursor = platform::Desktop::Get().Cursor_Position();
    moment.Bounds = toolbarRect;
    moment.LinksMenuVisible = ports.LinksMenu_Visible && ports.LinksMenu_Visible();
    if (AutoHide_Is_Due(moment)) {
        AutoHide_HideProc(Get_Best_Auto_HideMode(false), false);
    } else if (moment.Cursor_Rests() && underMouse()) {
        Enable_Timer(TimerName::AutoHideTimer, false);
    }
}

void MainForm::Watch_Mouse() {
    if (Global_Autohide_Enabled && isVisible() && !Is_Collapsed()) {
        Enable_Timer(TimerName::AutoHideTimer, true);
    }
}

void MainForm::AutoHide_HideProc(HideMode mode, bool forceHide) {
    if ((DisableAutoHide_Method && !forceHide) || !Toolbar_Visible() || Program_Is_Ending()) {
        return;
    }
    Unload_PendingForms();
    Form_MouseUp(MouseButton::Left); // ends a drag
    // Without a tray there would be no way back from it.
    if (mode == HideMode::Best || (mode == HideMode::TrayIcon && !Tray_Is_Available())) {
        mode = Get_Best_Auto_HideMode(true);
    }
    if (mode > HideMode::TrayIcon) {
        return;
    }
    saved = {live.Left, live.Top, live.Width, saved.Height};
    LastHideMode = mode;
    if (mode == HideMode::TrayIcon) {
        Hide_Completely();
    } else {
        Collapse_Strip(mode);
    }
}

void MainForm::Collapse_Strip(HideMode mode) {
    auto& desktop = platform::Desktop::Get();
    collapsing.emplace(
        Collapsing{Collapse(mode, live, desktop.TwipsPerPixelX(), desktop.TwipsPerPixelY()),
                   platform::Clock::Get().Milliseconds()});
    Picture2->setGeometry(rect());
    Picture2->show();
    Picture2->raise();
    Settle_Focus();
    Collapse_Step();
}

void MainForm::Collapse_Step() {
    auto& clock = platform::Clock::Get();
    const std::int32_t round = clock.Milliseconds();
    const bool hasTime =
        clock.Milliseconds_Since(collapsing->Start) <= collapsing->Rule.Time_Limit();
    const auto next = hasTime ? collapsing->Rule.Next_Round() : std::nullopt;
    Set_Bounds(next.value_or(collapsing->Rule.End_Bounds()));
    if (next) {
        collapseTimer.Start(Collapse::RoundTime - clock.Milliseconds_Since(round),
                            [this] { Collapse_Step(); });
    } else {
        collapsing.reset();
    }
}

void MainForm::Hide_Completely() {
    Enable_Timer(TimerName::AutoHideTimer, false);
    if (ports.Complete_Hide) {
        ports.Complete_Hide();
    }
    if (Fades_Wanted()) {
        Global_Transparency().DoFadeOut(this);
        Global_Transparency().Enable_TC_Timer();
        setEnabled(false);
    } else {
        hide();
    }
    Tray_AddIcon(Make_TrayIcon(commands, *this));
}

void MainForm::Restore_Bounds() {
    if (Picture2->hasFocus()) {
        wbButton1->setFocus(Qt::MouseFocusReason);
    }
    Picture2->hide();
    Set_Bounds(saved);
    Lay_Out();
}

void MainForm::AutoHide_ShowProc(bool skipFade) {
    TransparencyClass& fades = Global_Transparency();
    // A fade of another window does not concern the strip.
    const bool goes = collapsing || fades.Is_FadingOut(this);
    if (Program_Is_Ending() || (isVisible() && !Is_Collapsed() && !goes)) {
        return;
    }
    collapsing.reset();
    collapseTimer.Stop();
    Tray_RemoveIcon();
    setEnabled(true);
    LastMouseOver = Later_By(platform::Clock::Get().Milliseconds(), ShowGrace);
    if (!isVisible()) {
        Restore_Bounds();
    }
    if (Fades_Wanted() && !skipFade) {
        // Nearly transparent before it takes its size, so that it does not flash up.
        fades.DoFadeIn(this);
        fades.Enable_TC_Timer();
    } else {
        fades.DeleteHWNDfromList(winId(), Layering::Remove, FadeEnd::KeepForm);
        Show_BesideMenus(*this);
    }
    Restore_Bounds();
    Stay_OnTop(Trigger::Now);
    Enable_Timer(TimerName::TK_AppMessage_Timer, false);
    Enable_Timer(TimerName::AutoHideTimer, true);
}

void MainForm::Minimize_Strip() {
    if (Is_Collapsed()) {
        return;
    }
    show();
    // Always to the top, whatever way AutoHide takes: that is meant.
    AutoHide_HideProc(HideMode::Top, false);
}

void MainForm::Hide_Strip() {
    if (!isVisible()) {
        return;
    }
    if (Is_Collapsed() && !collapsing) {
        Restore_Bounds();
    }
    AutoHide_HideProc(HideMode::TrayIcon, false);
}
