#include "controls/counting_desktop.h"
#include "controls/wb_button.h"
#include "support/spoken_name.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QColor Rest(0xC0, 0xC0, 0xFF);
const QColor Pressed(0xE0, 0xE0, 0xFF);
const QColor Border(0, 0, 0x40);

// A button of 97 by 15 pixels on a window with another one to take the focus.
class ButtonTest : public testing::Test {
protected:
    ButtonTest() {
        window.resize(200, 60);
        button.setGeometry(10, 10, 97, 15);
        other.setGeometry(10, 30, 97, 15);
        const auto log = [this](const QString& name) { return [this, name] { events << name; }; };
        QObject::connect(&button, &wbButton::Click, log(u"Click"_s));
        QObject::connect(&button, &wbButton::DblClick, log(u"DblClick"_s));
        QObject::connect(&button, &wbButton::KeyDown, log(u"KeyDown"_s));
        QObject::connect(&button, &wbButton::KeyPress, log(u"KeyPress"_s));
        QObject::connect(&button, &wbButton::KeyUp, log(u"KeyUp"_s));
        QObject::connect(&button, &wbButton::MouseDown, log(u"MouseDown"_s));
        QObject::connect(&button, &wbButton::MouseUp, log(u"MouseUp"_s));
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        button.setFocus();
    }

    QString Log() {
        const QString text = events.join(u' ');
        events.clear();
        return text;
    }

    FakeDesktop desktop;
    QWidget window;
    wbButton button{&window};
    wbButton other{&window};
    QStringList events;
};

TEST_F(ButtonTest, A_click_is_a_press_and_a_release_inside_with_both_edges) {
    struct Case {
        const char* name;
        QPoint release;
        Qt::MouseButton with;
        bool allowRight;
        bool clicks;
        bool lights;
    };
    const Case cases[] = {
        {"in the middle", {41, 8}, Qt::LeftButton, false, true, true},
        {"released on the right edge", {97, 7}, Qt::LeftButton, false, true, true},
        {"released on the bottom edge", {0, 15}, Qt::LeftButton, false, true, true},
        {"slid off to the right", {98, 7}, Qt::LeftButton, false, false, true},
        {"slid off above", {40, -1}, Qt::LeftButton, false, false, true},
        {"right button, not allowed", {40, 7}, Qt::RightButton, false, false, false},
        {"right button, allowed", {40, 7}, Qt::RightButton, true, true, true},
        {"right button, slid off", {40, 16}, Qt::RightButton, true, false, true},
        {"middle button", {40, 7}, Qt::MiddleButton, true, false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        button.Set_AllowRightClick(c.allowRight);
        QTest::mousePress(&button, c.with, {}, {40, 7});
        EXPECT_EQ(button.Face_Color(), c.lights ? Pressed : Rest);
        QTest::mouseRelease(&button, c.with, {}, c.release);
        EXPECT_EQ(button.Face_Color(), Rest);
        EXPECT_EQ(Log(), c.clicks ? u"MouseDown MouseUp Click"_s : u"MouseDown MouseUp"_s);
    }
}

TEST_F(ButtonTest, Two_quick_clicks_are_two_clicks_unless_double_clicks_are_wanted) {
    // A click, and a second one so soon that the system calls it a double click.
    const auto twice = [this] {
        const QEvent::Type second = QEvent::MouseButtonDblClick;
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, second,
                                QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, QPointF(5, 5), button.mapToGlobal(QPointF(5, 5)),
                              Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&button, &event);
        }
        return Log();
    };
    EXPECT_EQ(twice(), u"MouseDown MouseUp Click MouseDown MouseUp Click"_s);
    button.AcceptsDBLClick = true;
    EXPECT_EQ(twice(), u"MouseDown MouseUp Click MouseDown DblClick MouseUp"_s);
}

TEST_F(ButtonTest, Space_and_return_click_once_however_long_they_are_held) {
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_EQ(button.Face_Color(), Pressed);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, {}, u" "_s, true);
    QCoreApplication::sendEvent(&button, &repeat);
    EXPECT_EQ(Log(), u"KeyDown KeyPress Click KeyDown KeyPress"_s);
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_EQ(button.Face_Color(), Rest);
    EXPECT_EQ(Log(), u"KeyUp"_s);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(Log(), u"KeyDown KeyPress Click KeyUp"_s);
    QTest::keyClick(&button, Qt::Key_X);
    EXPECT_EQ(Log(), u"KeyDown KeyPress KeyUp"_s);
}

