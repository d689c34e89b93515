// The menu as its user meets it: the mouse goes over the forms, rests, leaves and clicks.
#include "controls/program_end.h"
#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "links/menu/links_menu.h"
#include "links/store/link_rec.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

const QRect Strip(40, 0, 333, 20);

class LinksMenu : public testing::Test {
protected:
    LinksMenu() {
        Global_Timers = &timers;
        Global_IsWinXP = true;
        Global_UseTransparency = false;
        Set_Program_Ending(false);
        // One > Inner > Deep, Two > Other, then Home, Mail, a line and Tool.
        Global_LinkArray.clear();
        Add(u"@0Category"_s, u"One"_s);
        Add(u"@1Category"_s, u"Inner"_s);
        Add(u"2http://deep"_s, u"Deep"_s);
        Add(u"@0Category"_s, u"Two"_s);
        Add(u"1http://other"_s, u"Other"_s);
        Add(u"0http://home"_s, u"Home"_s, u"At home"_s);
        Add(u"0mailto:me"_s, u"Mail"_s);
        Add(u"0-"_s, u"-------------"_s);
        Add(u"0tool.exe"_s, u"Tool"_s, {}, 2);
        Global_DefaultLinkArray.clear();
        Init_LinksMenu({[this] { ++gone; }, [] {}});
    }
    ~LinksMenu() override {
        Unload_LinksMenu();
        Release_Transparency();
        Set_Program_Ending(false);
    }

    static void Add(const QString& url, const QString& name, const QString& description = {},
                    std::uint8_t startSize = 0) {
        Global_LinkArray.push_back({url, name, description, startSize, 0});
    }
    // Opened by the button, the mouse still on it.
    LinksMenuV2* Open(MenuOpenedBy how = MenuOpenedBy::Mouse) {
        Rest_At(60, 10);
        Open_LinksMenu(how, Strip);
        return Current_RootMenu();
    }
    void Rest_At(int x, int y) { system.desktop.cursor = platform::Point{x, y}; }
    void Move_To(LinksMenuV2* form, int row) { Mouse(form, row, QEvent::MouseMove); }
    void Click(LinksMenuV2* form, int row) {
        Mouse(form, row, QEvent::MouseButtonPress);
        Mouse(form, row, QEvent::MouseButtonRelease);
    }
    void Mouse(LinksMenuV2* form, int row, QEvent::Type type) {
        const QPoint place = form->Row_Rect(row).center();
        const QPoint screen = form->pos() + place;
        Rest_At(screen.x(), screen.y());
        QMouseEvent event(type, place, screen,
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::NoButton,
                          {});
        QApplication::sendEvent(form, &event);
    }
    // Several ticks of a timer like the menu's: whatever the mouse's place brings about is done.
    static void Poll() {
        int ticks = 0;
        QTimer other;
        QObject::connect(&other, &QTimer::timeout, [&] { ++ticks; });
        other.start(10);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 4; }));
    }
    void Fade(int milliseconds) {
        Global_Transparency().TransparencyHandler();
        system.clock.Advance(milliseconds);
    }
    static LinksMenuV2* Wait_ForChild(LinksMenuV2* form) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return form->Child_Form() != nullptr && form->Child_Form()->Is_Open(); }));
        return form->Child_Form();
    }

    FakeSystem system;
    Timers timers;
    int gone = 0;
};

TEST_F(LinksMenu, From_the_button_into_the_menu_into_a_child_and_back_closes_only_what_was_left) {
    LinksMenuV2* root = Open();
    EXPECT_EQ(root->pos(), QPoint(40, 20));
    EXPECT_FALSE(timers.Is_Enabled(TimerName::Win98HideForms));
    Poll();
    ASSERT_TRUE(root->Is_Open()); // the mouse is on the toolbar
    Move_To(root, 0);
    LinksMenuV2* child = Wait_ForChild(root);
    EXPECT_EQ(child->pos(), QPoint(40 + root->width(), 20 + 26));
    Poll();
    ASSERT_TRUE(child->Is_Open()); // the mouse has not reached it yet
    Move_To(child, 0);
    LinksMenuV2* grandchild = Wait_ForChild(child);
    Move_To(grandchild, 0);
    Poll();
    EXPECT_TRUE(root->Is_Open() && child->Is_Open() && grandchild->Is_Open());
    EXPECT_EQ(root->Selected_Row(), 0); // the highlight shows the way
    Move_To(child, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !grandchild->isVisible(); }));
    EXPECT_TRUE(root->Is_Open() && child->Is_Open());
    EXPECT_EQ(gone, 0);
    Move_To(child, 0); // its category opens again
    Move_To(Wait_ForChild(child), 0);
    Rest_At(700, 700);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !LinksMenu_Visible(); }));
    EXPECT_FALSE(child->isVisible() || grandchild->isVisible());
    EXPECT_EQ(gone, 1);
    EXPECT_TRUE(timers.Is_Enabled(TimerName::Win98HideForms));
}

