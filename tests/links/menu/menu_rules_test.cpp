#include "controls/metrics.h"
#include "links/menu/caption_width.h"
#include "links/menu/menu_layout.h"
#include "links/menu/menu_placement.h"
#include "links/menu/menu_tracking.h"

#include <QRect>
#include <gtest/gtest.h>

#include <array>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

// c: category, l: link, -: separator.
std::vector<MenuRowKind> Kinds(const char* letters) {
    std::vector<MenuRowKind> kinds;
    for (; *letters != '\0'; ++letters)
        kinds.push_back(*letters == 'c'   ? MenuRowKind::Category
                        : *letters == 'l' ? MenuRowKind::Link
                                          : MenuRowKind::Separator);
    return kinds;
}

TEST(MenuLayout, A_section_without_rows_has_no_header_and_takes_no_room) {
    using Tops = std::vector<int>;
    const std::tuple<const char*, int, int, int, Tops, int, int> cases[] = {
        {"", 0, -1, -1, {}, 44, 28},
        {"ll", 100, -1, 2, {26, 50}, 144, 76},
        {"c", 1, 2, -1, {26}, 45, 52},
        {"ccl-l", 700, 2, 74, {26, 50, 98, 122, 146}, 744, 172},
    };
    for (const auto& [rows, widest, categories, links, tops, width, height] : cases) {
        const MenuLayout one = Lay_OutMenu(Kinds(rows), widest);
        EXPECT_EQ(std::pair(one.CategoryLabel, one.DailyLinksLabel), std::pair(categories, links));
        EXPECT_EQ(one.Tops, tops) << rows;
        EXPECT_EQ(std::pair(one.Width, one.Height), std::pair(width, height)) << rows;
    }
    EXPECT_EQ(Lay_OutMenu(Kinds("c"), 1, 60).Width, 12 + 60 + 4); // no header is cut
    const MenuLayout layout = Lay_OutMenu(Kinds("cl"), 0); // header 2, row 26, header 50, row 74
    const std::pair<int, int> places[] = {{-1, NoMenuRow}, {2, NoMenuRow}, {25, NoMenuRow},
                                          {26, 0},         {49, 0},        {50, NoMenuRow},
                                          {74, 1},         {97, 1},        {98, NoMenuRow}};
    for (const auto& [y, row] : places)
        EXPECT_EQ(layout.Row_At(y), row) << y;
}

TEST(MenuLayout, Keys_pass_over_separators_go_around_the_end_and_bring_a_row_on_view) {
    const auto kinds = Kinds("cl--l-");
    EXPECT_EQ(Next_MenuRow(kinds, NoMenuRow, 1), 0);
    EXPECT_EQ(Next_MenuRow(kinds, 1, 1), 4);
    EXPECT_EQ(Next_MenuRow(kinds, 0, -1), 4);
    EXPECT_EQ(Next_MenuRow(Kinds("--"), NoMenuRow, 1), NoMenuRow);
    const std::vector<QString> captions{u"Mail"_s, u"map"_s, {}, {}, u"Notes"_s, {}};
    EXPECT_EQ(Find_MenuRow(captions, kinds, 1, u"m"_s), 1);
    EXPECT_EQ(Find_MenuRow(captions, kinds, 5, u"MA"_s), 0);
    const MenuLayout level = Lay_OutMenu(Kinds("llllllllll"), 0); // 268 high
    EXPECT_EQ(Shift_ToShow(level, 9, 0, 100), 168);
    EXPECT_EQ(Shift_ToShow(level, 4, 168, 100), 120); // row 4: 122 to 146
    EXPECT_EQ(Shift_ToShow(level, 0, 120, 100), 0);
    EXPECT_EQ(Shift_ToShow(level, 9, 0, 400), 0);
}

