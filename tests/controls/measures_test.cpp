#include "controls/metrics.h"
#include "controls/palette.h"

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

} // namespace