TEST_F(LinksMenu, A_quick_mouse_opens_the_last_category_only_and_a_click_does_not_wait) {
    LinksMenuV2* root = Open();
    Move_To(root, 0);
    Move_To(root, 1);
    LinksMenuV2* child = Wait_ForChild(root);
    EXPECT_EQ(child->Caption(0), u"Other"_s);
    EXPECT_EQ(child->Parent_Form(), root);
    Click(root, 0);
    EXPECT_FALSE(child->isVisible());
    child = root->Child_Form();
    ASSERT_TRUE(child->Is_Open());
    EXPECT_EQ(child->Caption(0), u"Inner"_s);
    Click(root, 0);
    EXPECT_TRUE(child->Is_Open() && root->Child_Form() == child);
    Move_To(root, 4); // a line
    EXPECT_FALSE(child->isVisible());
    Click(root, 4);
    EXPECT_TRUE(root->Is_Open());
}

TEST_F(LinksMenu, A_link_is_opened_once_the_whole_menu_has_gone) {
    Global_UseTransparency = true;
    LinksMenuV2* root = Open();
    Click(root, 1);
    Click(root->Child_Form(), 0);
    ASSERT_EQ(system.shell.calls.size(), 1U);
    EXPECT_EQ(system.shell.calls[0].target, u"http://other"_s);
    EXPECT_FALSE(LinksMenu_Visible());
    Click(Open(), 5);
    EXPECT_EQ(system.shell.calls[1].state, platform::ShowState::Maximized);
    EXPECT_EQ(gone, 2);
    // Under the box the tree is built anew and its events run, then the program ends.
    Global_LinkArray.clear();
    Add(u"0help:about"_s, u"About"_s);
    Update_LinksMenu();
    system.dialogs.Expect_Message(u"Tockly\nVersion 1.1"_s, platform::BoxStyle::Information,
                                  u"About..."_s);
    system.dialogs.whileOpen = [&](const auto&) {
        EXPECT_FALSE(LinksMenu_Visible());
        Update_LinksMenu();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Set_Program_Ending(true);
    };
    Click(Open(), 0);
    EXPECT_EQ(Current_RootMenu(), nullptr);
    EXPECT_EQ(Open(), nullptr);
}

TEST_F(LinksMenu, With_fades_a_child_goes_slowly_and_can_be_called_back) {
    Global_UseTransparency = true;
    LinksMenuV2* root = Open();
    EXPECT_EQ(system.windows.windows[root->winId()].alpha, 1);
    Click(root, 0);
    LinksMenuV2* child = root->Child_Form();
    Fade(700);
    Move_To(child, 0);
    Move_To(root, 2);
    EXPECT_TRUE(child->isVisible() && !child->Is_Open());
    EXPECT_TRUE(Global_Transparency().Is_FadingOut(child));
    Click(root, 0);
    EXPECT_TRUE(child->Is_Open() && !Global_Transparency().Is_FadingOut(child));
    Move_To(child, 0); // the row it had before: its category opens again
    EXPECT_EQ(Wait_ForChild(child)->Caption(0), u"Deep"_s);
    Move_To(root, 2);
    Fade(700);
    EXPECT_FALSE(child->isVisible());
    Rest_At(700, 700);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !root->Is_Open(); }));
    EXPECT_TRUE(LinksMenu_Visible() && gone == 0);
    // The list is applied in the middle of the fade.
    Fade(100);
    Update_LinksMenu();
    EXPECT_EQ(gone, 1);
    EXPECT_EQ(Global_Transparency().Last_Index(), -1);
    EXPECT_FALSE(timers.Is_Enabled(TimerName::Win98HideForms));
}

