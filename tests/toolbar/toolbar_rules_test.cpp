#include "toolbar/hide_rules.h"
#include "toolbar/menu_tables.h"
#include "toolbar/toolbar_drag.h"
#include "toolbar/toolbar_layout.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ToolbarLayout, Everything_has_its_place_and_the_message_line_takes_the_rest) {
    const ToolbarLayout at = Layout_At(333);
    EXPECT_EQ(at.Shape1, QRect(0, 0, 333, 20));
    EXPECT_EQ(at.Line1, (LayoutLine{1, 1, 331, 1}));
    EXPECT_EQ(at.Line4, (LayoutLine{2, 3, 2, 18}));
    EXPECT_EQ(at.Line5, (LayoutLine{3, 3, 3, 18}));
    EXPECT_EQ(at.wbButton2, QRect(8, 3, 97, 15));
    EXPECT_EQ(at.wbButton3, QRect(109, 3, 17, 15));
    EXPECT_EQ(at.wbButton5, QRect(129, 3, 19, 15));
    EXPECT_EQ(at.wbButton6, QRect(151, 3, 19, 15));
    EXPECT_EQ(at.wbButton4, QRect(173, 3, 19, 15));
    EXPECT_EQ(at.Shape2, QRect(195, 3, 114, 15));
    EXPECT_EQ(at.Picture1, QRect(196, 4, 112, 13));
    EXPECT_EQ(at.Line2, (LayoutLine{197, 18, 310, 18}));
    EXPECT_EQ(at.Line3, (LayoutLine{309, 5, 309, 18}));
    EXPECT_EQ(at.wbButton1, QRect(314, 3, 16, 15));

    const ToolbarLayout wide = Layout_At(600);
    EXPECT_EQ(wide.Shape1, QRect(0, 0, 600, 20));
    EXPECT_EQ(wide.Line1, (LayoutLine{1, 1, 598, 1}));
    EXPECT_EQ(wide.wbButton4, QRect(173, 3, 19, 15));
    EXPECT_EQ(wide.Shape2, QRect(195, 3, 381, 15));
    EXPECT_EQ(wide.Picture1, QRect(196, 4, 379, 13));
    EXPECT_EQ(wide.Line2, (LayoutLine{197, 18, 577, 18}));
    EXPECT_EQ(wide.Line3, (LayoutLine{576, 5, 576, 18}));
    EXPECT_EQ(wide.wbButton1, QRect(581, 3, 16, 15));
}

TEST(ToolbarLayout, A_width_too_small_for_a_message_line_leaves_none) {
    EXPECT_EQ(Layout_At(19).Picture1.width(), 0);
    EXPECT_EQ(Layout_At(220).Shape2.width(), 1);
}

// A screen of 800 by 600 with 15 twips a pixel, a wider one at its right, and one below that;
// the strip is 333 by 20 pixels.
const QRect First(0, 0, 800, 600);
const DragScreen Screen{{First, {800, 0, 1024, 768}, {800, 768, 1024, 768}}, 15, 15};
TwipsRect Strip_At(int left, int top, int width = 333) {
    return {left * 15, top * 15, width * 15, 300};
}

