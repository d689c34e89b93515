// Fades windows in and out, any number of them at the same pace. Whether fades are wanted at all
// (Global_IsWinXP, Global_UseTransparency) is for the caller to ask.
//
// A caller adds its windows, then calls Enable_TC_Timer. From the next tick of TransHandlerTimer on
// there is a round every 3 ms until all fades are over. A window that is destroyed in the middle
// leaves the list at its time limit.
#pragma once

#include "controls/fade_rules.h"
#include "controls/step_timer.h"
#include "platform/window.h"

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <vector>

// A form that has more to do at the end of its fade out than to become invisible. It is the
// second base of a widget.
class FadeWorkForm {
public:
    virtual ~FadeWorkForm() = default;
    virtual void Hide_Form() = 0;
};

enum class FadeEnd { KeepForm, HideForm };
enum class Layering { Keep, Remove };

class TransparencyClass {
public:
    TransparencyClass();

    // The first round; the others follow by themselves until the list is empty.
    void TransparencyHandler();
    // Takes a window out of the list, wherever its fade is; nothing when it is not there.
    void DeleteHWNDfromList(platform::WindowId hWnd, Layering layering, FadeEnd end);
    // Makes the form visible, at first nearly transparent. A fade that runs already turns round
    // where it stands. workForm: the same form, if it is one; none for an ordinary form.
    void DoFadeIn(QWidget* form, FadeWorkForm* workForm = nullptr);
    // At its end the form is enabled and made invisible.
    void DoFadeOut(QWidget* form, FadeWorkForm* workForm = nullptr);
    void AddHWNDtoList(QWidget* form, FadeDirection direction, FadeWorkForm* workForm);
    // Starts the rounds at the next tick, unless they run or have nothing to do.
    void Enable_TC_Timer();
    bool IsRunning() const { return Running; }

    // The form is in the list, on its way out.
    bool Is_FadingOut(const QWidget* form) const;
    // Index of the last window in the list; -1 = none.
    std::int32_t Last_Index() const { return LastIndex; }

private:
    struct Record {
        platform::WindowId hWnd = 0;
        FadeStep Fade;
        std::int32_t SetAlphaTime = 0; // ms, of the first update
        FadeWorkForm* WorkForm = nullptr;
        bool UseStandardForm = true;
        std::int32_t StartTime = 0; // millisecond clock
        QPointer<QWidget> StandardForm;
    };

    std::int32_t Index_Of(platform::WindowId hWnd) const;
    Record& Take_Record(platform::WindowId hWnd, FadeDirection direction);
    void Work_OutStep();
    void Do_Round();
    void Fade_AStep();

    std::vector<Record> list;
    std::int32_t LastIndex = -1;
    std::int16_t alphaStep = 1;
    bool RecalcSpeed = false;
    bool Running = false;
    StepTimer pace;
};

// The one for the whole program, made at its first use.
TransparencyClass& Global_Transparency();
// The next use makes a new one.
void Release_Transparency();
