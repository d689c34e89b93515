#include "controls/program_end.h"
#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "links/editor/frm_links_edit.h"
#include "links/editor/links_editor.h"
#include "links/editor/links_list.h"
#include "links/menu/links_menu.h"
#include "links/store/links_data.h"
#include "support/fake_system.h"
#include "support/form_driver.h"

#include <QMimeData>
#include <QRadioButton>
#include <QScrollBar>

using namespace Qt::StringLiterals;
using platform::Answer;

namespace {

class LinksEditor : public testing::Test {
protected:
    LinksEditor() {
        Global_DefaultLinkArray.clear();
        Global_LinkArray = {{u"0http://a"_s, u"a"_s, u"one"_s, 0},
                            {u"@0Category"_s, u"B"_s, {}, 0},
                            {u"1c:\\c.EXE"_s, u"c"_s, u"two\nlines"_s, 7},
                            {u"@1Category"_s, u"D"_s, {}, 0},
                            {u"0-"_s, u"e"_s, {}, 0},
                            {{}, u"behind the end"_s, {}, 0}};
        Update_LinksMenu();
        tree = Global_LinksRoot;
        Open();
    }
    ~LinksEditor() override {
        Set_Program_Ending(false);
        Release_Forms();
        Global_PendingUnloads.clear();
        Global_LinkArray.clear();
    }
    void Open() {
        Show_LinksEditor();
        form = Open_Window<frmLinksEdit>();
        list = form->findChild<LinksList*>();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(form));
    }
    void Click(const QString& name) { Click_On<wbButton>(name, form); }
    QLineEdit* Field(const QString& name) { return Find<QLineEdit>(name, form); }
    void Type(const QString& name, const QString& text) { Type_Into(Field(name), text); }
    QPoint Place(int row) { return list->visualRect(list->model()->index(row, 0)).center(); }
    void Choose(int row) { QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, Place(row)); }
    void Drop(const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent entered(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(list->viewport(), &entered);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(list->viewport(), &event);
        QApplication::processEvents();
    }
    static QString Rows() {
        QStringList rows;
        for (const LinkRec& row : Global_LinkArray)
            rows << row.URL + u'=' + row.LinkName;
        return rows.join(u", "_s);
    }
    static const LinkRec& Row(std::size_t row) { return Global_LinkArray[row]; }

    const QString Start = u"0http://a=a, @0Category=B, 1c:\\c.EXE=c, @1Category=D, 0-=e"_s;
    FakeSystem system;
    std::shared_ptr<LinksData> tree; // that the menu shows from the start
    QPointer<frmLinksEdit> form;
    LinksList* list = nullptr;
};

TEST_F(LinksEditor, The_properties_go_to_their_row_only_where_somebody_has_changed_them) {
    EXPECT_EQ(list->Selected_Row(), -1);
    EXPECT_FALSE(Field(u"Title"_s)->isEnabled());
    for (const char* name : {"Move Up", "Move Left", "Delete", "Undo", "Ok"})
        Click(QLatin1String(name)); // without a row nothing happens
    EXPECT_EQ(Rows(), Start);
    const std::vector<LinkRec> before = Global_LinkArray;
    for (int row : {0, 2, 1, 4})
        Choose(row); // only looked at
    EXPECT_EQ(Global_LinkArray, before);
    Choose(1);
    EXPECT_FALSE(Field(u"Path"_s)->isEnabled());
    EXPECT_EQ(Field(u"Description"_s)->text(), u"---- Category ----"_s);
    Choose(2);
    EXPECT_EQ(Field(u"Path"_s)->text(), u"c:\\c.EXE"_s);
    Type(u"Path"_s, u"-"_s);
    Choose(0);
    EXPECT_EQ(Row(2), (LinkRec{u"1-"_s, u"c"_s, u"two\nlines"_s, 7, 0}));
    Click_On<QRadioButton>(u"Start size: Maximized"_s, form);
    Type(u"Description"_s, u"new"_s);
    QTest::keyClick(Field(u"Description"_s), Qt::Key_Return);
    EXPECT_EQ(Row(0), (LinkRec{u"0http://a"_s, u"a"_s, u"new"_s, 2, 0}));
    Type(u"Title"_s, u"on its way"_s);
    Store_OpenLinksPanel();
    EXPECT_EQ(Row(0).LinkName, u"on its way"_s);
    Type(u"Title"_s, u"kept"_s);
    Click(u"Move Down"_s);
    Click(u"Undo"_s); // the move, not what was typed before it
    EXPECT_EQ(Row(0).LinkName, u"kept"_s);
    Click(u"Undo"_s);
    Click(u"Undo"_s);
    Click(u"Undo"_s);
    EXPECT_EQ(Global_LinkArray, before);
}

TEST_F(LinksEditor, The_fields_stop_at_what_the_file_can_hold) {
    Choose(0);
    Field(u"Path"_s)->setText(QString(65533, u'x'));
    Field(u"Path"_s)->setCursorPosition(0);
    QTest::keyClicks(Field(u"Path"_s), u"yz"_s);
    Click(u"Ok"_s);
    EXPECT_EQ(Row(0).URL.size(), 65535);
    EXPECT_TRUE(Row(0).URL.startsWith("0yx"_L1));
}

