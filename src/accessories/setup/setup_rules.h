// What the setup window and the wizard show of the settings, and how they store them. No window
// here.
#pragma once

#include <QRect>
#include <QString>

#include <array>
#include <optional>

inline constexpr int HideOptionCount = 6; // "Auto", then the hide modes

struct SetupView {
    bool UseShadows = false;
    bool UseTransparency = false;
    bool EnableAutoHide = false;
    bool RunAtStartUp = false;
    QString WaitTime;    // seconds
    int HideOption = -1; // 0 = "Auto"; -1 = none is set
    QString DateFormat;
};

enum class SetupField { WaitTime, DateFormat };
struct SetupRefusal {
    SetupField Field = SetupField::WaitTime;
    QString Message;
};

SetupView Load_Settings_To_View();
// Nothing when all is stored. What stands before the refused field is stored all the same.
std::optional<SetupRefusal> Save_View_To_Settings(const SetupView& view);

struct WizardView {
    bool EnableAutoHide = false;
    bool SystemTray = true; // the hide mode; else the toolbar shrinks where it is
    QString DateFormat;
    bool LoadOnStartup = false;
};

WizardView Load_Wizard_View();
// Stores all of it. The text for a message box, empty when there is nothing to say.
QString Apply_Wizard_Settings(const WizardView& view);

enum class ToolbarPlace { TopLeft, TopCenter, TopRight, Manual };
// Pixels; manual: where the toolbar stood when the wizard came.
QPoint Place_Of(ToolbarPlace place, int toolbarWidth, const QRect& screen, const QPoint& manual);

struct WizardStep {
    const char16_t* Tag; // the step's name stands before the semicolon
};
inline constexpr std::array<WizardStep, 6> WizardSteps{{{u"Welcome;"},
                                                        {u"AutoHide;"},
                                                        {u"Position;"},
                                                        {u"Date format;"},
                                                        {u"Start up;"},
                                                        {u"Save new settings;"}}};
QString Step_Name(const QString& tag);
