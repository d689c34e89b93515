// Smooth lines and the off-screen surface, looked at in their pixels.
#include "controls/aa_line.h"
#include "controls/virtual_dc.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

QImage Sheet(const QColor& color = Qt::white) {
    QImage sheet(12, 12, QImage::Format_RGB32);
    sheet.fill(color);
    return sheet;
}

int Grey(const QImage& sheet, int x, int y) {
    return qRed(sheet.pixel(x, y));
}

TEST(SmoothLines, Colours_mix_by_alpha_and_system_colours_count) {
    EXPECT_EQ(BlendColors(0x102030, 0xF0E0D0, 300), 0x102030U);
    EXPECT_EQ(BlendColors(0x102030, 0xF0E0D0, 0), 0xF0E0D0U);
    EXPECT_EQ(BlendColors(0x102030, 0xF0E0D0, -1), 0xF0E0D0U);
    EXPECT_EQ(BlendColors(0xFF0000, 0x0000FF, 51), 0x3300CCU); // a fifth
    EXPECT_EQ(BlendColors(0x8000000F, 0, 255), 0xF0F0F0U);
}

TEST(SmoothLines, A_line_along_a_row_is_full_in_that_row_and_nowhere_else) {
    for (const bool backwards : {false, true}) {
        QImage sheet = Sheet();
        DrawAALine(sheet, backwards ? 10 : 2, 5, backwards ? 2 : 10, 5, 0);
        for (int x = 3; x <= 10; ++x) {
            EXPECT_EQ(Grey(sheet, x, 5), 0);
            EXPECT_EQ(Grey(sheet, x, 4), 255);
            EXPECT_EQ(Grey(sheet, x, 6), 255);
        }
        // The cell in which the line only begins has one sub-step of four.
        EXPECT_EQ(Grey(sheet, 2, 5), 191);
        EXPECT_EQ(Grey(sheet, 11, 5), 255);
    }
}

TEST(SmoothLines, A_line_between_pixels_shares_its_coverage) {
    QImage column = Sheet();
    DrawAALine(column, 5.25, 2, 5.25, 10, 0);
    EXPECT_EQ(Grey(column, 5, 6), 64); // three quarters
    EXPECT_EQ(Grey(column, 6, 6), 191);
    // Its four sub-steps in row 4 stand at 3.125, 3.375, 3.625 and 3.875.
    QImage slant = Sheet();
    DrawAALine(slant, 1.875, 2, 8.875, 9, 0);
    EXPECT_EQ(Grey(slant, 2, 4), 255);
    EXPECT_EQ(Grey(slant, 3, 4), 127);
    EXPECT_EQ(Grey(slant, 4, 4), 127);
    EXPECT_EQ(Grey(slant, 5, 4), 255);
}

TEST(SmoothLines, Lines_without_length_or_off_the_picture_draw_nothing_and_hang_nothing) {
    QImage sheet = Sheet();
    DrawAALine(sheet, 5, 5, 5, 5, 0);
    DrawAALine(sheet, std::nan(""), 5, 9, 5, 0);
    DrawAALine(sheet, 0, 5, INFINITY, 5, 0);
    DrawAALine(sheet, -9e8, -50, 9e8, -50, 0);
    EXPECT_EQ(sheet, Sheet());
    DrawAALine(sheet, -9e8, 7, 9e8, 7, 0);
    EXPECT_EQ(Grey(sheet, 0, 7), 0);
    EXPECT_EQ(Grey(sheet, 11, 7), 0);
}

TEST(OffScreenSurface, It_draws_nothing_before_it_is_created_and_after_it_is_destroyed) {
    QImage sheet = Sheet();
    VirtualDC surface;
    for (const bool destroyed : {false, true}) {
        if (destroyed) {
            ASSERT_NE(surface.Create(&sheet, 4, 4), nullptr);
            surface.Destroy();
        }
        surface.FillArea(0, 0, 4, 4, 0);
        surface.Paint(nullptr, 0, 0, -1, -1, 0, 0);
        surface.CopyEntireAreaToHDC(&sheet);
        EXPECT_EQ(surface.FontHeight(), 0);
        EXPECT_EQ(surface.hdc(), nullptr);
    }
    EXPECT_EQ(surface.Create(&sheet, 0, 4), nullptr);
    EXPECT_EQ(surface.Create(&sheet, 4, 2000000000), nullptr);
    EXPECT_EQ(sheet, Sheet());
}

TEST(OffScreenSurface, Copies_go_where_they_are_told_and_the_last_one_again) {
    QImage sheet = Sheet();
    QImage other = Sheet();
    VirtualDC surface;
    surface.Create(&other, 2, 2);
    surface.Create(&sheet, 6, 6);
    surface.CopyLastArea(&other);
    EXPECT_EQ(other, Sheet());
    surface.FillArea(0, 0, 3, 6, 0x8000000F);
    surface.DRAWLine(3, 0, 3, 5, 0x0000FF);
    surface.DrawPoint(5, 5, 0xFF0000);
    surface.Paint(nullptr, 0, 0, -1, -1, 0, 0);
    EXPECT_EQ(sheet.pixelColor(2, 5), QColor(0xF0, 0xF0, 0xF0));
    EXPECT_EQ(sheet.pixelColor(3, 4), QColor(255, 0, 0));
    EXPECT_EQ(sheet.pixelColor(3, 5), QColor(255, 255, 255)); // the end point is left out
    EXPECT_EQ(sheet.pixelColor(5, 5), QColor(0, 0, 255));
    surface.CopyAreaToHDC(&sheet, 8, 9, 5, 5, 4, 4);
    surface.CopyLastArea(&other);
    EXPECT_EQ(other.pixelColor(8, 9), QColor(0, 0, 255));
    other.setPixelColor(8, 9, Qt::white);
    EXPECT_EQ(other, Sheet()); // only the one pixel that the source had
    surface.CopyAreaFromHDC(&sheet, 3, 4, 0, 0, 1, 1);
    EXPECT_EQ(surface.Bitmap().pixelColor(0, 0), QColor(255, 0, 0));
}

TEST(OffScreenSurface, Text_stays_in_its_rectangle_on_its_background) {
    QImage sheet = Sheet();
    VirtualDC surface;
    surface.Create(&sheet, 60, 20);
    EXPECT_GT(surface.FontHeight(), 5);
    surface.FillArea(0, 0, 60, 20, 0x00FF00);
    surface.ForeColor = 0x0000FF;
    surface.BackColor = 0x000000;
    surface.PrintText(QStringLiteral("WWWWWWWWWW"), 10, 2, 30, 18, Qt::AlignLeft);
    const QImage& drawn = surface.Bitmap();
    int red = 0;
    for (int y = 0; y < 20; ++y) {
        EXPECT_EQ(drawn.pixelColor(9, y), QColor(0, 255, 0));
        EXPECT_EQ(drawn.pixelColor(30, y), QColor(0, 255, 0));
        red += drawn.pixelColor(20, y).red() > 100 ? 1 : 0;
    }
    EXPECT_GT(red, 0);
    EXPECT_EQ(drawn.pixelColor(29, 2).green(), 0);
}

} // namespace
