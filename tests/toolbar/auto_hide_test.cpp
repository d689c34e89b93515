// The strip that gets out of the way, and comes back.
#include "support/spoken_name.h"
#include "toolbar/main_form_fixture.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

class AutoHideTest : public MainFormTest {
protected:
    AutoHideTest() {
        form.Connect_Hiding({[this] { done << u"complete hide"_s; }, [this] { return linksMenu; }});
        timers.Start_FirstTimers();
    }

    // Hides, and lets the hide run for so long.
    void Hide(HideMode mode, int milliseconds = 1100) {
        form.AutoHide_HideProc(mode, false);
        timers.Tick(TimerName::TransHandlerTimer);
        clock.Advance(milliseconds);
    }
    void Let_Fade() {
        timers.Tick(TimerName::TransHandlerTimer);
        clock.Advance(700);
        EXPECT_FALSE(Global_Transparency().IsRunning());
    }
    void Expect_Shown(const QRect& place) {
        EXPECT_TRUE(form.Toolbar_Visible());
        EXPECT_TRUE(form.isEnabled());
        EXPECT_FALSE(form.Picture2->isVisible());
        EXPECT_FALSE(tray.icon);
        EXPECT_EQ(Place(), place);
        EXPECT_EQ(form.Line_Width(), place.width() - 221);
        EXPECT_TRUE(timers.Is_Enabled(TimerName::AutoHideTimer));
    }

    static constexpr QRect Home{100, 50, 333, 20};
    bool linksMenu = false;
};

TEST_F(AutoHideTest, Each_Way_Ends_At_Its_Size_And_Edge_On_Time_And_A_Click_Brings_The_Strip_Back) {
    struct Case {
        const char* name;
        HideMode mode;
        QRect second; // after its second round
        QRect rest;
        int longest; // ms
    };
    const Case cases[] = {
        {"to the top", HideMode::Top, {100, 50, 333, 18}, {100, 50, 333, 8}, 330},
        {"to the left", HideMode::Left, {100, 50, 293, 20}, {100, 50, 10, 20}, 1030},
        {"to the right", HideMode::Right, {140, 50, 293, 20}, {423, 50, 10, 20}, 1030},
        {"to the bottom", HideMode::Bottom, {100, 52, 333, 18}, {100, 62, 333, 8}, 330},
    };
    for (const bool isSlow : {false, true}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.name);
            Hide(c.mode, 45);
            EXPECT_EQ(Place(), c.second);
            EXPECT_TRUE(form.IsHiding());
            EXPECT_TRUE(form.Picture2->isVisible());
            form.AutoHide_HideProc(HideMode::TrayIcon, true); // one at a time
            if (isSlow) {
                clock.Pass(2000);
            }
            clock.Advance(isSlow ? 30 : c.longest - 45);
            EXPECT_EQ(Place(), c.rest);
            EXPECT_EQ(form.Picture2->geometry(), QRect(QPoint(), c.rest.size()));
            EXPECT_FALSE(form.Toolbar_Visible());
            EXPECT_FALSE(form.IsHiding());
            EXPECT_EQ(form.Line_Width(), 112);
            EXPECT_EQ(form.Live_Bounds().Width, c.rest.width() * 15);
            QTest::keyClick(&form, Qt::Key_Right, Qt::ControlModifier);
            EXPECT_EQ(Place(), c.rest);
            QTest::mouseClick(form.Picture2, Qt::LeftButton);
            Expect_Shown(Home);
        }
    }
    EXPECT_EQ(windows.windows[form.winId()].alphas.size(), 0U);
}

TEST_F(AutoHideTest, The_Thin_Strip_Tells_What_It_Is_For_And_Takes_A_Key) {
    QTest::mouseClick(form.wbButton1, Qt::LeftButton);
    clock.Advance(400);
    EXPECT_EQ(Place(), QRect(100, 50, 333, 8));
    EXPECT_EQ(Spoken_Name(form.Picture2), u"Click here to show the toolbar"_s);
    EXPECT_EQ(form.Picture2->Face_Color().name(), u"#e0e0e0"_s);
    Press(form.Picture2, {200, 54});
    EXPECT_EQ(form.Picture2->Face_Color().name(), u"#f5f5f5"_s);
    Release(form.Picture2, {2000, 54});
    EXPECT_EQ(form.Picture2->Face_Color().name(), u"#e0e0e0"_s);
    EXPECT_TRUE(form.Is_Collapsed());
    QTest::keyClick(form.Picture2, Qt::Key_Space);
    Expect_Shown(Home);
}

