#include "controls/timers.h"
#include "controls/transparency.h"
#include "support/fake_clock.h"
#include "support/recording_windows.h"
#include "support/scripted_dialogs.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace {

TEST(FadeRules, The_step_grows_with_what_the_updates_cost) {
    struct Case {
        const char* name;
        std::vector<std::int32_t> times;
        int step;
    };
    const Case cases[] = {
        {"nothing measurable", {0}, 1},
        {"3 and 2", {3, 2}, 1},
        {"just 3", {3}, 1},
        {"6", {6}, 2},
        {"10 and 2", {10, 2}, 4},
        {"a machine that hangs", {2147483647, 2147483647}, 255},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Alpha_Step(c.times), c.step) << c.name;
    }
}

class Transparency : public testing::Test {
protected:
    Transparency() { Global_Timers = &timers; }

    RecordingWindows::State& State_Of(const QWidget& window) {
        return windows.windows[window.winId()];
    }
    // The rounds from now on, for so many ms.
    void Fade_For(int milliseconds) {
        fades.TransparencyHandler();
        clock.Advance(milliseconds);
    }
    void Fade_ToTheEnd() {
        Fade_For(700);
        EXPECT_FALSE(fades.IsRunning());
        EXPECT_EQ(fades.Last_Index(), -1);
    }

    FakeClock clock;
    RecordingWindows windows;
    Timers timers;
    TransparencyClass fades;
};

TEST_F(Transparency, A_window_comes_up_faint_gets_stronger_and_ends_without_any_layer) {
    QWidget window;
    fades.DoFadeIn(&window);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(State_Of(window).alpha, 1);
    Fade_For(0);
    EXPECT_EQ(State_Of(window).alpha, 2) << "one round, and back to the event loop";
    fades.TransparencyHandler();
    EXPECT_EQ(State_Of(window).alpha, 2) << "the rounds run already";
    Fade_ToTheEnd();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(State_Of(window).alpha, std::nullopt);
    // A round every 3 ms: after 600 ms the end is forced.
    const auto& alphas = State_Of(window).alphas;
    ASSERT_EQ(alphas.size(), 202U);
    EXPECT_EQ(alphas.back(), 202);
}

TEST_F(Transparency, A_window_that_fades_out_turns_round_where_it_stands) {
    QWidget window;
    window.show();
    window.setEnabled(false);
    fades.DoFadeOut(&window);
    Fade_For(29);
    EXPECT_TRUE(fades.IsRunning());
    EXPECT_TRUE(fades.Is_FadingOut(&window));
    fades.DoFadeIn(&window);
    EXPECT_FALSE(fades.Is_FadingOut(&window));
    EXPECT_EQ(fades.Last_Index(), 0);
    clock.Advance(30);
    fades.DoFadeOut(&window);
    Fade_ToTheEnd();
    const auto& alphas = State_Of(window).alphas;
    EXPECT_EQ(alphas.front(), 254);
    EXPECT_EQ(alphas[10], 244);
    EXPECT_EQ(alphas[11], 244); // as it stood when it turned
    EXPECT_EQ(alphas[12], 245);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(window.isEnabled());
}

TEST_F(Transparency, A_hundred_and_fifty_windows_fade_at_once_each_to_its_own_end) {
    std::vector<std::unique_ptr<QWidget>> all;
    for (int i = 0; i < 150; ++i) {
        all.push_back(std::make_unique<QWidget>());
        const bool goesOut = i % 3 == 0;
        all.back()->setVisible(goesOut);
        goesOut ? fades.DoFadeOut(all.back().get()) : fades.DoFadeIn(all.back().get());
    }
    EXPECT_EQ(fades.Last_Index(), 149);
    Fade_For(100);
    all[0].reset(); // destroyed on its way, first and last of the list
    all[149].reset();
    fades.DeleteHWNDfromList(all[1]->winId(), Layering::Remove, FadeEnd::KeepForm);
    EXPECT_EQ(fades.Last_Index(), 148);
    Fade_ToTheEnd();
    for (std::size_t i = 1; i < 149; ++i) {
        EXPECT_EQ(all[i]->isVisible(), i % 3 != 0) << i;
        EXPECT_EQ(State_Of(*all[i]).alpha, std::nullopt) << i;
    }
}

TEST_F(Transparency, A_dear_update_makes_larger_steps) {
    struct DearWindow : QWidget {
        FakeClock& clock;
        explicit DearWindow(FakeClock& testClock) : clock(testClock) {}
        void showEvent(QShowEvent*) override { clock.Advance(60); }
    } dear(clock);
    QWidget cheap;
    cheap.show();
    fades.DoFadeOut(&cheap);
    fades.DoFadeIn(&dear);
    Fade_ToTheEnd();
    EXPECT_EQ(State_Of(dear).alphas[1], 21);
    EXPECT_EQ(State_Of(cheap).alphas[1], 234);
}

TEST_F(Transparency, A_form_with_its_own_way_to_hide_takes_it) {
    struct Menu : QWidget, FadeWorkForm {
        int hidden = 0;
        void Hide_Form() override { ++hidden; }
    } menu;
    menu.show();
    fades.DoFadeOut(&menu, &menu);
    Fade_ToTheEnd();
    EXPECT_EQ(menu.hidden, 1);
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(Transparency, The_timer_starts_the_rounds_of_a_list_that_is_not_empty_even_under_a_box) {
    timers.On_Tick(TimerName::TransHandlerTimer, [this] { fades.TransparencyHandler(); });
    fades.Enable_TC_Timer();
    EXPECT_FALSE(timers.Is_Enabled(TimerName::TransHandlerTimer));
    QWidget window;
    fades.DoFadeIn(&window);
    fades.Enable_TC_Timer();
    EXPECT_TRUE(timers.Is_Enabled(TimerName::TransHandlerTimer));
    timers.Enable(TimerName::TransHandlerTimer, false);
    ScriptedDialogs dialogs;
    dialogs.whileOpen = [&](const ScriptedDialogs::Box&) {
        timers.Tick(TimerName::TransHandlerTimer);
        fades.Enable_TC_Timer();
        EXPECT_FALSE(timers.Is_Enabled(TimerName::TransHandlerTimer)) << "they run already";
        clock.Advance(700);
        EXPECT_EQ(State_Of(window).alpha, std::nullopt);
    };
    dialogs.Expect_Message(QStringLiteral("Error"), platform::BoxStyle::Critical);
    dialogs.Message(QStringLiteral("Error"), platform::BoxStyle::Critical);
    EXPECT_FALSE(fades.IsRunning());
}

} // namespace
