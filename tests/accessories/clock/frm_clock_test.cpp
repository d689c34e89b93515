#include "accessories/clock/clock_face.h"
#include "accessories/clock/frm_clock.h"
#include "controls/wb_button.h"
#include "support/fake_system.h"
#include "support/form_driver.h"

using namespace Qt::StringLiterals;

namespace {

class ClockTest : public testing::Test {
protected:
    ClockTest() {
        clock.Set_wTextBox(&field);
        clock.Show_At(100, 100);
        clock.SetTime(12 * 60);
    }
    QLineEdit* Box(const QString& name) { return Find<QLineEdit>(name, &clock); }
    QString Boxes() { return Box(u"Hours"_s)->text() + u' ' + Box(u"Minutes"_s)->text(); }

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
        Type_Into(Box(c.box), c.typed);
        EXPECT_EQ(Boxes(), c.boxes);
        EXPECT_EQ(field.text(), c.target);
        EXPECT_EQ(clock.MinutesValue(), c.minutes);
    }
    QTest::keyClick(Box(u"Hours"_s), Qt::Key_Return);
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
    Click_On<wbButton>(u"Minute up"_s, &clock);
    EXPECT_EQ(field.text(), u"06:46"_s);
    EXPECT_EQ(changes, 1);
    clock.Set_wTextBox(nullptr);
    field.setText(u"1:00"_s);
    Keys_To(Box(u"Hours"_s), {Qt::Key_Up});
    Keys_To(Box(u"Minutes"_s), {Qt::Key_Down});
    EXPECT_EQ(Boxes(), u"07 45"_s);
    EXPECT_EQ(field.text(), u"1:00"_s);
}

TEST_F(ClockTest, A_held_button_steps_on_and_its_release_adds_no_step) {
    auto* up = Find<wbButton>(u"Hour up"_s, &clock);
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
    QTest::keyClick(Box(u"Hours"_s), Qt::Key_Escape);
    EXPECT_FALSE(clock.isVisible());
    clock.Show_At(5000, -20);
    EXPECT_EQ(clock.pos(), QPoint(1280 - clock.width(), 0));
    EXPECT_TRUE(system.windows.windows[clock.winId()].topmost);
    clock.close();
    EXPECT_FALSE(clock.isVisible());
    EXPECT_FALSE(clock.Is_Unloading());
}

TEST_F(ClockTest, The_hands_stand_at_the_angles_of_the_time) {
    // The middle of the face is the middle of pixel (57, 55); a hand's sides meet near its tip.
    const std::tuple<int, QPoint, QPoint> cases[] = {
        {180, {57, 20}, {79, 55}}, {405, {22, 55}, {47, 77}}, {750, {57, 90}, {63, 33}}};
    for (const auto& [minutes, minuteHand, hourHand] : cases) {
        clock.SetTime(minutes);
        const QImage face = clock.findChild<ClockPicture*>()->grab().toImage();
        for (const auto& [at, isHand] : {std::pair(minuteHand, true), std::pair(hourHand, true),
                                         std::pair(QPoint(114, 110) - minuteHand, false)}) {
            int darkest = 255;
            for (int pixel = 0; pixel < 25; ++pixel)
                darkest =
                    std::min(darkest, qGray(face.pixel(at + QPoint(pixel % 5 - 2, pixel / 5 - 2))));
            EXPECT_EQ(darkest < 110, isHand) << minutes << ' ' << at.x() << ' ' << at.y();
        }
    }
}

} // namespace