TEST_F(LinksMenu, New_links_a_press_on_the_toolbar_and_an_empty_list_close_it) {
    QPointer<LinksMenuV2> root = Open();
    Click(root, 0);
    const QPointer<LinksMenuV2> child = root->Child_Form();
    Unload_PendingForms(); // as a press does
    EXPECT_FALSE(LinksMenu_Visible() || child->isVisible());
    EXPECT_EQ(gone, 1);
    root = Open();
    Click(root, 0);
    Global_LinkArray = {};
    Update_LinksMenu();
    EXPECT_FALSE(LinksMenu_Visible());
    EXPECT_EQ(gone, 2);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(root.isNull() && child.isNull());
    EXPECT_EQ(Open(), nullptr);
}

TEST_F(LinksMenu, Opened_by_keyboard_it_has_the_focus_and_waits_for_the_mouse) {
    LinksMenuV2* root = Open(MenuOpenedBy::Keyboard);
    EXPECT_EQ(system.windows.windows[root->winId()].activations, 1);
    Rest_At(700, 700);
    Poll();
    ASSERT_TRUE(root->Is_Open());
    for (const auto key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
        QTest::keyClick(root, key);
    LinksMenuV2* deep = root->Child_Form()->Child_Form();
    ASSERT_TRUE(deep->Is_Open());
    EXPECT_EQ(deep->Selected_Row(), 0);
    QTest::keyClick(root, Qt::Key_Left);
    QTest::keyClick(root, Qt::Key_Escape);
    EXPECT_FALSE(deep->isVisible() || root->Child_Form()->isVisible());
    const std::pair<int, int> keys[] = {{Qt::Key_Up, 5},  {Qt::Key_Up, 3},   {Qt::Key_Home, 0},
                                        {Qt::Key_End, 5}, {Qt::Key_Left, 5}, {Qt::Key_T, 1},
                                        {Qt::Key_T, 5},   {Qt::Key_T, 1}};
    for (const auto& [key, row] : keys) {
        QTest::keyClick(root, static_cast<Qt::Key>(key));
        EXPECT_EQ(root->Selected_Row(), row) << key;
    }
    Move_To(root, 3);
    Rest_At(700, 700);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !root->isVisible(); }));
}

TEST_F(LinksMenu, Of_a_level_longer_than_the_screen_every_row_can_be_reached) {
    Global_LinkArray.clear();
    for (int i = 0; i < 2000; ++i)
        Add(u"0http://%1"_s.arg(i), u"Link %1"_s.arg(i));
    Global_LinkArray.back().LinkName = QString(3000, u'W'); // nor is it wider than the screen
    Update_LinksMenu();
    LinksMenuV2* root = Open(MenuOpenedBy::Keyboard);
    EXPECT_EQ(root->width(), 1280);
    EXPECT_EQ(root->Level_Size().height(), 2 + 24 * 2001 + 2);
    EXPECT_EQ(root->y(), 0);
    EXPECT_EQ(root->height(), 1024);
    QTest::keyClick(root, Qt::Key_End);
    EXPECT_EQ(root->Row_Rect(1999).bottom(), 1024 - 3);
    QWheelEvent wheel({5, 5}, {45, 5}, {}, {0, 240}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(root, &wheel);
    EXPECT_EQ(root->Row_Rect(1999).bottom(), 1024 - 3 + 4 * 24);
    Rest_At(41, 1);
    Click(root, 1990);
    EXPECT_EQ(system.shell.calls.back().target, u"http://1990"_s);
}

TEST_F(LinksMenu, A_screen_reader_meets_a_menu_of_items) {
    LinksMenuV2* root = Open(MenuOpenedBy::Keyboard);
    QAccessibleInterface* menu = QAccessible::queryAccessibleInterface(root);
    EXPECT_EQ(menu->role(), QAccessible::PopupMenu);
    ASSERT_EQ(menu->childCount(), 6);
    EXPECT_EQ(menu->child(2)->text(QAccessible::Name), u"Home"_s);
    EXPECT_EQ(menu->child(4)->role(), QAccessible::Separator);
    EXPECT_TRUE(menu->child(0)->state().hasPopup);
    EXPECT_EQ(menu->child(6), nullptr);
    QTest::keyClick(root, Qt::Key_End);
    EXPECT_EQ(menu->focusChild(), menu->child(5));
    menu->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(system.shell.calls.back().target, u"mailto:me"_s);
}

} // namespace
