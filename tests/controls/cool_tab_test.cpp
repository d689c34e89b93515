#include "controls/cool_tab.h"
#include "controls/counting_desktop.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(TabList, A_list_is_read_in_pairs_of_width_and_caption) {
    struct Case {
        QString list;
        std::vector<TabEntry> tabs;
    };
    const Case cases[] = {
        {u"-1;Tab 1"_s, {{-1, u"Tab 1"_s}}},
        {u"-1;One; 80 ;Two;30"_s, {{-1, u"One"_s}, {80, u"Two"_s}}},
        {u"wide;One;-7;Two;2000000000;Three"_s,
         {{0, u"One"_s}, {0, u"Two"_s}, {10000, u"Three"_s}}},
        {QString(), {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Parse_Tabs(c.list), c.tabs) << c.list.toStdString();
    const QString most = u"-1;x;"_s.repeated(31);
    EXPECT_EQ(Parse_Tabs(most)->size(), 31U);
    EXPECT_FALSE(Parse_Tabs(most + u"-1;x"_s));
}

TEST(TabList, Each_row_of_a_face_is_one_step_further_cut_to_whole_numbers) {
    using Rows = std::vector<ColorValue>;
    // Red 0, 2.5, 5, 7.5; blue 10, 7.5, 5, 2.5.
    EXPECT_EQ(Gradient_Rows(0x0A0000, 0x00000A, 4), (Rows{0x0A0000, 0x070002, 0x050005, 0x020007}));
    EXPECT_EQ(Gradient_Rows(0xC0E0E0, 0xC0E0E0, 3), Rows(3, 0xC0E0E0));
    EXPECT_EQ(Gradient_Rows(0xC0E0E0, 0, 1), Rows{0xC0E0E0});
    EXPECT_EQ(Gradient_Rows(0xC0E0E0, 0, 0), Rows{});
}

class CoolTabTest : public testing::Test {
protected:
    CoolTabTest() {
        strip.resize(200, 21);
        strip.Set_Tabs(u"50;A;60;B;-1;C"_s);
        QObject::connect(&strip, &CoolTab::TabSelected,
                         [this](int tab) { log += QString::number(tab); });
        strip.show();
    }

    CountingDesktop desktop;
    CoolTab strip;
    QString log;
};

TEST_F(CoolTabTest, A_click_on_a_tab_chooses_it_and_any_other_is_ignored) {
    EXPECT_EQ(strip.Selected(), -1);
    for (const int x : {49, 50, 109, 110, 199})
        QTest::mouseClick(&strip, Qt::LeftButton, {}, QPoint(x, 10));
    QTest::mouseClick(&strip, Qt::RightButton, {}, QPoint(10, 10));
    EXPECT_EQ(log, u"0112"_s);
    strip.Select(0);
    strip.Select(7);
    EXPECT_EQ(strip.Selected(), 0);
    EXPECT_FALSE(strip.Set_Tabs(u"-1;x;"_s.repeated(32)));
    EXPECT_EQ(strip.TabCount(), 3);
    EXPECT_EQ(log, u"0112"_s);
}

TEST_F(CoolTabTest, The_keys_walk_along_the_tabs_and_stop_at_the_ends) {
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Right, Qt::Key_End,
                              Qt::Key_Right, Qt::Key_Left, Qt::Key_Home})
        QTest::keyClick(&strip, key);
    EXPECT_EQ(log, u"01210"_s);
}

TEST_F(CoolTabTest, Faces_have_the_colours_of_their_rows_and_the_selected_one_is_open_below) {
    strip.SelectedColor1 = 0x000000;
    strip.SelectedColor2 = 0x0000C8; // 10 a row
    strip.UnselectedColor1 = strip.UnselectedColor2 = 0xE0D0C0;
    strip.BorderColor3 = 0x00FF00;
    strip.Select(1);
    const QImage face = strip.grab().toImage();
    const std::tuple<int, int, QColor> pixels[] = {
        {53, 1, {0, 0, 0}},          {53, 2, {10, 0, 0}},  {53, 20, {190, 0, 0}},
        {3, 10, {0xC0, 0xD0, 0xE0}}, {3, 20, {0, 255, 0}}, {190, 20, {0, 255, 0}}};
    for (const auto& [x, y, color] : pixels)
        EXPECT_EQ(face.pixelColor(x, y), color) << x << ' ' << y;
}

TEST_F(CoolTabTest, A_caption_stays_lit_until_the_cursor_is_past_an_edge_of_its_tab) {
    strip.HighlightColor = 0x0000FF;
    QTest::mouseMove(&strip, QPoint(60, 5));
    EXPECT_EQ(strip.Caption_Color(1), QColor(0, 0, 0));
    strip.MouseOverHighlight = true;
    // The corner of the strip stands at (300, 200) of the screen.
    desktop.cursor = platform::Point{361, 205};
    QTest::mouseMove(&strip, QPoint(61, 5));
    EXPECT_EQ(strip.Caption_Color(1), QColor(255, 0, 0));
    desktop.cursor = platform::Point{410, 221};
    ASSERT_TRUE(desktop.Wait_ForPolls());
    EXPECT_EQ(strip.Caption_Color(1), QColor(255, 0, 0));
    desktop.cursor = platform::Point{411, 205};
    EXPECT_TRUE(QTest::qWaitFor([&] { return strip.Caption_Color(1) == QColor(0, 0, 0); }));
}

TEST_F(CoolTabTest, A_screen_reader_finds_the_tabs_and_can_choose_one) {
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&strip);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::PageTabList);
    ASSERT_EQ(seen->childCount(), 3);
    QAccessibleInterface* second = seen->child(1);
    EXPECT_EQ(second->role(), QAccessible::PageTab);
    EXPECT_EQ(second->text(QAccessible::Name), u"B"_s);
    EXPECT_EQ(seen->indexOfChild(second), 1);
    second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(second->state().selected);
    EXPECT_EQ(seen->text(QAccessible::Value), u"B"_s);
    strip.Set_Tabs(u"-1;A"_s);
    EXPECT_FALSE(second->isValid());
    EXPECT_EQ(log, u"1"_s);
}

} // namespace
