#include "delivery/near_placement.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    QSize screen;
    ToolbarRect toolbar;
    std::vector<int> lefts; // of the windows, in the order in which they come
    bool upward;
};

// Worked out by hand: windows are 254 wide and may pass the screen's edge by 20.
const Case Cases[] = {
    {"top: right, left, full", {1024, 768}, {345, 0, 678, 20}, {678, 91}, false},
    {"20 over at the right, 21 at the left", {800, 600}, {233, 0, 566, 20}, {566}, false},
    {"20 over on both sides", {801, 600}, {234, 0, 567, 20}, {567, -20}, false},
    {"left corner", {1024, 768}, {0, 0, 333, 20}, {333, 587}, false},
    {"right corner", {1024, 768}, {691, 0, 1024, 20}, {437, 183}, false},
    {"right corner of a small screen", {800, 600}, {467, 0, 800, 20}, {213}, false},
    {"bottom", {1024, 768}, {345, 748, 678, 768}, {678, 91}, true},
    {"as much free above as below", {1024, 768}, {345, 374, 678, 394}, {678, 91}, true},
    {"a pixel above that", {1024, 768}, {345, 373, 678, 393}, {678, 91}, false},
    {"sides take turns while they can",
     {1920, 1080},
     {300, 0, 633, 20},
     {633, 46, 887, 1141, 1395, 1649},
     false},
    {"a wide toolbar: below it", {1024, 768}, {162, 0, 862, 20}, {162, 416, 670}, false},
    {"full width, and above it", {1024, 768}, {0, 748, 1024, 768}, {0, 254, 508, 762}, true},
    {"wider than the screen", {800, 600}, {-200, 0, 800, 20}, {0, 254, 508}, false}};

ReminderRef Ref(int number) {
    while (static_cast<int>(Global_Reminders.size()) <= number)
        Global_Reminders.push_back({true, false, std::make_unique<ReminderClass>()});
    return ReminderRef::Of_Slot(number);
}

NearPlacement Place(std::vector<NearWindowEntry>& table, int number, const Case& row) {
    return Place_NearWindow(table, Ref(number), 1000 + number, row.toolbar, {QPoint(), row.screen});
}

// Which of the used entries are edges, as "01".
std::string Edges(const std::vector<NearWindowEntry>& table) {
    std::string edges;
    for (const NearWindowEntry& entry : table)
        if (entry.Used)
            edges += entry.IsEdgeWindow ? '1' : '0';
    return edges;
}

TEST(NearPlacement, Fifteen_Reminders_Fill_The_Sides_And_Then_Wait_In_Turn) {
    for (const Case& row : Cases) {
        SCOPED_TRACE(row.name);
        const std::size_t windows = row.lefts.size();
        std::vector<NearWindowEntry> table(21);
        for (std::size_t number = 0; number < 15; ++number) {
            const NearPlacement placement = Place(table, static_cast<int>(number), row);
            const NearWindowEntry& entry = table[number];
            ASSERT_EQ(placement.Entry, number);
            EXPECT_EQ(entry.AlignBottom, row.upward);
            ASSERT_EQ(entry.IsQueued, number >= windows);
            if (!entry.IsQueued) {
                EXPECT_EQ(placement.Decision, NearDecision::NewWindow);
                EXPECT_EQ(placement.X, row.lefts[number]);
                EXPECT_EQ(Edges(table), std::string(number, '0') + '1');
                continue;
            }
            EXPECT_EQ(placement.Decision, NearDecision::Queued);
            EXPECT_EQ(placement.Host, number % windows); // each window takes one in turn
            EXPECT_EQ(table[placement.Host].Waiting, static_cast<int>(number / windows));
            EXPECT_EQ(entry.Column, table[placement.Host].Column);
            EXPECT_EQ(Edges(table),
                      std::string(windows, '0') + std::string(number - windows + 1, '1'));
        }
        EXPECT_EQ(Place(table, 0, row).Decision, NearDecision::AlreadyShown);
        EXPECT_EQ(Place(table, 14, row).Decision, NearDecision::AlreadyShown);
    }
}