TEST_F(ButtonTest, Losing_the_focus_ends_a_held_space_without_another_click) {
    QTest::keyPress(&button, Qt::Key_Space);
    Log();
    other.setFocus();
    EXPECT_EQ(button.Face_Color(), Rest);
    QTest::keyRelease(&button, Qt::Key_Space);
    EXPECT_EQ(Log(), u"KeyUp"_s);
}

TEST_F(ButtonTest, The_mouse_over_colours_last_until_the_cursor_is_past_an_edge) {
    const QColor white(255, 255, 255);
    CountingDesktop counting;
    // The corner of the button stands at (300, 200) of the screen.
    counting.cursor = platform::Point{310, 205};
    for (const ButtonStyle style : {ButtonStyle::System, ButtonStyle::Flat}) {
        button.HMouseover = style == ButtonStyle::System; // which has none all the same
        button.Set_Style(style);
        QTest::mouseMove(&button, {10, 5 + int(style)});
        EXPECT_EQ(button.Border_Color(), Border);
    }
    button.HMouseover = true;
    QTest::mouseMove(&button, {10, 5});
    ASSERT_EQ(button.Border_Color(), white);
    EXPECT_EQ(button.Caption_Color(), white);
    const std::optional<platform::Point> still[] = {platform::Point{397, 215},
                                                    platform::Point{300, 200}, std::nullopt};
    for (const auto& at : still) {
        counting.cursor = at;
        ASSERT_TRUE(counting.Wait_ForPolls());
        EXPECT_EQ(button.Border_Color(), white);
    }
    counting.cursor = platform::Point{398, 215};
    EXPECT_TRUE(QTest::qWaitFor([this] { return button.Border_Color() == Border; }));
    EXPECT_EQ(button.Caption_Color(), QColor(0, 0, 0));
}

TEST_F(ButtonTest, A_disabled_button_swallows_what_is_meant_for_it) {
    button.setEnabled(false);
    QTest::mouseClick(&button, Qt::LeftButton, {}, {5, 5});
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_EQ(Log(), QString());
    EXPECT_NE(button.Face_Color(), Rest);
}

TEST_F(ButtonTest, A_new_caption_stands_one_pixel_left_of_the_middle_until_a_resize) {
    button.Set_Caption(u"My Links"_s);
    const QRect narrow = button.Caption_Rect();
    EXPECT_EQ(narrow.left(), 97 / 2 - narrow.width() / 2 - 1);
    EXPECT_EQ(narrow.top(), 1);
    button.resize(99, 15);
    EXPECT_EQ(button.Caption_Rect().left(), 0);
    EXPECT_EQ(button.Caption_Rect().width(), 99);
    EXPECT_EQ(Spoken_Name(&button), u"My Links"_s);
}

TEST_F(ButtonTest, Decorations_and_picture_stand_where_they_are_put) {
    button.Set_Caption({});
    button.DRAWShape(3, 20, 5, 6); // top, left, width, height
    button.DRAWLine(30, 4, 34, 4); // without its end
    QPixmap red(4, 4);
    red.fill(Qt::red);
    button.Set_Picture(QIcon(red), QSize(4, 4));
    button.Set_CenterImage(true);
    other.setFocus();
    const QImage face = button.grab().toImage();
    const std::tuple<int, int, QColor> pixels[] = {
        {0, 0, Border}, {96, 14, Border},   {1, 1, Rest},  {20, 3, Qt::black}, {24, 8, Qt::black},
        {22, 5, Rest},  {33, 4, Qt::black}, {34, 4, Rest}, {46, 5, Qt::red},   {45, 5, Rest}};
    for (const auto& [x, y, color] : pixels)
        EXPECT_EQ(face.pixelColor(x, y), color) << x << ' ' << y;
}

TEST_F(ButtonTest, A_screen_reader_finds_a_button_and_can_press_it) {
    button.Set_Caption({});
    button.Set_ToolTipTextLabel(u"View notes"_s);
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&button);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::Button);
    EXPECT_EQ(seen->text(QAccessible::Name), u"View notes"_s);
    seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Log(), u"Click"_s);
}

} // namespace
