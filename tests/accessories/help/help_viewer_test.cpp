// The help viewer, and the pages that come with the program.
#include "accessories/help/fake_toolbar.h"
#include "accessories/help/frm_html_view.h"
#include "accessories/help/help.h"
#include "accessories/help/help_browser.h"
#include "controls/chk_box.h"
#include "controls/unload_queue.h"
#include "support/fake_system.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString ShippedPages = QStringLiteral(TOCKLY_TEST_DATA "/../../data/help");

void Write_File(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

class HelpViewer : public testing::Test {
protected:
    HelpViewer() : folder(system.paths.Program_Folder() + u"/help"_s) {
        QDir().mkpath(folder);
        for (const auto* name : {"contents", "one", "two"})
            Write_File(folder + u'/' + QString::fromLatin1(name) + u".html"_s,
                       QByteArray("<p>page ") + name);
    }
    ~HelpViewer() override {
        if (frmHTMLview* open = Window())
            open->close();
        Unload_PendingForms();
    }
    static frmHTMLview* Window() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* view = qobject_cast<frmHTMLview*>(window); view && view->isVisible())
                return view;
        return nullptr;
    }
    static HelpBrowser* Browser() { return Window()->findChild<HelpBrowser*>(); }
    static QString Text() { return Browser()->toPlainText(); }

    FakeSystem system;
    FakeToolbar toolbar;
    QString folder;
};

TEST_F(HelpViewer, ASecondRequestTurnsThePageOfTheWindowThatFollowsTheToolbar) {
    Update_HelpTopic(u"one.html"_s);
    EXPECT_EQ(Window(), nullptr) << "a topic opens no viewer";
    Show_HelpPage(u"one.html"_s);
    const QPointer<frmHTMLview> first = Window();
    EXPECT_EQ(Text(), u"page one"_s);
    EXPECT_TRUE(system.windows.windows[first->winId()].leftTaskBar);
    Show_HelpPage(u"two.html"_s);
    EXPECT_EQ(Window(), first);
    EXPECT_EQ(Text(), u"page two"_s);

    Update_HelpTopic(u"one.html"_s);
    EXPECT_EQ(Text(), u"page one"_s);
    Window()->findChild<ChkBox*>()->Toggle();
    Update_HelpTopic(u"two.html"_s);
    EXPECT_EQ(Text(), u"page one"_s) << "its user wants to stay";
    Show_HelpPage(u"two.html"_s);
    EXPECT_EQ(Text(), u"page two"_s) << "asked for all the same";

    QTest::keyClick(Browser(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Text(), u"page one"_s);

    EXPECT_EQ(Window()->pos(), QPoint(400, 30));
    toolbar.Move_To(100, 200);
    EXPECT_TRUE(QTest::qWaitFor([] { return Window()->pos() == QPoint(100, 230); }));
    QTest::keyClick(Browser(), Qt::Key_Escape);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(Global_HelpLoaded);
}

TEST_F(HelpViewer, AMissingPageSaysSoAndLeadsBack) {
    for (const QString& page : {u"none.html"_s, u"../none.html"_s}) {
        Show_HelpPage(page);
        EXPECT_TRUE(Text().contains(u"\"none.html\" could not be found"_s)) << page.toStdString();
        QTest::keyClick(Browser(), Qt::Key_Tab);
        QTest::keyClick(Browser(), Qt::Key_Return);
        EXPECT_EQ(Text(), u"page contents"_s);
    }
}

TEST_F(HelpViewer, ReadsNothingFromOutsideOfItsFolder) {
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString outside = system.paths.Program_Folder() + u"/red.png"_s;
    picture.save(outside);
    QFile::link(outside, folder + u"/link.png"_s);
    picture.fill(Qt::green);
    picture.save(folder + u"/green.png"_s);
    Write_File(system.paths.Program_Folder() + u"/outside.css"_s, "p { background-color: red; }");
    QByteArray page =
        "<html><head><link rel='stylesheet' type='text/css' href='../outside.css'></head><body>"
        "<script>1</script><p>text</p>";
    for (const QString& source : {u"green.png"_s, outside, u"../red.png"_s, u"link.png"_s,
                                  u"file://"_s + outside, u"%2e%2e/red.png"_s})
        page += "<img src='" + source.toUtf8() + "'>";
    page += "<p><a href='../outside.css'>a</a> <a href='https://example.org/x?y=1'>b</a></p>";
    Write_File(folder + u"/one.html"_s, page);
    Show_HelpPage(u"one.html"_s);

    const QImage seen = Browser()->grab().toImage();
    const auto count = [&seen](QColor color) {
        int found = 0;
        for (int at = 0; at < seen.width() * seen.height(); ++at)
            found += seen.pixelColor(at % seen.width(), at / seen.width()) == color ? 1 : 0;
        return found;
    };
    EXPECT_EQ(count(Qt::red), 0);
    EXPECT_GE(count(Qt::green), 40 * 40);
    const QUrl here = Browser()->source();
    for (int link = 1; link <= 2; ++link) {
        for (int step = 0; step < link; ++step)
            QTest::keyClick(Browser(), Qt::Key_Tab);
        QTest::keyClick(Browser(), Qt::Key_Return);
        EXPECT_EQ(Browser()->source(), here);
    }
    ASSERT_EQ(system.shell.calls.size(), 1U) << "a page of the web is the browser's";
    EXPECT_EQ(system.shell.calls[0].target, u"https://example.org/x?y=1"_s);
}

TEST_F(HelpViewer, EveryShippedPageCanBeReachedAndLeadsOnlyToOthers) {
    const QStringList pages = QDir(ShippedPages).entryList({u"*.html"_s}, QDir::Files, QDir::Name);
    static const QRegularExpression target(u"(?:href|src)=\"([^\"]*)\""_s);
    QStringList pictures;
    for (const QString& page : pages) {
        QFile file(ShippedPages + u'/' + page);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList links;
        for (const auto& match : target.globalMatch(QString::fromUtf8(file.readAll())))
            links.append(match.captured(1));
        EXPECT_TRUE(page == "contents.html"_L1 || links.contains(u"contents.html"_s));
        for (const QString& link : links)
            if (link.startsWith("pictures/"_L1))
                pictures.append(link.section(u'/', 1));
            else
                EXPECT_TRUE(link == "help.css"_L1 || pages.contains(link)) << link.toStdString();
        for (const QString& other : pages)
            EXPECT_TRUE(page != "contents.html"_L1 || other == page || links.contains(other));
    }
    pictures.sort();
    EXPECT_EQ(pages.join(u' '),
              u"contents.html lnk_LinksSetup.html notes_Notes_Archive_Editor.html "
              "reminders_Add_New_Reminder.html reminders_Reminders_Setup.html "
              "tk_program_setup.html toolbar.html"_s);
    EXPECT_EQ(pictures.join(u' '), u"links_editor.png links_menu.png notes.png reminders.png "
                                   "setup.png toolbar.png wizard.png"_s);
}

} // namespace