TEST_F(LinksEditor, Keys_move_delete_and_undo_and_the_row_stays_selected) {
    QTest::keyClick(list, Qt::Key_Down); // the first row
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(list->Selected_Row(), 1);
    QTest::keyClick(list, Qt::Key_Delete); // a link goes at once
    EXPECT_EQ(list->Selected_Row(), 1);
    Choose(0);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        system.dialogs.Expect_Question(u"Are you sure you want to delete the category:\r\nB ?"_s,
                                       answer);
        QTest::keyClick(list, Qt::Key_Delete);
    }
    EXPECT_EQ(Rows(), u"0-=e"_s);
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Rows(), Start);
}

TEST_F(LinksEditor, A_row_is_dragged_to_another_place_also_beyond_the_edge) {
    for (int row = 0; row < 60; ++row)
        Click(u"Add link"_s);
    Choose(0); // the new rows are behind the last one
    list->verticalScrollBar()->setValue(0);
    QWidget* view = list->viewport();
    QTest::mousePress(view, Qt::LeftButton, {}, Place(0));
    const QPoint below(20, view->height() + 90);
    const QPoint there = view->mapToGlobal(below);
    system.desktop.cursor = platform::Point{there.x(), there.y()};
    QMouseEvent moved(QEvent::MouseMove, below, there, Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(view, &moved);
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return list->verticalScrollBar()->value() == list->verticalScrollBar()->maximum();
    }));
    QTest::mouseRelease(view, Qt::LeftButton, {}, below);
    EXPECT_EQ(Row(64).LinkName, u"a"_s);
    EXPECT_EQ(list->Selected_Row(), 64);
    Click(u"Undo"_s); // one step
    EXPECT_EQ(Row(0).LinkName, u"a"_s);
    EXPECT_EQ(Row(4).LinkName, u"e"_s);
}

TEST_F(LinksEditor, Files_come_by_dropping_or_browsing) {
    Choose(2);
    Drop({u"/one"_s, u"/two"_s}); // asks nothing
    system.dialogs.Expect_Question(u"Add link to file ?\r\n/tmp/a name.pdf"_s, Answer::No);
    Drop({u"/tmp/a name.pdf"_s});
    EXPECT_EQ(Rows(), Start);
    system.dialogs.Expect_Question(u"Add link to file ?\r\n/tmp/a name.pdf"_s, Answer::Yes);
    Drop({u"/tmp/a name.pdf"_s});
    EXPECT_EQ(Row(3).URL + Row(3).LinkName, u"1/tmp/a name.pdfa name.pdf"_s);
    const QString there = system.paths.Shipped_Folder() + u"/b"_s;
    ASSERT_TRUE(system.files.Replace(there, "b"));
    system.dialogs.Expect_Open_File(u"Open File"_s, u"/no/such file"_s);
    system.dialogs.Expect_Message(u"Can't open file: /no/such file"_s,
                                  platform::BoxStyle::Critical);
    system.dialogs.Expect_Open_File(u"Open File"_s, there);
    Click(u"Choose a file"_s);
    EXPECT_EQ(Field(u"Path"_s)->text(), u"/tmp/a name.pdf"_s);
    Click(u"Choose a file"_s);
    Click(u"Ok"_s);
    EXPECT_EQ(Row(3).URL, u'1' + there);
}

TEST_F(LinksEditor, Categories_go_down_to_the_ninth_level) {
    Choose(3);
    for (int depth = 2; depth <= 8; ++depth)
        Click(u"Add category"_s);
    EXPECT_EQ(Row(10).URL, u"@8Category"_s);
    system.dialogs.Expect_Message(u"Only 8 sub Categories are supported"_s);
    Click(u"Add category"_s);
    EXPECT_EQ(Global_LinkArray.size(), 12U);
}

TEST_F(LinksEditor, Closing_asks_only_about_a_changed_list_and_No_brings_the_old_one_back) {
    Choose(0);
    Type(u"Title"_s, u"x"_s); // still in its field
    system.dialogs.Expect_Question(u"Save new list ?"_s, Answer::No);
    form->close();
    EXPECT_TRUE(form->Is_Unloading());
    EXPECT_EQ(Rows(), Start);
    EXPECT_EQ(Global_LinksRoot, tree);
    Open();
    Click(u"Add link"_s);
    Click(u"Apply"_s);
    EXPECT_EQ(Global_LinksRoot->Get_TotalLinks(), tree->Get_TotalLinks() + 1);
    form->close(); // asks nothing
    EXPECT_EQ(Rows(), Start + u", 0http://=New Link"_s);
}

TEST_F(LinksEditor, The_end_of_the_program_takes_the_list_as_it_stands) {
    Choose(4);
    Click(u"Delete"_s);
    const QString changed = Rows();
    system.dialogs.Expect_Question(u"Save new list ?"_s, Answer::No);
    system.dialogs.whileOpen = [](const auto&) { Set_Program_Ending(true); };
    form->close();
    EXPECT_NE(changed, Start);
    EXPECT_EQ(Rows(), changed);
    Set_Program_Ending(false);
    Open();
    Choose(0);
    Type(u"Title"_s, u"in its field"_s);
    EXPECT_TRUE(form->Unload(UnloadMode::Ending)); // asks nothing
    EXPECT_EQ(Rows(), u"0http://a=in its field"_s + changed.mid(11));
    EXPECT_EQ(Global_LinksRoot, tree);
}

} // namespace