TEST_F(AutoHideTest, A_Show_In_The_Middle_Of_A_Collapse_Ends_Where_The_Strip_Was) {
    for (const HideMode mode : {HideMode::Top, HideMode::Left, HideMode::Right, HideMode::Bottom}) {
        Hide(mode, 100);
        EXPECT_NE(Place(), Home);
        EXPECT_EQ(form.Live_Bounds(), (TwipsRect{1500, 750, 4995, 300}));
        form.AutoHide_ShowProc(false);
        clock.Advance(2000);
        Expect_Shown(Home);
    }
    // The last word counts.
    Hide(HideMode::Left, 100);
    form.AutoHide_ShowProc(false);
    Hide(HideMode::Bottom);
    EXPECT_EQ(Place(), QRect(100, 62, 333, 8));
    EXPECT_FALSE(form.IsHiding());
}

TEST_F(AutoHideTest, A_Guarded_Strip_Stays_And_Only_The_Close_Button_Says_Why) {
    form.Guard_Hiding(u"Not now"_s);
    clock.Advance(6000);
    timers.Tick(TimerName::AutoHideTimer);
    form.AutoHide_HideProc(HideMode::Top, false);
    Expect_Shown(Home);
    for (const auto shift : {Qt::NoModifier, Qt::ShiftModifier}) {
        dialogs.Expect_Message(u"Not now"_s);
        QTest::mouseClick(form.wbButton1, Qt::LeftButton, shift);
        Expect_Shown(Home);
    }
    form.AutoHide_HideProc(HideMode::Top, true);
    EXPECT_TRUE(form.Is_Collapsed());
    form.AutoHide_ShowProc(true);
    form.Lift_HideGuard();
    QTest::mouseClick(form.wbButton1, Qt::LeftButton);
    EXPECT_TRUE(form.Is_Collapsed());
}

TEST_F(AutoHideTest, It_Hides_By_Itself_When_The_Mouse_Has_Been_Away_Long_Enough) {
    const auto tick = [this](int milliseconds) {
        clock.Advance(milliseconds);
        timers.Tick(TimerName::AutoHideTimer);
        return form.Is_Collapsed();
    };
    EXPECT_FALSE(tick(4999));
    Move_Cursor(433, 70); // rests on the corner
    EXPECT_FALSE(tick(3600'000));
    Move_Cursor(434, 70);
    linksMenu = true;
    EXPECT_FALSE(tick(0));
    linksMenu = false;
    Global_ToolbarMessages[4].Active = true;
    EXPECT_FALSE(tick(0));
    Global_ToolbarMessages[4].Active = false;
    // Looks of which nothing can come end, and the mouse begins them again.
    const auto looks = [this] { return timers.Is_Enabled(TimerName::AutoHideTimer); };
    EXPECT_TRUE(looks());
    Global_Autohide_Enabled = false;
    EXPECT_FALSE(tick(0));
    form.MouseOver();
    EXPECT_FALSE(looks());
    Global_Autohide_Enabled = true;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&form, &leave);
    EXPECT_TRUE(looks());
    EXPECT_TRUE(tick(5000));
    EXPECT_TRUE(looks());
    EXPECT_TRUE(tick(1000));
    EXPECT_FALSE(looks());
    EXPECT_EQ(Place(), QRect(100, 50, 10, 20)); // left of the middle

    form.AutoHide_ShowProc(false);
    EXPECT_FALSE(tick(5999)); // a second more than the wait time
    Global_Autohide_SelectedHideMode = 3;
    EXPECT_TRUE(tick(1));
    clock.Advance(400);
    EXPECT_EQ(Place(), QRect(100, 62, 333, 8));
}

TEST_F(AutoHideTest, Hidden_Completely_It_Comes_Back_By_Its_Icon_And_Its_Menu) {
    commands.Connect(ToolbarCommand::View_Notes, [this] {
        EXPECT_TRUE(form.Toolbar_Visible());
        done << u"notes"_s;
    });
    const auto hide = [this] {
        QTest::mouseClick(form.wbButton1, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Toolbar_Visible());
        EXPECT_FALSE(timers.Is_Enabled(TimerName::AutoHideTimer));
        ASSERT_TRUE(tray.icon);
    };
    hide();
    EXPECT_EQ(done, QStringList{u"complete hide"_s});
    EXPECT_EQ(tray.icon->Tip, u"Tockly"_s);
    QString entries;
    for (const platform::TrayItem& item : tray.icon->Menu) {
        entries += (item.Enabled ? u"|"_s : u"|~"_s) + item.Caption;
    }
    EXPECT_EQ(entries.toStdString(), "|Show Toolbar||~Add new reminder...||~View Reminders|"
                                     "View Notes||~Setup...||Exit Tockly");
    windows.windows[form.winId()] = {};
    tray.Click();
    Expect_Shown(Home);
    EXPECT_TRUE(windows.windows[form.winId()].leftTaskBar);
    EXPECT_TRUE(windows.windows[form.winId()].keepsPlace);
    EXPECT_TRUE(windows.windows[form.winId()].topmost);
    for (const int item : {0, 5}) {
        hide();
        tray.Pick(item);
        Expect_Shown(Home);
    }
    hide();
    tray.Pick(9);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(done.filter(u"hide"_s).size(), 4);
    EXPECT_EQ(done.filter(QRegularExpression(u"notes|unload"_s)),
              (QStringList{u"notes"_s, u"unload"_s}));
}

TEST_F(AutoHideTest, Hiding_A_Collapsed_Strip_Restores_It_First) {
    Hide(HideMode::Left);
    QTest::mouseRelease(form.wbButton1, Qt::LeftButton, Qt::ShiftModifier, {5, 5});
    Q_EMIT form.wbButton1->Click();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Live_Bounds(), (TwipsRect{1500, 750, 4995, 300}));
    tray.Click();
    Expect_Shown(Home);
}