// On the second of two screens the same as on the first.
TEST(NearPlacement, A_Window_Is_At_Most_20_Pixels_Over_Any_Edge_Of_The_Toolbars_Screen) {
    const struct {
        const char* name;
        ToolbarRect toolbar;
        int height;
        QPoint place; // of the first window
    } rows[] = {{"beside, at the top", {345, 0, 678, 20}, 77, {678, 0}},
                {"beside, at the bottom", {345, 748, 678, 768}, 77, {678, 691}},
                {"below a wide one", {162, 0, 862, 20}, 77, {162, 20}},
                {"above a wide one", {162, 748, 862, 768}, 140, {162, 608}},
                {"a toolbar half off the screen", {-100, 760, 233, 780}, 77, {233, 703}},
                {"a toolbar far off the screen", {-2000, -900, -1667, -880}, 77, {0, 0}}};
    for (const QPoint& origin : {QPoint(), QPoint(1024, 0), QPoint(-1024, 768)}) {
        const QRect screen(origin, QSize(1024, 768));
        for (const auto& row : rows) {
            std::vector<NearWindowEntry> table(21);
            const ToolbarRect toolbar{row.toolbar.Left + origin.x(), row.toolbar.Top + origin.y(),
                                      row.toolbar.Right + origin.x(),
                                      row.toolbar.Bottom + origin.y()};
            const int x = Place_NearWindow(table, Ref(1), 0, toolbar, screen).X;
            const int y = NearWindow_Top(table[0], toolbar, row.height, screen);
            EXPECT_EQ(QPoint(x, y), row.place + origin) << row.name;
        }
    }
}

TEST(NearPlacement, Windows_That_Closed_Leave_Their_Place_To_The_Next) {
    Case row = Cases[9];
    std::vector<NearWindowEntry> table(21);
    for (int number = 0; number < 4; ++number)
        Place(table, number, row); // 633, 46, 887, and the edge at 1141
    table[1].Used = false;
    EXPECT_EQ(Place(table, 4, row).X, 46); // now the edge
    table[3].Used = false;
    EXPECT_EQ(Place(table, 5, row).X, 1141); // behind 887
    table[3].Used = false;
    row.toolbar = {300, 1060, 633, 1080}; // without an edge it begins beside the toolbar again
    const NearPlacement placement = Place(table, 6, row);
    EXPECT_EQ(placement.X, 633);
    EXPECT_FALSE(table[placement.Entry].AlignBottom); // as the others stand
}

TEST(NearPlacement, A_Full_Screen_Prefers_The_Empty_Then_The_Fewest_Then_The_Oldest_Window) {
    const std::tuple<const char*, std::array<int, 3>, std::array<int, 3>, std::size_t> rows[] = {
        {"the first empty one, not the oldest", {2, 0, 0}, {10, 30, 20}, 1},
        {"the fewest", {3, 2, 4}, {1, 9, 2}, 1},
        {"the oldest of equal ones", {2, 2, 2}, {20, 30, 10}, 2},
        {"the lower number of the clock, which may be negative", {1, 1, 1}, {5, -5, 0}, 1}};
    for (const auto& [name, waiting, ticks, host] : rows) {
        std::vector<NearWindowEntry> table(21);
        for (int number = 0; number < 3; ++number)
            Place(table, number, Cases[9]);
        for (std::size_t i = 0; i < 3; ++i) {
            table[i].Waiting = waiting[i];
            table[i].Tick = ticks[i];
        }
        const NearPlacement placement = Place(table, 9, Cases[1]); // the screen got smaller
        EXPECT_EQ(placement.Decision, NearDecision::Queued) << name;
        EXPECT_EQ(placement.Host, host) << name;
    }
}

} // namespace
