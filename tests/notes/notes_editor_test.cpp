#include "controls/program_end.h"
#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "notes/card_column.h"
#include "notes/category_list.h"
#include "notes/frm_notes_editor.h"
#include "notes/note_boxes.h"
#include "notes_fixture.h"
#include "support/form_driver.h"

#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include <random>

using namespace Qt::StringLiterals;

namespace {

class NotesEditor : public NotesTest {
protected:
    NotesEditor() { Notes_Build_Example(); }
    ~NotesEditor() override {
        Set_Program_Ending(false);
        Release_Forms();
        Unload_PendingForms();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void Open() {
        Show_NotesEditor();
        form = Open_Window<frmNotesEditor>();
        Give_Focus(form);
        column = form->findChild<CardColumn*>();
        list = form->findChild<CategoryList*>();
    }
    NoteTitleBox* Title(int note) {
        return qobject_cast<NoteTitleBox*>(column->Card_Of(note)->Field(0));
    }
    NoteTextBox* Text(int note) {
        return qobject_cast<NoteTextBox*>(column->Card_Of(note)->Field(1));
    }
    void Click(const QString& name) { Click_On<wbButton>(name, form); }
    QString Status() {
        QString status;
        for (const QLabel* label : form->findChildren<QLabel*>())
            if (label->text().startsWith("Last"_L1) || label->text().startsWith("At"_L1))
                status += label->text() + u'|';
        return status;
    }
    QString Rows() {
        QStringList rows;
        for (int row = 0; row < list->count(); ++row)
            rows << list->item(row)->text();
        return rows.join(u", "_s);
    }
    // Picks an entry, or ends the program, while the menu is open.
    static void Answer_Menu(const QString& entry) {
        QTimer::singleShot(0, [entry] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* action : menu->actions())
                if (action->text() == entry)
                    menu->setActiveAction(action);
            if (menu->activeAction() != nullptr)
                return QTest::keyClick(menu, Qt::Key_Return);
            Set_Program_Ending(true);
            Global_Notes.clear();
            menu->close();
        });
    }

    frmNotesEditor* form = nullptr;
    CardColumn* column = nullptr;
    CategoryList* list = nullptr;
};

