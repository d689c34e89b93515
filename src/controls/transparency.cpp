#include "controls/transparency.h"

#include "controls/show_beside.h"
#include "controls/timers.h"
#include "platform/clock.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr std::size_t FirstRecords = 101;
constexpr std::size_t MoreRecords = 20;
constexpr std::int32_t RoundTime = 3; // ms

std::unique_ptr<TransparencyClass> sharedInstance;

std::size_t At(std::int32_t index) {
    return static_cast<std::size_t>(index);
}

} // namespace

TransparencyClass& Global_Transparency() {
    if (sharedInstance == nullptr) {
        sharedInstance = std::make_unique<TransparencyClass>();
    }
    return *sharedInstance;
}

void Release_Transparency() {
    sharedInstance.reset();
}

TransparencyClass::TransparencyClass() : list(FirstRecords) {}

std::int32_t TransparencyClass::Index_Of(platform::WindowId hWnd) const {
    for (std::int32_t i = 0; i <= LastIndex; ++i) {
        if (list[At(i)].hWnd == hWnd) {
            return i;
        }
    }
    return -1;
}

bool TransparencyClass::Is_FadingOut(const QWidget* form) const {
    for (std::int32_t i = 0; i <= LastIndex; ++i) {
        const Record& record = list[At(i)];
        if (record.StandardForm == form && record.Fade.Direction == FadeDirection::Out) {
            return true;
        }
    }
    return false;
}

void TransparencyClass::DoFadeIn(QWidget* form, FadeWorkForm* workForm) {
    AddHWNDtoList(form, FadeDirection::In, workForm);
}

void TransparencyClass::DoFadeOut(QWidget* form, FadeWorkForm* workForm) {
    AddHWNDtoList(form, FadeDirection::Out, workForm);
}

// A window that is in the list keeps its alpha, so that its fade turns round where it stands.
TransparencyClass::Record& TransparencyClass::Take_Record(platform::WindowId hWnd,
                                                          FadeDirection direction) {
    const std::int32_t known = Index_Of(hWnd);
    // The window system uses the numbers of destroyed windows again.
    const bool isNew = known == -1 || list[At(known)].StandardForm.isNull();
    if (known == -1) {
        ++LastIndex;
        if (At(LastIndex) >= list.size()) {
            list.resize(list.size() + MoreRecords);
        }
    }
    Record& record = list[At(known == -1 ? LastIndex : known)];
    if (isNew) {
        record = {};
        record.hWnd = hWnd;
        record.Fade.CurrentAlpha = direction == FadeDirection::In ? FaintestAlpha : StrongestAlpha;
    }
    record.Fade.Direction = direction;
    return record;
}

void TransparencyClass::AddHWNDtoList(QWidget* form, FadeDirection direction,
                                      FadeWorkForm* workForm) {
    auto& clock = platform::Clock::Get();
    const platform::WindowId hWnd = form->winId();
    Record& record = Take_Record(hWnd, direction);
    record.UseStandardForm = workForm == nullptr;
    record.StartTime = clock.Milliseconds();
    record.WorkForm = workForm;
    record.StandardForm = form;
    const std::int16_t alpha = record.Fade.CurrentAlpha;

    const std::int32_t before = clock.Milliseconds();
    platform::Windows::Get().Set_Alpha(hWnd, alpha);
    if (direction == FadeDirection::In) {
        Show_BesideMenus(*form);
    }
    // Becoming visible runs handlers of the form: the list may be another one by now.
    const std::int32_t index = Index_Of(hWnd);
    if (index != -1) {
        list[At(index)].SetAlphaTime = clock.Milliseconds_Since(before);
        RecalcSpeed = true;
    }
}

void TransparencyClass::DeleteHWNDfromList(platform::WindowId hWnd, Layering layering,
                                           FadeEnd end) {
    const std::int32_t index = Index_Of(hWnd);
    if (index == -1) {
        return;
    }
    const Record record = list[At(index)];
    list[At(index)] = list[At(LastIndex)];
    list[At(LastIndex)] = {};
    --LastIndex;
    RecalcSpeed = true;
    const QPointer<QWidget> form = record.StandardForm;
    if (end == FadeEnd::HideForm && form) {
        if (record.UseStandardForm) {
            form->setVisible(false);
        } else {
            record.WorkForm->Hide_Form();
        }
    }
    if (layering == Layering::Remove && form) {
        platform::Windows::Get().Clear_Alpha(hWnd);
    }
}

void TransparencyClass::Enable_TC_Timer() {
    if (LastIndex >= 0 && !Running) {
        Global_Timers->Enable(TimerName::TransHandlerTimer);
    }
}

void TransparencyClass::Work_OutStep() {
    RecalcSpeed = false;
    std::vector<std::int32_t> times;
    for (std::int32_t i = 0; i <= LastIndex; ++i) {
        times.push_back(list[At(i)].SetAlphaTime);
    }
    alphaStep = Alpha_Step(times);
}

// The list shrinks as fades end: the last record then stands in the place of the one that ended.
void TransparencyClass::Fade_AStep() {
    std::int32_t i = 0;
    while (i <= LastIndex) {
        Record& record = list[At(i)];
        record.Fade.CurrentAlpha = Next_Alpha(record.Fade, alphaStep);
        if (!Fade_Is_Over(record.Fade,
                          platform::Clock::Get().Milliseconds_Since(record.StartTime))) {
            if (record.StandardForm) {
                platform::Windows::Get().Set_Alpha(record.hWnd, record.Fade.CurrentAlpha);
            }
            ++i;
            continue;
        }
        const platform::WindowId hWnd = record.hWnd;
        const bool isOut = record.Fade.Direction == FadeDirection::Out;
        if (isOut && record.UseStandardForm && record.StandardForm) {
            record.StandardForm->setEnabled(true);
        }
        DeleteHWNDfromList(hWnd, Layering::Remove, isOut ? FadeEnd::HideForm : FadeEnd::KeepForm);
    }
}

void TransparencyClass::Do_Round() {
    auto& clock = platform::Clock::Get();
    const std::int32_t start = clock.Milliseconds();
    if (RecalcSpeed) {
        Work_OutStep();
    }
    Fade_AStep();
    Running = LastIndex >= 0;
    if (Running) {
        pace.Start(RoundTime - clock.Milliseconds_Since(start), [this] { Do_Round(); });
    }
}

void TransparencyClass::TransparencyHandler() {
    if (!Running) {
        Do_Round();
    }
}
