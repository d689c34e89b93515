#include "controls/frm_tooltip.h"
#include "controls/tooltip_layout.h"
#include "controls/tooltip_picture.h"
#include "support/fake_system.h"
#include "support/spoken_name.h"

#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(TooltipTexts, Sections_fill_the_slots_of_their_numbers) {
    const auto table = Parse_Tooltips("lost before the first\r\n"
                                      "[2]  Days \r\n  First line\r\n\r\n[abc] x\n--\r\nlast  \n"
                                      "[ 15 ]\tOnly a title\n"
                                      "see [3] Mid\nold\n[3] Again\nnew\n"
                                      "[-1] x\nno slot\n[10000] x\nno slot\n"
                                      "[99999999999999999999] x\nno slot\n"
                                      "[4]\nna\xEFve\n\xEF\xBB\xBF\xE2\x98\x83");
    ASSERT_TRUE(table);
    EXPECT_EQ(table->size(), 16U);
    EXPECT_EQ(table->at(2), (TooltipText{u"Days"_s, u"First line\r\n[abc] x\r\n--\r\nlast"_s}));
    EXPECT_EQ(table->at(15), (TooltipText{u"Only a title"_s, QString()}));
    EXPECT_EQ(table->at(3), (TooltipText{u"Again"_s, u"new"_s}));
    EXPECT_EQ(table->at(4), (TooltipText{QString(), u"na\u00EFve\r\n\u2603"_s}));
    EXPECT_EQ(table->at(0), TooltipText());
}

TEST(TooltipTexts, What_is_no_text_file_is_refused) {
    EXPECT_EQ(Parse_Tooltips("")->size(), 11U);
    EXPECT_FALSE(Parse_Tooltips(std::string_view("[1] x\n\0y", 8)));
    EXPECT_FALSE(Parse_Tooltips("[1] x\n" + std::string(5000, 'a')));
    EXPECT_FALSE(Parse_Tooltips(std::string(std::size_t{2} << 20, '\n')));
}

TEST(TooltipLayout, Lines_are_cut_at_the_last_blank_that_fits) {
    const auto letters = [](const QString& text) { return static_cast<int>(text.size()); };
    struct Case {
        QString text;
        int maxWidth;
        std::vector<TooltipLine> lines;
    };
    const Case cases[] = {
        {u"one two three"_s, 0, {{u"one two three"_s, 0}}},
        {u"one two three"_s, 7, {{u"one two"_s, 0}, {u"three"_s, 14}}},
        {u"one two three"_s, 6, {{u"one"_s, 0}, {u"two"_s, 14}, {u"three"_s, 28}}},
        {u"a verylongword b"_s, 6, {{u"a"_s, 0}, {u"verylongword b"_s, 14}}},
        {u"x\r\n--\r\n--\r\ny"_s, 9, {{u"x"_s, 0}, {u"y"_s, 30}}},
        {QString(), 9, {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Layout_Tooltip(c.text, c.maxWidth, letters), c.lines) << c.text.toStdString();
    const QString endless = u"word "_s.repeated(100000);
    EXPECT_LE(Layout_Tooltip(endless, 20, letters).size(), 1000U);
}

TEST(TooltipLayout, The_tip_stands_beside_the_picture_and_on_the_screen) {
    const QRect screen(1024, 768, 800, 600);
    const QSize tip(200, 100);
    EXPECT_EQ(Place_Tooltip({1124, 818, 16, 16}, tip, screen), QPoint(1144, 818));
    EXPECT_EQ(Place_Tooltip({1724, 1358, 16, 16}, tip, screen), QPoint(1520, 1268));
    EXPECT_EQ(Place_Tooltip({1124, 818, 16, 16}, {900, 700}, screen), QPoint(1024, 768));
}

class TooltipPictureTest : public testing::Test {
protected:
    TooltipPictureTest() {
        Write("[3] Days\nOne line\n");
        EXPECT_TRUE(Load_Tooltips(file));
        window.resize(200, 60);
        picture = new TooltipPicture(3, 50, 8, &window);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field.setFocus();
    }
    ~TooltipPictureTest() override {
        delete Global_frmTooltip;
        Global_TooltipsLoaded = false;
    }
    void Write(const QByteArray& bytes) {
        QFile out(file);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
    bool Shows() const { return Global_frmTooltip && Global_frmTooltip->Shows_For(picture); }
    void Point_At_Picture() {
        // The corner of the picture stands at (300, 200) of the screen.
        system.desktop.cursor = platform::Point{305, 206};
        QMouseEvent move(QEvent::MouseMove, QPointF(5, 6), QPointF(305, 206), Qt::NoButton,
                         Qt::NoButton, {});
        QCoreApplication::sendEvent(picture, &move);
    }

    FakeSystem system;
    QString file = system.paths.Program_Folder() + u"/tooltips.txt"_s;
    QWidget window;
    QLineEdit field{&window};
    TooltipPicture* picture = nullptr;
};

TEST_F(TooltipPictureTest, The_mouse_shows_the_tip_until_it_leaves_the_picture) {
    Point_At_Picture();
    ASSERT_TRUE(Shows());
    EXPECT_EQ(Global_frmTooltip->pos(), QPoint(320, 200));
    EXPECT_TRUE(window.isActiveWindow());
    system.desktop.cursor = platform::Point{317, 206};
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Shows(); }));
    Point_At_Picture();
    ASSERT_TRUE(Shows());
    picture->hide();
    EXPECT_FALSE(Shows());
}

TEST_F(TooltipPictureTest, The_keyboard_shows_the_tip_while_the_picture_has_the_focus) {
    EXPECT_EQ(Spoken_Name(picture), u"Help: Days"_s);
    QTest::keyClick(&field, Qt::Key_Tab);
    ASSERT_TRUE(Shows());
    QTest::keyClick(picture, Qt::Key_Escape);
    EXPECT_FALSE(Shows());
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Tab);
    ASSERT_TRUE(Shows());
    QTest::keyClick(picture, Qt::Key_Tab);
    EXPECT_FALSE(Shows());
}

TEST_F(TooltipPictureTest, Nothing_shows_without_the_file_or_for_a_number_it_lacks) {
    const TooltipPicture stranger(900, 80, 8, &window);
    EXPECT_EQ(stranger.accessibleName(), u"Help"_s);
    EXPECT_FALSE(Load_Tooltips(file + u".none"_s));
    EXPECT_EQ(Global_Tooltips.size(), 11U);
    Point_At_Picture();
    EXPECT_FALSE(Shows());
}

} // namespace