TEST_F(NotesEditor, What_is_typed_is_stored_with_its_time_when_the_box_is_left) {
    Open();
    EXPECT_EQ(Rows(), u"Work Stuff (2), Another Category (1)"_s);
    EXPECT_EQ(Status(), u"Last Modified:|At: |"_s);
    Note(1).Text = u"un\u00A0changed\nline"_s;
    form->Select_Category(0);
    QTest::mouseClick(Text(1)->viewport(), Qt::LeftButton);
    EXPECT_EQ(Status(), u"Last Modified: 31/12/1999|At: 00:00|"_s);
    QTest::mouseClick(Title(0), Qt::LeftButton);
    EXPECT_EQ(Note(1).ModifiedDay, 0); // only looked at
    QTest::keyClick(Title(0), Qt::Key_End);
    QTest::keyClicks(Title(0), u"23"_s);
    EXPECT_EQ(Note(0).Title, u"Example note 1"_s);
    QTest::keyClick(Title(0), Qt::Key_Tab);
    EXPECT_EQ(Note(0).Title, u"Example note 123"_s);
    EXPECT_EQ(Status(), u"Last Modified: 02/03/2026|At: 09:05|"_s);
    const int before = Text(0)->height();
    QTest::keyClick(Text(0), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(Text(0), Qt::Key_Return);
    QTest::keyClicks(Text(0), u"more"_s);
    EXPECT_GT(Text(0)->height(), before);
    Set_Program_Ending(true); // whoever ends it stores what is open
    Store_OpenNote();
    EXPECT_EQ(Note(0).Text, u"It's not necesary to write text here\r\nmore"_s);
    EXPECT_EQ(Note(1).Text, u"un\u00A0changed\nline"_s);
}

TEST_F(NotesEditor, A_new_note_is_ready_for_typing_and_a_deleted_one_is_gone) {
    Open();
    Click(u"Click to add a new note"_s);
    ASSERT_EQ(column->Selected_Note(), 3);
    EXPECT_EQ(Note(3).CreatedDay, 9558);
    EXPECT_TRUE(Title(3)->hasFocus());
    QTest::keyClick(Title(3), Qt::Key_Tab);
    EXPECT_EQ(Text(3)->Text(), QString()); // it makes room
    system.clock.Set(2026, 3, 3, 10, 0);
    Click(u"Click to store what you have written"_s);
    EXPECT_EQ(Note(3).Text, QString());
    EXPECT_EQ(Note(3).ModifiedDay, 9559);
    EXPECT_EQ(Rows(), u"Work Stuff (3), Another Category (1)"_s);
    Click(u"Click to delete the selected note"_s);
    EXPECT_FALSE(Note(3).InUse);
    EXPECT_EQ(column->Selected_Note(), NoNote);
    for (const auto answer : {platform::Answer::No, platform::Answer::Yes})
        system.dialogs.Expect_Question(u"Delete the note \"Example note 2\" ?"_s, answer,
                                       platform::BoxStyle::Question, u"Delete note"_s);
    QTest::mouseClick(column->Card_Of(1)->Field(3), Qt::LeftButton);
    EXPECT_TRUE(Note(1).InUse);
    QTest::mouseClick(column->Card_Of(1)->Field(3), Qt::LeftButton);
    EXPECT_FALSE(Note(1).InUse);
    EXPECT_EQ(column->Card_Of(1), nullptr);
    form->Select_Category(NoCategory);
    system.dialogs.Expect_Message(u"Please select a category"_s);
    Click(u"Click to add a new note"_s);
    EXPECT_EQ(Used_Notes(), 2);
}

TEST_F(NotesEditor, Categories_are_added_renamed_and_deleted) {
    Open();
    const QString add = u"Click to add a new category"_s;
    const QString prompt = u"Insert the new category name:"_s;
    for (const auto& answer : {std::optional<QString>(), std::optional(u""_s),
                               std::optional(u"   "_s), std::optional(u" Home "_s)}) {
        system.dialogs.Expect_Input(prompt, answer);
        Click(add);
    }
    EXPECT_EQ(Rows(), u"Work Stuff (2), Another Category (1), New Category (0), Home (0)"_s);
    while (Free_NoteCategory() != NoCategory)
        Add_NoteCategory(u"x"_s);
    system.dialogs.Expect_Message(u"You can create a maximun of 18 categories."_s);
    Click(add);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_NE(column->Card_Of(2), nullptr);
    system.dialogs.Expect_Input(prompt, u""_s);
    QTest::keyClick(list, Qt::Key_F2);
    system.dialogs.Expect_Input(prompt, u"Other"_s);
    QTest::keyClick(list, Qt::Key_F2);
    EXPECT_EQ(system.dialogs.shown.back().start, u"Another Category"_s);
    EXPECT_EQ(Global_NoteCategories[1], u"Other"_s);
    const QString question = u"All the notes inside this category will be deleted\r\nContinue ?"_s;
    system.dialogs.Expect_Question(question, platform::Answer::No, platform::BoxStyle::Question,
                                   u"Delete \"Other\""_s);
    QTest::keyClick(list, Qt::Key_Delete);
    system.dialogs.Expect_Question(question, platform::Answer::Yes, platform::BoxStyle::Question,
                                   u"Delete \"Work Stuff\""_s);
    const QPoint first = list->visualItemRect(list->item(0)).center();
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, first);
    EXPECT_EQ(form->Selected_Category(), 1);
    Answer_Menu(u"Delete"_s);
    QContextMenuEvent asked(QContextMenuEvent::Mouse, first, list->viewport()->mapToGlobal(first));
    QApplication::sendEvent(list->viewport(), &asked);
    EXPECT_EQ(Rows().left(25), u"Other (1), New Category ("_s);
    column->setFocus();
    list->setFocus(); // as the window that comes back under a box that has gone
    EXPECT_EQ(list->currentRow(), -1);
    EXPECT_EQ(form->Selected_Category(), NoCategory);
    EXPECT_EQ(Note(2).Category, 0);
    EXPECT_EQ(Used_Notes(), 1);
}

TEST_F(NotesEditor, A_note_moves_and_the_end_under_an_open_menu_does_no_harm) {
    Open();
    QTest::mouseClick(Title(0), Qt::LeftButton);
    QTest::keyClick(Title(0), Qt::Key_Home);
    QTest::keyClicks(Title(0), u"My "_s);
    Answer_Menu(u"Another Category"_s);
    QTest::mouseClick(column->Card_Of(0)->Field(2), Qt::LeftButton);
    EXPECT_EQ(Note(0).Title, u"My Example note 1"_s);
    EXPECT_EQ(Note(0).Category, 1);
    EXPECT_EQ(Rows(), u"Work Stuff (1), Another Category (2)"_s);
    EXPECT_EQ(column->Card_Of(0), nullptr);
    Answer_Menu(u"the end"_s);
    QTest::mouseClick(column->Card_Of(1)->Field(2), Qt::LeftButton);
    EXPECT_TRUE(Global_Notes.empty());
}

