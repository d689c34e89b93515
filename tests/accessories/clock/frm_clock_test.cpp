#include "accessories/clock/clock_face.h"
#include "accessories/clock/frm_clock.h"
#include "controls/wb_button.h"
#include "support/fake_system.h"
#include "support/spoken_name.h"

#include <QTest>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

class ClockTest : public testing::Test {
protected:
    ClockTest() {
        clock.Set_wTextBox(&field);
        clock.Show_At(100, 100);
        clock.SetTime(12 * 60);
    }
    template <class Control>
    Control* Named(const QString& name) {
        for (Control* control : clock.findChildren<Control*>()) {
            if (Spoken_Name(control) == name)
                return control;
        }
        ADD_FAILURE() << "no control named " << name.toStdString();
        return nullptr;
    }
    // As a person who replaces what the box holds.
    void Type(const QString& box, const QString& text) {
        auto* edit = Named<QLineEdit>(box);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    QString Boxes() {
        return Named<QLineEdit>(u"Hours"_s)->text() + u' ' + Named<QLineEdit>(u"Minutes"_s)->text();
    }

    FakeSystem system;
    QLineEdit field;
    frmClock clock;
};

TEST_F(ClockTest, What_is_typed_is_held_within_its_limits_and_goes_to_the_target) {
    struct Case {
        QString box;
        QString typed;
        QString boxes;
        QString target;
        int minutes;
    };
    const Case cases[] = {
        {u"Hours"_s, u"24"_s, u"23 00"_s, u"23:00"_s, 1380},
        {u"Hours"_s, u"-1"_s, u"00 00"_s, u"00:00"_s, 0},
        {u"Hours"_s, u"7"_s, u"7 00"_s, u"7:00"_s, 420},
        {u"Minutes"_s, u"75"_s, u"7 59"_s, u"7:59"_s, 479},
        // No number yet: the time stays what it was.
        {u"Minutes"_s, u"x"_s, u"7 x"_s, u"7:59"_s, 479},
        {u"Minutes"_s, u"5"_s, u"7 5"_s, u"7:5"_s, 425},
        {u"Hours"_s, u"-"_s, u"- 5"_s, u"7:5"_s, 425},
        {u"Minutes"_s, u"08"_s, u"- 08"_s, u"07:08"_s, 428},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed.toStdString());
        Type(c.box, c.typed);
        EXPECT_EQ(Boxes(), c.boxes);
        EXPECT_EQ(field.text(), c.target);
        EXPECT_EQ(clock.MinutesValue(), c.minutes);
    }
    QTest::keyClick(Named<QLineEdit>(u"Hours"_s), Qt::Key_Return);
    EXPECT_EQ(Boxes(), u"07 08"_s);
}

TEST_F(ClockTest, The_clock_follows_its_target_and_nothing_goes_in_circles) {
    int changes = 0;
    QObject::connect(&field, &QLineEdit::textChanged, [&] {
        ++changes;
        clock.wTextBox_Change();
    });
    field.setText(u"6:45"_s);
    EXPECT_EQ(Boxes(), u"06 45"_s);
    field.setText(u"6:45x"_s);
    EXPECT_EQ(clock.MinutesValue(), 405);
    EXPECT_EQ(field.text(), u"6:45x"_s);
    changes = 0;
    QTest::mouseClick(Named<wbButton>(u"Minute up"_s), Qt::LeftButton);
    EXPECT_EQ(field.text(), u"06:46"_s);
    EXPECT_EQ(changes, 1);
    clock.Set_wTextBox(nullptr);
    field.setText(u"1:00"_s);
    QTest::keyClick(Named<QLineEdit>(u"Hours"_s), Qt::Key_Up);
    QTest::keyClick(Named<QLineEdit>(u"Minutes"_s), Qt::Key_Down);
    EXPECT_EQ(Boxes(), u"07 45"_s);
    EXPECT_EQ(field.text(), u"1:00"_s);
}

