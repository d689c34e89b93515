#include "accessories/textbox/frm_textbox.h"
#include "accessories/textbox/textbox_rules.h"
#include "support/fake_system.h"
#include "support/form_driver.h"

using namespace Qt::StringLiterals;

namespace {

class Textbox : public testing::Test {
protected:
    Textbox() {
        Global_Config_Textbox_Top = 30 * 15;
        Global_Config_Textbox_Left = 1000 * 15 + 3;
        Init_Textbox();
    }
    ~Textbox() override { Release_Forms(); }
    void Open() {
        Toggle_Textbox();
        form = Open_Window<frmTextbox>();
        text = form->findChild<TextboxText*>();
        Give_Focus(form);
    }
    bool Has_ScrollBar() const { return text->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOn; }

    FakeSystem system;
    frmTextbox* form = nullptr;
    TextboxText* text = nullptr;
};

TEST_F(Textbox, Its_words_are_selected_at_the_first_focus_only_and_its_text_stays) {
    Open();
    QTest::mouseClick(text->viewport(), Qt::LeftButton);
    EXPECT_EQ(text->textCursor().selectedText().size(), 72);
    QTest::keyClicks(text, u"milk"_s);
    EXPECT_EQ(text->toPlainText(), u"milk"_s);
    EXPECT_FALSE(form->close());
    EXPECT_FALSE(form->isVisible());
    Open();
    EXPECT_EQ(text->toPlainText(), u"milk"_s);
    EXPECT_FALSE(text->textCursor().hasSelection());
    Toggle_Textbox();
    EXPECT_FALSE(form->isVisible());
}

TEST_F(Textbox, It_stays_on_top_and_out_of_the_task_bar_at_every_showing) {
    Open();
    const auto& state = system.windows.windows[form->winId()];
    EXPECT_TRUE(state.topmost && state.leftTaskBar);
    const int calls = state.topmostCalls;
    system.clock.Advance(2000);
    form->repaint();
    EXPECT_EQ(state.topmostCalls, calls + 1);
    form->repaint(); // being put on top may itself cause a painting
    EXPECT_EQ(state.topmostCalls, calls + 1);
    Toggle_Textbox();
    system.windows.windows[form->winId()].leftTaskBar = false;
    Toggle_Textbox();
    EXPECT_TRUE(state.leftTaskBar);
}

TEST_F(Textbox, The_scroll_bar_comes_when_the_lines_no_longer_fit) {
    Open();
    const int line = QFontMetrics(text->font()).lineSpacing();
    form->resize(200, 7 * line + 2);
    text->setPlainText(u"a\n"_s.repeated(6));
    EXPECT_FALSE(Has_ScrollBar());
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_TRUE(Has_ScrollBar());
    QTest::keyClick(text, Qt::Key_Backspace);
    EXPECT_FALSE(Has_ScrollBar());
    text->setPlainText(u"many words in one line "_s.repeated(30));
    EXPECT_TRUE(Has_ScrollBar());
    form->resize(900, 400);
    EXPECT_FALSE(Has_ScrollBar());
    EXPECT_EQ(text->size(), QSize(898, 398));
    form->resize(70, 400); // too small to be laid out
    EXPECT_EQ(text->size(), QSize(898, 398));
}

TEST_F(Textbox, Its_place_is_kept_and_one_off_the_screen_comes_back) {
    EXPECT_EQ(Textbox_Place()->Left, 1000 * 15 + 3); // nobody moved it
    Open();
    form->move(300, 200);
    QApplication::processEvents();
    EXPECT_EQ(Textbox_Place()->Left, 300 * 15);
    EXPECT_EQ(Textbox_Place()->Top, 200 * 15);
    Toggle_Textbox();
    system.desktop.screen = {260, 120};
    Toggle_Textbox();
    EXPECT_TRUE(QRect(0, 0, 260, 120).contains(form->frameGeometry().topLeft()));
    Release_Forms();
    EXPECT_TRUE(Textbox_Place());
    struct Case {
        const char* name;
        QPoint place, back;
    };
    const Case cases[] = {{"on the screen", {1030, 30}, {1030, 30}},
                          {"past the right edge", {1270, 30}, {1030, 30}},
                          {"past the left edge", {-240, 30}, {0, 30}},
                          {"below it", {100, 2000}, {100, 927}},
                          {"nowhere", {-143165576, 143165576}, {0, 927}}};
    const QRect screen(0, 0, 1280, 1024);
    for (const Case& row : cases)
        EXPECT_EQ(Reachable_Place(row.place, TextboxClientSize, {screen}, screen), row.back)
            << row.name;
    const QRect small(0, 0, 800, 600);
    EXPECT_EQ(Reachable_Place({900, 30}, {2000, 97}, {small}, small), QPoint(0, 30));
    const QRect right(1280, 0, 800, 600);
    EXPECT_EQ(Reachable_Place({1500, 30}, {250, 97}, {screen, right}, screen), QPoint(1500, 30));
    EXPECT_EQ(Reachable_Place({1500, 700}, {250, 97}, {screen, right}, right), QPoint(1500, 503));
}

} // namespace
