#include "accessories/setup/setup_rules.h"

#include "accessories/setup/run_key.h"
#include "controls/timers.h"
#include "controls/toolbar.h"
#include "core/date_text.h"
#include "platform/session.h"
#include "settings/global_settings.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int32_t Second = 1000;    // ms
constexpr std::int32_t ShortestWait = 2; // seconds
constexpr std::int32_t LongestWait = std::numeric_limits<std::int32_t>::max() / Second;
constexpr std::int32_t WizardWait = 10000; // ms

bool Is_Digits(const QString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter >= u'0' && letter <= u'9';
    });
}

// Seconds; 0 for a text that is no number. There is no upper limit but that of the setting itself:
// a longer time is as good as that, 24 days.
std::int32_t Wait_Seconds(const QString& text) {
    const QString trimmed = text.trimmed();
    if (!Is_Digits(trimmed))
        return 0;
    bool fits = false;
    const qlonglong seconds = trimmed.toLongLong(&fits);
    return fits ? static_cast<std::int32_t>(std::min<qlonglong>(seconds, LongestWait))
                : LongestWait;
}

// Its looks have ended while it was off.
void Set_AutoHide(bool enabled) {
    Global_Autohide_Enabled = enabled;
    if (enabled && Global_Timers != nullptr)
        Global_Timers->Enable(TimerName::AutoHideTimer);
}

} // namespace

SetupView Load_Settings_To_View() {
    SetupView view;
    view.UseShadows = Global_UseShadows;
    view.UseTransparency = Global_UseTransparency;
    view.EnableAutoHide = Global_Autohide_Enabled;
    view.RunAtStartUp = Read_RunKey();
    view.WaitTime = QString::number(Global_Autohide_WaitTime / Second);
    const std::int64_t option = std::int64_t{Global_Autohide_SelectedHideMode} + 1;
    view.HideOption = option >= 0 && option < HideOptionCount ? static_cast<int>(option) : -1;
    view.DateFormat = Global_DateFormat;
    return view;
}

std::optional<SetupRefusal> Save_View_To_Settings(const SetupView& view) {
    const std::int32_t seconds = Wait_Seconds(view.WaitTime);
    if (seconds < ShortestWait)
        return SetupRefusal{SetupField::WaitTime, u"Wait time must be greater than 1 second"_s};
    // Before the format is looked at: a wrong one leaves the new wait time in force, as is meant.
    Global_Autohide_WaitTime = seconds * Second;
    if (!IsValidDateFormat(view.DateFormat))
        return SetupRefusal{SetupField::DateFormat,
                            u"Invalid Date Format.\r\n"
                            "The date Format must contain the following fields:\r\n"
                            "dd, mm, yy or yyyy\r\n\r\nExample: mm/dd/yyyy"_s};
    Global_DateFormat = view.DateFormat;
    if (Global_IsWinXP) {
        Global_UseShadows = view.UseShadows;
        Global_UseTransparency = view.UseTransparency;
    }
    Set_AutoHide(view.EnableAutoHide);
    Global_Autohide_SelectedHideMode = view.HideOption < 0 ? -1 : view.HideOption - 1;
    Write_RunKey(view.RunAtStartUp);
    return std::nullopt;
}

WizardView Load_Wizard_View() {
    WizardView view;
    view.EnableAutoHide = Global_Autohide_Enabled;
    view.SystemTray =
        Global_Autohide_SelectedHideMode == static_cast<std::int32_t>(HideMode::TrayIcon);
    view.DateFormat = Global_DateFormat;
    view.LoadOnStartup = Read_RunKey();
    return view;
}

QString Apply_Wizard_Settings(const WizardView& view) {
    const bool isValid = IsValidDateFormat(view.DateFormat);
    Global_DateFormat = isValid ? view.DateFormat
                                : Default_DateFormat(platform::Session::Get().Short_Date_Pattern());
    Global_Autohide_WaitTime = WizardWait;
    Set_AutoHide(view.EnableAutoHide);
    Global_Autohide_SelectedHideMode =
        static_cast<std::int32_t>(view.SystemTray ? HideMode::TrayIcon : HideMode::Best);
    Write_RunKey(view.LoadOnStartup);
    return isValid ? QString()
                   : u"Invalid Date Format: "_s + view.DateFormat +
                         u"\r\n\r\nThe default system format will be used."_s;
}

QPoint Place_Of(ToolbarPlace place, int toolbarWidth, const QRect& screen, const QPoint& manual) {
    const int free = screen.width() - toolbarWidth;
    switch (place) {
    case ToolbarPlace::TopLeft:
        return screen.topLeft();
    case ToolbarPlace::TopCenter:
        return screen.topLeft() + QPoint(free / 2, 0);
    case ToolbarPlace::TopRight:
        return screen.topLeft() + QPoint(free, 0);
    case ToolbarPlace::Manual:
        break;
    }
    return manual;
}

QString Step_Name(const QString& tag) {
    return tag.section(u';', 0, 0);
}