TEST(ToolbarDrag, The_strip_follows_the_cursor_and_stops_flush_with_the_edges) {
    struct Case {
        const char* name;
        platform::Point to;
        TwipsRect bounds;
    };
    // Grabbed 50 pixels from its left and 5 from its top.
    const Case cases[] = {
        {"in the open", {250, 105}, Strip_At(200, 100)},
        {"top left corner", {10, 2}, Strip_At(0, 0)},
        {"the edge that the screens have in common", {800, 5}, Strip_At(800, 0)},
        {"onto the screen behind it", {1500, 300}, Strip_At(1450, 295)},
        {"a screen below", {1500, 800}, Strip_At(1450, 795)},
        {"bottom right corner", {799, 599}, Strip_At(467, 580)},
        {"top right corner", {799, 0}, Strip_At(467, 0)},
        {"bottom left corner", {0, 599}, Strip_At(0, 580)},
        {"one pixel before both edges", {516, 584}, Strip_At(466, 579)},
    };
    for (const Case& c : cases) {
        ToolbarDrag drag;
        const TwipsRect start = Strip_At(100, 50);
        ASSERT_EQ(drag.Button_Down(50, 333, {150, 55}, start, Screen), GrabKind::Moving);
        EXPECT_EQ(drag.Mouse_Move(c.to, start, Screen), c.bounds) << c.name;
        EXPECT_EQ(drag.Mouse_Move({150, 55}, start, Screen), std::nullopt) << "not moved at all";
        EXPECT_EQ(drag.Button_Up(), GrabKind::Moving);
        EXPECT_EQ(drag.Mouse_Move(c.to, start, Screen), std::nullopt) << "after the release";
    }
}

TEST(ToolbarDrag, A_strip_wider_than_the_screen_keeps_its_close_button_on_it) {
    EXPECT_EQ(ToolbarDrag::Clamped(Strip_At(-10, 0, 1000), First, Screen), Strip_At(-200, 0, 1000));
}

TEST(ToolbarDrag, A_step_from_the_edge_of_a_screen_goes_on_to_the_one_behind_it) {
    const std::tuple<const char*, TwipsRect, int, int, TwipsRect> rows[] = {
        {"in the open", Strip_At(100, 50), 10, 0, Strip_At(110, 50)},
        {"up to the edge", Strip_At(460, 50), 10, 0, Strip_At(467, 50)},
        {"over it", Strip_At(467, 50), 10, 0, Strip_At(800, 50)},
        {"and back", Strip_At(800, 50), -10, 0, Strip_At(467, 50)},
        {"down", Strip_At(900, 748), 0, 10, Strip_At(900, 768)},
        {"no screen below", Strip_At(100, 580), 0, 10, Strip_At(100, 580)},
        {"no screen above", Strip_At(100, 0), 0, -10, Strip_At(100, 0)}};
    for (const auto& [name, from, across, down, to] : rows) {
        EXPECT_EQ(ToolbarDrag::Stepped(from, across, down, Screen), to) << name;
    }
}

TEST(ToolbarDrag, A_strip_off_the_screens_is_brought_back_in) {
    const std::tuple<const char*, TwipsRect, TwipsRect> rows[] = {
        {"on one", Strip_At(100, 50), Strip_At(100, 50)},
        {"across two", Strip_At(700, 50), Strip_At(700, 50)},
        {"far right", Strip_At(2000, 50), Strip_At(467, 50)},
        {"far up and left", Strip_At(-3000, -3000), Strip_At(0, 0)},
        {"its end past the edge", Strip_At(1600, 50), Strip_At(1491, 50)},
        {"below the lower of two", Strip_At(300, 590), Strip_At(300, 580)},
        {"wider than all", Strip_At(-5, 0, 5000), Strip_At(0, 0, 5000)}};
    for (const auto& [name, from, to] : rows) {
        EXPECT_EQ(ToolbarDrag::Brought_In(from, Screen), to) << name;
    }
}

TEST(ToolbarDrag, Only_the_last_four_pixels_size) {
    EXPECT_FALSE(ToolbarDrag::On_SizeHandle(328, 333));
    EXPECT_TRUE(ToolbarDrag::On_SizeHandle(329, 333));
    EXPECT_TRUE(ToolbarDrag::On_SizeHandle(400, 333));
}

