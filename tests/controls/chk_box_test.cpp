#include "controls/chk_box.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ChkBoxTest : public testing::Test {
protected:
    ChkBoxTest() {
        window.resize(200, 60);
        QObject::connect(box, &ChkBox::Checked, [this] { log += u'+'; });
        QObject::connect(box, &ChkBox::Unchecked, [this] { log += u'-'; });
        window.show();
    }
    void Click(const QPoint& press, const QPoint& release) {
        QTest::mousePress(box, Qt::LeftButton, {}, press);
        QTest::mouseRelease(box, Qt::LeftButton, {}, release);
    }

    QWidget window;
    ChkBox* box = new ChkBox(u"Every day"_s, 10, 10, &window);
    QString log;
};

TEST_F(ChkBoxTest, Frame_tick_and_label_act_as_one_and_a_slide_off_does_nothing) {
    const QPoint frame(6, 6);
    const QPoint label(box->width() - 5, 6);
    Click(frame, label);
    EXPECT_TRUE(box->Is_Ticked());
    Click(label, frame);
    EXPECT_FALSE(box->Is_Ticked());
    Click(frame, QPoint(6, box->height() + 1));
    Click(label, QPoint(box->width() + 1, 6));
    QTest::mouseClick(box, Qt::RightButton, {}, frame);
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(log, u"+-+"_s);
    box->Set_Ticked(false);
    EXPECT_EQ(log, u"+-+"_s);
}

TEST_F(ChkBoxTest, A_blocked_box_loses_its_tick_and_takes_no_input_until_it_is_free_again) {
    box->Set_Ticked(true);
    box->Set_Blocked(true);
    EXPECT_FALSE(box->Is_Ticked());
    EXPECT_EQ(box->focusPolicy(), Qt::NoFocus);
    Click(QPoint(6, 6), QPoint(6, 6));
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(log, QString());
    box->Set_Blocked(false);
    Click(QPoint(6, 6), QPoint(6, 6));
    EXPECT_EQ(log, u"+"_s);
}

TEST_F(ChkBoxTest, A_handler_may_let_the_box_go) {
    QObject::connect(box, &ChkBox::Checked, [this] { delete std::exchange(box, nullptr); });
    Click(QPoint(6, 6), QPoint(6, 6));
    EXPECT_EQ(box, nullptr);
}

TEST_F(ChkBoxTest, A_screen_reader_finds_what_it_is_and_can_tick_it) {
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(box);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->role(), QAccessible::CheckBox);
    box->Set_Radio(true);
    EXPECT_EQ(seen->role(), QAccessible::RadioButton);
    EXPECT_EQ(seen->text(QAccessible::Name), u"Every day"_s);
    EXPECT_FALSE(seen->state().checked);
    seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(seen->state().checked);
    EXPECT_EQ(log, u"+"_s);
}

} // namespace
