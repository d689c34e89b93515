#include "controls/form.h"
#include "controls/metrics.h"
#include "controls/program_look.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMessageBox>
#include <gtest/gtest.h>

namespace {

TEST(Measures, Twips_round_to_the_nearest_pixel_and_stay_within_their_range) {
    EXPECT_EQ(Twips_To_Pixels(4995, 15), 333);
    EXPECT_EQ(Twips_To_Pixels(22, 15), 1);
    EXPECT_EQ(Twips_To_Pixels(23, 15), 2);
    EXPECT_EQ(Twips_To_Pixels(-23, 15), -2);
    EXPECT_EQ(Twips_To_Pixels(2147483647, 15), 143165576);
    EXPECT_EQ(Pixels_To_Twips(2000000000, 15), 2147483647);
    EXPECT_EQ(Pixels_To_Twips(-2000000000, 15), -2147483647 - 1);
}

TEST(Measures, Colours_are_read_as_blue_green_red_and_system_colours_by_number) {
    EXPECT_EQ(palette::To_Color(0xFFC0A0), QColor(0xA0, 0xC0, 0xFF));
    EXPECT_EQ(palette::To_Color(0x80000012), QColor(0, 0, 0));
    EXPECT_EQ(palette::To_Color(0x8000000F), palette::To_Color(0xF0F0F0));
}

TEST(Measures, A_dark_desktop_changes_no_colour_of_windows_menus_boxes_and_lists) {
    QApplication::setPalette(QPalette(QColor(40, 40, 40), QColor(30, 30, 30)));
    Set_ProgramLook();
    Form form;
    QComboBox drop(&form);
    QMenu menu;
    QMessageBox box;
    for (const QWidget* shown :
         std::initializer_list<const QWidget*>{&form, &drop, drop.view(), &menu, &box}) {
        EXPECT_EQ(shown->palette().color(QPalette::Window), palette::To_Color(palette::Form_Back));
        EXPECT_EQ(shown->palette().color(QPalette::Base), QColor(Qt::white));
        EXPECT_EQ(shown->palette().color(QPalette::Text), QColor(Qt::black));
    }
}

} // namespace