TEST(MenuLayout, The_widest_caption_is_found_without_measuring_all) {
    std::vector<QString> captions{{}, u"short"_s};
    for (int i = 0; i < 300; ++i)
        captions.push_back(u"Link W%1 il \u0416 AVAVA"_s.arg(i * 7919 % 1000));
    const QFontMetrics metrics(Small_Font());
    int widest = 0;
    for (const QString& caption : captions)
        widest = std::max(widest, metrics.horizontalAdvance(caption));
    EXPECT_EQ(Widest_CaptionOf(captions, metrics), widest);
    EXPECT_EQ(Shown_Caption(u"one\r\ntwo\tthree"_s), u"one  two three"_s);
    EXPECT_EQ(Shown_Caption(QString(65535, u'x')).size(), 4000);
}

TEST(MenuPlacement, A_form_turns_round_at_an_edge_and_never_leaves_the_screen) {
    // The second one stands beside and below the first.
    const QRect screens[] = {{0, 0, 800, 600}, {1024, 768, 800, 600}};
    const std::tuple<const char*, QRect, int, QSize, QPoint> children[] = {
        {"there is room", {10, 20, 100, 200}, 46, {200, 300}, {110, 46}},
        {"one pixel is left at the right", {499, 0, 100, 200}, 26, {200, 300}, {599, 26}},
        {"flush with the right is too far", {500, 0, 100, 200}, 26, {200, 300}, {300, 26}},
        {"one pixel is left below", {0, 0, 100, 500}, 299, {200, 300}, {100, 299}},
        {"flush with the bottom is too far", {0, 0, 100, 500}, 300, {200, 300}, {100, 24}},
        {"neither below nor above", {0, 0, 100, 500}, 200, {200, 500}, {100, 0}},
        {"longer than the screen", {0, 0, 100, 500}, 26, {200, 24000}, {100, 0}},
        {"neither right nor left", {150, 0, 444, 500}, 26, {444, 100}, {0, 26}},
    };
    for (const auto& [name, parent, rowTop, size, place] : children)
        for (const QRect& screen : screens)
            EXPECT_EQ(Place_ChildMenu(parent.translated(screen.topLeft()), rowTop + screen.top(),
                                      size, screen),
                      place + screen.topLeft())
                << name;
    const std::tuple<const char*, QRect, QSize, QPoint> roots[] = {
        {"under the toolbar", {30, 0, 333, 20}, {150, 580}, {30, 20}},
        {"over it", {30, 580, 333, 20}, {150, 580}, {30, 0}},
        {"no room at either", {30, 300, 333, 20}, {150, 581}, {30, 0}},
        {"wider than what is left", {520, 0, 280, 20}, {444, 100}, {356, 20}},
    };
    for (const auto& [name, strip, size, place] : roots)
        for (const QRect& screen : screens)
            EXPECT_EQ(Place_RootMenu(strip.translated(screen.topLeft()), size, screen),
                      place + screen.topLeft())
                << name;
}

TEST(MenuTracking, Who_went_on_into_a_child_has_not_left_its_parents) {
    // The toolbar above, the root under it, two children to the right.
    const std::vector<MenuBounds> forms{Bounds_Of({0, 20, 100, 100}), Bounds_Of({100, 46, 100, 50}),
                                        Bounds_Of({200, 60, 100, 50})};
    const MenuCascade cascade{forms, Bounds_Of({0, 0, 333, 20})};
    const std::tuple<const char*, platform::Point, std::array<bool, 3>> cases[] = {
        {"on the button", {50, 10}, {true, false, false}},
        {"in the child", {150, 70}, {true, true, false}},
        {"in the child's child", {250, 100}, {true, true, true}},
        {"on an edge that two share", {200, 70}, {true, true, true}},
        {"just outside", {301, 70}, {false, false, false}},
        {"under the child", {150, 97}, {false, false, false}},
    };
    for (const auto& [name, mouse, inside] : cases) {
        for (std::size_t form = 0; form < 3; ++form)
            EXPECT_EQ(cascade.Is_Inside(form, mouse), inside[form]) << name << form;
    }
}

} // namespace