TEST_F(AutoHideTest, Without_A_Tray_The_Thin_Strip_Is_What_Stays) {
    tray.available = false;
    Global_Autohide_SelectedHideMode = 4;
    form.Move_To(700, 10);
    clock.Advance(6000);
    timers.Tick(TimerName::AutoHideTimer);
    clock.Advance(400);
    EXPECT_EQ(Place(), QRect(700, 10, 333, 8));
    EXPECT_EQ(tray.added, 0);
    EXPECT_EQ(done, QStringList());
    form.AutoHide_ShowProc(false);
    Expect_Shown(QRect(700, 10, 333, 20));
}

TEST_F(AutoHideTest, It_Fades_Into_The_Tray_Taking_No_Input_And_Can_Turn_Round) {
    Global_UseTransparency = true;
    auto& state = windows.windows[form.winId()];
    form.AutoHide_HideProc(HideMode::TrayIcon, false);
    EXPECT_TRUE(tray.icon);
    EXPECT_FALSE(form.isEnabled());
    EXPECT_TRUE(form.IsHiding()); // the rounds have not begun yet
    Let_Fade();
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(form.isEnabled());
    EXPECT_FALSE(form.IsHiding());
    EXPECT_TRUE(tray.icon);

    tray.Click();
    EXPECT_EQ(state.alpha, 1);
    Let_Fade();
    Expect_Shown(Home);
    EXPECT_EQ(state.alpha, std::nullopt);

    // A message comes in the middle of the fade.
    state.alphas.clear();
    Hide(HideMode::TrayIcon, 149);
    const int turned = state.alpha.value();
    EXPECT_EQ(turned, 254 - 50); // a step every 3 ms
    EXPECT_TRUE(form.IsHiding());
    form.AutoHide_ShowProc(false);
    EXPECT_EQ(state.alpha, turned);
    EXPECT_TRUE(form.isEnabled());
    Let_Fade();
    EXPECT_EQ(*std::min_element(state.alphas.begin(), state.alphas.end()), turned);
    Expect_Shown(Home);

    // The same without a fade back.
    Hide(HideMode::TrayIcon, 150);
    form.AutoHide_ShowProc(true);
    Let_Fade();
    Expect_Shown(Home);
    EXPECT_EQ(state.alpha, std::nullopt);
}

TEST_F(AutoHideTest, The_Fade_Of_Another_Window_Holds_Off_A_Hide_And_Leaves_A_Show_Alone) {
    QWidget other;
    Global_UseTransparency = true;
    Global_Transparency().DoFadeIn(&other);
    timers.Tick(TimerName::TransHandlerTimer);
    EXPECT_TRUE(form.IsHiding());
    form.AutoHide_HideProc(HideMode::Top, false);
    form.AutoHide_ShowProc(false);
    EXPECT_EQ(Place(), Home);
    Let_Fade();
    Expect_Shown(Home);
    EXPECT_EQ(windows.windows[form.winId()].alphas.size(), 0U);
}

TEST_F(AutoHideTest, A_Storm_Of_Clicks_Leaves_A_Strip_That_Answers) {
    Global_UseTransparency = true;
    for (int wait = 0; wait < 400; wait += 23) {
        QTest::mouseClick(form.wbButton1, Qt::LeftButton);
        QTest::mouseClick(form.wbButton1, Qt::LeftButton, Qt::ShiftModifier);
        QTest::mouseClick(form.Picture2, Qt::LeftButton);
        if (tray.icon) {
            tray.Click();
        }
        timers.Tick(TimerName::TransHandlerTimer);
        clock.Advance(wait);
    }
    Let_Fade();
    form.AutoHide_ShowProc(true);
    Let_Fade();
    Expect_Shown(Home);
}

} // namespace