TEST_F(NotesEditor, The_window_opens_where_it_was_closed) {
    Open();
    form->Select_Category(1);
    QTest::keyClick(Title(2), Qt::Key_X);
    EXPECT_TRUE(form->close());
    EXPECT_EQ(Note(2).Title, u"xExample note 3"_s);
    Open();
    EXPECT_EQ(form->Selected_Category(), 1);
    form->close();
    Delete_NoteCategory(1);
    Open();
    EXPECT_EQ(form->Selected_Category(), 0);
}

TEST_F(NotesEditor, A_text_stops_at_what_the_file_can_hold_and_nothing_is_cut) {
    Open();
    const auto Paste = [this](QWidget* box, const QString& text) {
        QApplication::clipboard()->setText(text);
        box->setFocus();
        QTest::keySequence(box, QKeySequence::SelectAll);
        QTest::keySequence(box, QKeySequence::Paste);
        QApplication::processEvents();
    };
    const QString full = QString(65535, u'a');
    Paste(Text(0), full);
    Paste(Title(0), full);
    Paste(Title(0), QString(70000, u'b'));         // refused whole
    Paste(Text(0), QString(21845, QChar(0x4E00))); // three bytes each, behind three more
    // As many line ends as fit only when each is one byte.
    form->Select_Category(1);
    Paste(Text(2), QString(40000, u'\n'));
    Store_OpenNote();
    EXPECT_EQ(Note(0).Text, full);
    EXPECT_EQ(Note(0).Title, full);
    EXPECT_EQ(Note(2).Text, QString(40000, u'\n'));
    EXPECT_TRUE(Save_Notes_File(File(u"notes.dat"_s)));
}

TEST_F(NotesEditor, Thousands_of_notes_need_a_handful_of_cards) {
    Global_Notes.resize(5000);
    for (int note = 3; note < 5000; ++note)
        Note(note) = {true, QString::number(note), u"line\r\n"_s.repeated(note % 20), 9000, 0, 0,
                      0};
    Open();
    const auto Cards = [this] { return form->findChildren<NoteCard*>().size(); };
    QTest::mouseClick(Title(0), Qt::LeftButton);
    QTest::keyClicks(Title(0), u"kept"_s);
    for (int page = 0; page < 300; ++page)
        QTest::keyClick(column, page % 3 == 2 ? Qt::Key_PageUp : Qt::Key_PageDown);
    QTest::keyClick(column, Qt::Key_End);
    ASSERT_NE(column->Card_Of(4999), nullptr);
    const NoteCard* last = column->Card_Of(4999);
    EXPECT_LE(last->geometry().bottom(), last->parentWidget()->height());
    EXPECT_GE(last->geometry().bottom(), last->parentWidget()->height() - 10);
    EXPECT_TRUE(Title(0)->hasFocus()); // the card that is being edited is kept
    column->setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(Note(0).Title.contains(u"kept"_s));
    EXPECT_LT(column->Card_Of(4998)->geometry().bottom(), last->y());
    EXPECT_EQ(Title(4998)->text(), u"4998"_s);
    EXPECT_LT(Cards(), 20);
    column->Card_Of(4998)->Field(3)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Title(4999)->hasFocus());
}

TEST(CardHeights, Answers_are_those_of_a_plain_sum) {
    std::mt19937 random(3);
    EXPECT_EQ(CardHeights().Row_At(3), -1);
    for (const std::size_t count : {1U, 2U, 7U, 64U, 1000U}) {
        std::vector<int> plain(count, 40);
        CardHeights heights;
        heights.Reset(plain);
        for (int step = 0; step < 50; ++step) {
            const auto changed = random() % count;
            plain[changed] = 1 + static_cast<int>(random() % 2000);
            heights.Set_Height(static_cast<int>(changed), plain[changed]);
            std::int64_t top = 0;
            for (int row = 0; row < heights.Count(); ++row) {
                ASSERT_EQ(heights.Top(row), top);
                ASSERT_EQ(heights.Row_At(top), row);
                top += plain[static_cast<std::size_t>(row)];
                ASSERT_EQ(heights.Row_At(top - 1), row);
            }
            ASSERT_EQ(heights.Row_At(top + 9), heights.Count() - 1);
        }
    }
}

} // namespace
