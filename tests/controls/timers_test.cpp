#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "support/scripted_dialogs.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TimersTest : public testing::Test {
protected:
    TimersTest() { Global_Timers = &timers; }
    ~TimersTest() override { Global_PendingUnloads.clear(); }

    ScriptedDialogs dialogs;
    Timers timers;
};

TEST_F(TimersTest, A_timer_ticks_again_and_again_until_its_own_work_stops_it) {
    int ticks = 0;
    timers.On_Tick(TimerName::ResizeForm_Timer, [&] {
        if (++ticks == 3) {
            timers.Enable(TimerName::ResizeForm_Timer, false);
        }
    });
    timers.Enable(TimerName::ResizeForm_Timer);
    timers.Enable(TimerName::ResizeForm_Timer);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
    EXPECT_FALSE(timers.Is_Enabled(TimerName::ResizeForm_Timer));
}

TEST_F(TimersTest, A_message_box_holds_the_work_back_and_the_next_tick_does_it) {
    int checks = 0;
    timers.On_Tick(TimerName::R_CheckDate_Timer, [&] { ++checks; });
    timers.Start_FirstTimers();
    dialogs.whileOpen = [&](const ScriptedDialogs::Box&) {
        timers.Tick(TimerName::R_CheckDate_Timer);
    };
    dialogs.Expect_Message(u"text"_s);
    dialogs.Message(u"text"_s, platform::BoxStyle::Exclamation);
    EXPECT_EQ(checks, 0);
    timers.Tick(TimerName::R_CheckDate_Timer);
    EXPECT_EQ(checks, 1);
    // An input box lets them run.
    dialogs.Expect_Input(u"Name"_s, std::nullopt);
    dialogs.Input(nullptr, u"Name"_s, {}, {}, {});
    EXPECT_EQ(checks, 2);
}

TEST_F(TimersTest, Nothing_ticks_after_the_end_even_if_somebody_enables_it) {
    int ticks = 0;
    timers.On_Tick(TimerName::S_Reminder_Timer, [&] { ++ticks; });
    timers.Stop_All();
    timers.Enable(TimerName::S_Reminder_Timer);
    EXPECT_FALSE(timers.Is_Enabled(TimerName::S_Reminder_Timer));
    timers.Tick(TimerName::S_Reminder_Timer);
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimersTest, Work_may_replace_itself) {
    QString done;
    timers.On_Tick(TimerName::RunWizard_Timer, [&] {
        timers.On_Tick(TimerName::RunWizard_Timer, [&] { done += u'b'; });
        done += u'a';
    });
    timers.Tick(TimerName::RunWizard_Timer);
    timers.Tick(TimerName::RunWizard_Timer);
    EXPECT_EQ(done, u"ab"_s);
}

// A form that asks to go from inside its own handler, and another to go with it.
class LeavingForm : public QWidget {
public:
    void Leave() {
        Queue_FormUnload(this);
        Queue_FormUnload(this);
        Unload_PendingForms();
        EXPECT_FALSE(isVisible()); // still alive under its own running code
    }
    QPointer<QWidget> next;

protected:
    void hideEvent(QHideEvent*) override { Queue_FormUnload(next); }
};

TEST_F(TimersTest, A_form_unloads_from_its_own_handler_and_may_queue_another) {
    timers.On_Tick(TimerName::UnloadFormsTimer, UnloadFormsTimer_Tick);
    QPointer<LeavingForm> form = new LeavingForm;
    QPointer<QWidget> other = new QWidget;
    form->next = other;
    form->show();
    form->Leave();
    EXPECT_TRUE(timers.Is_Enabled(TimerName::UnloadFormsTimer));
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.isNull() && other.isNull(); }));
    EXPECT_FALSE(timers.Is_Enabled(TimerName::UnloadFormsTimer));
    EXPECT_TRUE(Global_PendingUnloads.empty());
}

TEST_F(TimersTest, A_form_stays_while_a_loop_runs_in_one_of_its_handlers) {
    QPointer<QWidget> form = new QWidget;
    QEventLoop program;
    QEventLoop menu;
    int ticks = 0;
    timers.On_Tick(TimerName::UnloadFormsTimer, [&] {
        UnloadFormsTimer_Tick();
        Unload_PendingForms();
        if (++ticks == 2)
            menu.quit();
    });
    QObject::connect(form, &QObject::destroyed, &menu, &QEventLoop::quit);
    QObject::connect(form, &QObject::destroyed, &program, &QEventLoop::quit);
    QTimer::singleShot(0, form, [&] {
        Queue_FormUnload(form);
        menu.exec();
        EXPECT_FALSE(form.isNull());
    });
    program.exec();
    EXPECT_TRUE(form.isNull());
    EXPECT_TRUE(Global_PendingUnloads.empty());
}

TEST_F(TimersTest, A_form_that_has_gone_by_itself_does_no_harm_in_the_list) {
    auto* form = new QWidget;
    Queue_FormUnload(form);
    delete form;
    UnloadFormsTimer_Tick();
    EXPECT_TRUE(Global_PendingUnloads.empty());
}

} // namespace