TEST(ToolbarDrag, Sizing_ignores_every_move_to_280_pixels_or_less) {
    ToolbarDrag drag;
    const TwipsRect start = Strip_At(100, 50);
    ASSERT_EQ(drag.Button_Down(330, 333, {430, 60}, start, Screen), GrabKind::Sizing);
    EXPECT_EQ(drag.Mouse_Move({440, 60}, start, Screen), Strip_At(100, 50, 343));
    EXPECT_EQ(drag.Mouse_Move({378, 60}, start, Screen), Strip_At(100, 50, 281));
    EXPECT_EQ(drag.Mouse_Move({377, 60}, start, Screen), std::nullopt);
    EXPECT_EQ(drag.Mouse_Move({0, 60}, start, Screen), std::nullopt);
    // Beyond the screen is no limit.
    EXPECT_EQ(drag.Mouse_Move({1430, 60}, start, Screen), Strip_At(100, 50, 1333));
    EXPECT_EQ(drag.Button_Up(), GrabKind::Sizing);
    EXPECT_EQ(drag.Button_Up(), std::nullopt);
}

TEST(CloseButton, The_release_chooses_the_action_and_shift_comes_before_ctrl) {
    EXPECT_EQ(Choose_CloseAction(MouseButton::Left, 0), CloseAction::Minimize);
    EXPECT_EQ(Choose_CloseAction(MouseButton::Left, 1), CloseAction::Hide);
    EXPECT_EQ(Choose_CloseAction(MouseButton::Left, 2), CloseAction::Unload);
    EXPECT_EQ(Choose_CloseAction(MouseButton::Left, 3), CloseAction::Hide);
    EXPECT_EQ(Choose_CloseAction(MouseButton::Left, 4), CloseAction::Minimize);
    EXPECT_EQ(Choose_CloseAction(MouseButton::Right, 2), CloseAction::Open_Menu);
    EXPECT_EQ(Choose_CloseAction(MouseButton::Middle, 0), CloseAction::Nothing);
    EXPECT_EQ(CloseAction_OfAnswer(-1), CloseAction::Nothing);
    EXPECT_EQ(CloseAction_OfAnswer(3), CloseAction::Unload);
}

TEST(HidePlace, The_nearest_edge_is_tried_in_the_order_top_bottom_left_right) {
    struct Case {
        const char* name;
        int left;
        int top;
        HideMode mode;
    };
    const Case cases[] = {
        {"near the top, in a corner", 467, 20, HideMode::Top},
        {"one pixel too far down", 0, 21, HideMode::Left},
        {"bottom edge 40 above the screen's", 0, 540, HideMode::Bottom},
        {"bottom edge 41 above the screen's", 0, 539, HideMode::Left},
        {"centred as far as whole pixels go", 233, 300, HideMode::Left},
        {"a pixel right of it", 234, 300, HideMode::Right},
    };
    for (const QPoint& origin : {QPoint(), QPoint(1024, 768)}) {
        for (const Case& c : cases) {
            const int left = c.left + origin.x();
            const int top = c.top + origin.y();
            const ToolbarRect bounds{left, top, left + 333, top + 20};
            EXPECT_EQ(Best_HideMode(bounds, 333, {origin, QSize(800, 600)}), c.mode) << c.name;
        }
    }
}

QString Captions(std::span<const MenuRow> rows) {
    QStringList lines;
    for (const MenuRow& row : rows) {
        lines << QString::number(row.Number) + u' ' + row.Caption.toString();
    }
    return lines.join(u'\n');
}

TEST(MenuTables, Every_entry_has_its_caption_and_its_number) {
    EXPECT_EQ(Captions(mnuHideOptions()), u"0 Minimize (Left click)\n"
                                          "1 Hide (Shift + Left click)\n"
                                          "2 -\n"
                                          "3 Unload Toolbar (Ctrl + Left Click)"_s);
    EXPECT_EQ(Captions(mnuTrayIcon()), u"0 Show Toolbar\n1 -\n2 Add new reminder...\n3 -\n"
                                       "4 View Reminders\n5 View Notes\n6 -\n7 Setup...\n8 -\n"
                                       "9 Exit Tockly"_s);
}

} // namespace
