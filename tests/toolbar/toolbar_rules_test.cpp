#include "toolbar/hide_rules.h"
#include "toolbar/toolbar_drag.h"
#include "toolbar/toolbar_layout.h"

#include <gtest/gtest.h>

namespace {

TEST(ToolbarLayout, A_Width_Too_Small_For_A_Message_Line_Leaves_None) {
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

TEST(ToolbarDrag, The_Strip_Follows_The_Cursor_And_Stops_Flush_With_The_Edges) {
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

TEST(ToolbarDrag, A_Strip_Wider_Than_The_Screen_Keeps_Its_Close_Button_On_It) {
    EXPECT_EQ(ToolbarDrag::Clamped(Strip_At(-10, 0, 1000), First, Screen), Strip_At(-200, 0, 1000));
}

TEST(ToolbarDrag, A_Step_From_The_Edge_Of_A_Screen_Goes_On_To_The_One_Behind_It) {
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

TEST(ToolbarDrag, A_Strip_Off_The_Screens_Is_Brought_Back_In) {
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

TEST(ToolbarDrag, The_Last_Four_Pixels_Size_And_Never_To_280_Pixels_Or_Less) {
    for (const int x : {328, 329, 400}) {
        EXPECT_EQ(ToolbarDrag::On_SizeHandle(x, 333), x > 328);
    }
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

TEST(HidePlace, The_Nearest_Edge_Is_Tried_In_The_Order_Top_Bottom_Left_Right) {
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

} // namespace