TEST_F(ClockTest, A_held_button_steps_on_and_its_release_adds_no_step) {
    auto* up = Named<wbButton>(u"Hour up"_s);
    QTest::mousePress(up, Qt::LeftButton);
    EXPECT_EQ(clock.MinutesValue(), 720);
    ASSERT_TRUE(QTest::qWaitFor([this] { return clock.MinutesValue() >= 840; }));
    const int held = clock.MinutesValue();
    QTest::mouseRelease(up, Qt::LeftButton);
    EXPECT_EQ(clock.MinutesValue(), held);
    QCoreApplication::processEvents();
    QTest::mouseClick(up, Qt::LeftButton);
    EXPECT_EQ(clock.MinutesValue(), held + 60);
    QTest::mousePress(up, Qt::LeftButton);
    const auto* AutoAddTimer = clock.findChild<QTimer*>();
    ASSERT_NE(AutoAddTimer, nullptr);
    EXPECT_TRUE(AutoAddTimer->isActive());
    clock.hide();
    EXPECT_FALSE(AutoAddTimer->isActive());
}

TEST_F(ClockTest, Escape_and_the_close_box_hide_it_and_it_stays_on_the_screen_and_on_top) {
    QTest::keyClick(Named<QLineEdit>(u"Hours"_s), Qt::Key_Escape);
    EXPECT_FALSE(clock.isVisible());
    clock.Show_At(5000, -20);
    EXPECT_EQ(clock.pos(), QPoint(1280 - clock.width(), 0));
    EXPECT_TRUE(system.windows.windows[clock.winId()].topmost);
    clock.close();
    EXPECT_FALSE(clock.isVisible());
    EXPECT_FALSE(clock.Is_Unloading());
}

constexpr int Dark = 110;

// The darkest pixel within one of the place, on the face as it is shown. The hands' middle is the
// middle of pixel (57, 55).
int Darkest_At(const QImage& face, double degrees, double along, double across) {
    const double angle = (degrees - 90) * std::numbers::pi / 180;
    const double x = 57.5 + along * std::cos(angle) - across * std::sin(angle);
    const double y = 55.5 + along * std::sin(angle) + across * std::cos(angle);
    int darkest = 255;
    for (int dx = -1; dx <= 1; ++dx) {
        for (int dy = -1; dy <= 1; ++dy)
            darkest = std::min(darkest, qGray(face.pixel(static_cast<int>(std::floor(x)) + dx,
                                                         static_cast<int>(std::floor(y)) + dy)));
    }
    return darkest;
}

// Both long sides of the hand at half its length, and its tip.
void Expect_Hand(const QImage& face, double degrees, const Hand& hand) {
    EXPECT_LT(Darkest_At(face, degrees, hand.Length - 1, 0), Dark);
    for (const int side : {-1, 1})
        EXPECT_LT(Darkest_At(face, degrees, hand.Length / 2, side * hand.BaseWidth / 4), Dark);
}

TEST_F(ClockTest, The_hands_stand_at_the_angles_of_the_time) {
    struct Case {
        const char* time;
        int minutes;
        double minuteAngle;
        double hourAngle;
    };
    const Case cases[] = {
        {"3:00", 180, 0, 90},
        {"12:30", 750, 180, 15},
        {"6:45", 405, 270, 202.5},
        {"16:16", 976, 96, 128},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.time);
        clock.SetTime(c.minutes);
        const QImage face = clock.findChild<ClockPicture*>()->grab().toImage();
        Expect_Hand(face, c.minuteAngle, MinuteHand);
        Expect_Hand(face, c.hourAngle, HourHand);
        EXPECT_GT(Darkest_At(face, c.minuteAngle + 180, 30, 0), Dark);
        EXPECT_GT(Darkest_At(face, c.hourAngle, HourHand.Length + 5, 0), Dark);
    }
}

} // namespace
