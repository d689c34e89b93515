// Reminder windows on a real X desktop.
#include "desktop/program_fixture.h"
#include "desktop/records.h"

#include <csignal>

namespace {

const QString Note = u"Reminder"_s;

class Windows : public Program {
protected:
    static std::vector<TestReminder> Reminders_Of_Type(std::uint8_t type, int count) {
        std::vector<TestReminder> all;
        for (int id = 0; id < count; ++id) {
            all.push_back({.id = id, .type = type, .text = "Number " + QByteArray::number(id)});
        }
        return all;
    }
    // What the screen shows at a place, as a short text.
    QString Picture_Of(const QRect& place) {
        return desktop.Run(
            {u"import"_s, u"-window"_s, u"root"_s, u"-crop"_s,
             u"%1x%2+%3+%4"_s.arg(place.width()).arg(place.height()).arg(place.x()).arg(place.y()),
             u"-format"_s, u"%#"_s, u"info:-"_s});
    }
    // True once the window shows something else, or is gone.
    bool Press_Escape(const QString& window) {
        const QRect place = desktop.Geometry(window);
        desktop.XDo({u"windowactivate"_s, window});
        if (!Wait_Until([&] { return desktop.XDo({u"getactivewindow"_s}) == window; })) {
            return false;
        }
        const QString before = Picture_Of(place);
        desktop.XDo({u"key"_s, u"Escape"_s});
        return Wait_Until([&] {
            return !desktop.Visible_Windows(Note).contains(window) || Picture_Of(place) != before;
        });
    }
};

TEST_F(Windows, Fifteen_At_Once_Stand_Beside_The_Toolbar_And_Are_Reached_One_After_The_Other) {
    ASSERT_TRUE(Write_File(Reminders(), Reminder_File(Reminders_Of_Type(1, 15))));
    Tockly tockly(desktop, Home());
    tockly.Start();
    // 345 pixels are free on each side: one window of 254 with the 20 that may be cut.
    ASSERT_TRUE(Wait_Until([&] { return Count(Note) == 2; }));
    QList<int> left;
    for (const QString& window : desktop.Visible_Windows(Note)) {
        const QRect place = desktop.Geometry(window);
        EXPECT_EQ(place.y(), 0);
        EXPECT_GE(place.x(), -20);
        EXPECT_LE(place.right(), 1024 + 20);
        left.append(place.x());
    }
    std::sort(left.begin(), left.end());
    EXPECT_EQ(left, (QList<int>{345 - 254, 345 + 333}));

    int closed = 0;
    for (QStringList open = desktop.Visible_Windows(Note); !open.isEmpty() && closed < 20;
         open = desktop.Visible_Windows(Note)) {
        ASSERT_TRUE(Press_Escape(open.first())) << closed;
        ++closed;
    }
    EXPECT_EQ(closed, 15);
    EXPECT_TRUE(tockly.Is_Running()) << "closing windows never ends the program";
    tockly.Signal(SIGTERM);
    EXPECT_EQ(tockly.Wait_For_End(), 0);
}

TEST_F(Windows, A_Centred_One_Stands_At_The_Centre_And_Leaves_The_Focus_Where_It_Is) {
    ASSERT_TRUE(Write_File(Reminders(), Reminder_File(Reminders_Of_Type(2, 1))));
    QProcess other;
    other.setProcessEnvironment(desktop.Environment());
    other.setStandardOutputFile(QProcess::nullDevice());
    other.start(u"xev"_s, {u"-name"_s, u"Other"_s});
    ASSERT_TRUE(desktop.Wait_For_Window(u"Other"_s));
    const QString otherWindow = desktop.Visible_Windows(u"Other"_s).first();
    desktop.XDo({u"windowactivate"_s, u"--sync"_s, otherWindow});

    Tockly tockly(desktop, Home());
    tockly.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Note));
    const QRect place = desktop.Geometry(desktop.Visible_Windows(Note).first());
    EXPECT_LE(std::abs(place.center().x() - 512), 1);
    EXPECT_LE(std::abs(place.center().y() - 384), 1);
    EXPECT_EQ(desktop.XDo({u"getactivewindow"_s}), otherWindow);
    const QString state =
        desktop.Property(desktop.Visible_Windows(Note).first(), u"_NET_WM_STATE"_s);
    EXPECT_TRUE(state.contains(u"_ABOVE"_s) && state.contains(u"_SKIP_TASKBAR"_s))
        << qPrintable(state);
    // Open at the end, it holds nothing up.
    tockly.Signal(SIGTERM);
    EXPECT_EQ(tockly.Wait_For_End(), 0);
    EXPECT_EQ(Reminder_Count(Reminders()), 1);
    other.kill();
    other.waitForFinished();
}

} // namespace
