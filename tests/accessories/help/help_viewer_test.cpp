// The help viewer, and the pages that come with the program.
#include "accessories/help/frm_html_view.h"
#include "accessories/help/help.h"
#include "accessories/help/help_browser.h"
#include "accessories/help/help_keys.h"
#include "controls/chk_box.h"
#include "controls/help_topic.h"
#include "controls/unload_queue.h"
#include "support/fake_system.h"
#include "support/fake_toolbar.h"
#include "support/form_driver.h"

#include <QDir>
#include <QImage>
#include <QPointer>
#include <QRegularExpression>
#include <QTcpServer>
#include <QWheelEvent>

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
    ~HelpViewer() override { Release_Forms(); }
    static frmHTMLview* Window() { return Open_Window<frmHTMLview>(); }
    static HelpBrowser* Browser() { return Window()->findChild<HelpBrowser*>(); }
    static QString Text() { return Browser()->toPlainText(); }

    FakeSystem system;
    FakeToolbar toolbar;
    QString folder;
};

TEST_F(HelpViewer, A_second_request_turns_the_page_of_the_window_that_follows_the_toolbar) {
    Update_HelpTopic(u"one.html"_s);
    EXPECT_EQ(Window(), nullptr) << "a topic opens no viewer";
    Show_HelpPage(u"one.html"_s);
    const QPointer<frmHTMLview> first = Window();
    EXPECT_TRUE(system.windows.windows[first->winId()].leftTaskBar);
    Show_HelpPage(u"two.html"_s);
    EXPECT_EQ(Window(), first);
    EXPECT_EQ(Text(), u"page two"_s);
    Window()->findChild<ChkBox*>()->Toggle();
    Update_HelpTopic(u"one.html"_s);
    EXPECT_EQ(Text(), u"page two"_s) << "its user wants to stay";
    Show_HelpPage(u"one.html"_s);
    EXPECT_EQ(Text(), u"page one"_s) << "asked for all the same";
    QTest::keyClick(Browser(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Text(), u"page two"_s);

    EXPECT_EQ(Window()->pos(), QPoint(400, 30));
    toolbar.Move_To(100, 200);
    EXPECT_TRUE(QTest::qWaitFor([] { return Window()->pos() == QPoint(100, 230); }));
    QTest::keyClick(Browser(), Qt::Key_Escape);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(Global_HelpLoaded);
}

TEST_F(HelpViewer, F1_opens_the_page_of_a_window_and_coming_back_to_one_turns_to_it) {
    HelpKeys keys;
    QWidget one;
    QWidget two;
    QWidget owned(&two, Qt::Window);
    QLineEdit field(&owned);
    Set_HelpTopic(one, u"one.html"_s);
    Set_HelpTopic(two, u"two.html"_s);
    for (QWidget* window : {&one, &two, &owned})
        window->show();
    Give_Focus(&owned);
    QTest::keyClick(&field, Qt::Key_F1);
    EXPECT_EQ(Text(), u"page two"_s) << "a window without a page has that of its owner";
    Give_Focus(Window());
    Give_Focus(&one);
    EXPECT_EQ(Text(), u"page one"_s);
    Give_Focus(Window());
    EXPECT_EQ(Text(), u"page one"_s);
    QTest::keyClick(Browser(), Qt::Key_F1);
    EXPECT_EQ(Text(), u"page contents"_s);
    Give_Focus(&one);
    Show_HelpPage(u"contents.html"_s);
    Give_Focus(&two); // where the focus passes before it gets to the viewer
    EXPECT_EQ(Text(), u"page two"_s);
    Give_Focus(Window());
    EXPECT_EQ(Text(), u"page contents"_s) << "the page that was asked for";
}

TEST_F(HelpViewer, A_missing_page_says_so_and_leads_back) {
    Show_HelpPage(u"../none.html"_s);
    EXPECT_TRUE(Text().contains(u"\"none.html\" could not be found"_s));
    QTest::keyClick(Browser(), Qt::Key_Tab);
    QTest::keyClick(Browser(), Qt::Key_Return);
    EXPECT_EQ(Text(), u"page contents"_s);
}

TEST_F(HelpViewer, A_picture_fits_into_the_page_and_the_wheel_changes_the_text) {
    // Lines of one pixel: grey in a copy that was scaled well.
    QImage picture(900, 40, QImage::Format_RGB32);
    for (int at = 0; at < 900 * 40; ++at)
        picture.setPixelColor(at % 900, at / 900, at % 2 == 0 ? Qt::red : Qt::blue);
    picture.save(folder + u"/wide.png"_s);
    Write_File(folder + u"/one.html"_s, "<p><img src='wide.png'></p>");
    Show_HelpPage(u"one.html"_s);
    Give_Focus(Window());
    const QImage seen = Browser()->grab().toImage();
    EXPECT_LT(std::abs(seen.pixelColor(100, 15).red() - seen.pixelColor(100, 15).blue()), 80);
    EXPECT_EQ(seen.pixelColor(seen.width() - 2, 15), QColor(Qt::white));
    const double before = Browser()->document()->size().height();
    Window()->resize(1000, 600);
    EXPECT_GT(Browser()->document()->size().height(), before) << "it grows with the window";
    const int text = Browser()->fontInfo().pixelSize();
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, {}, Qt::ControlModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(Browser()->viewport(), &wheel);
    EXPECT_GT(Browser()->document()->defaultFont().pixelSize(), text);
}

TEST_F(HelpViewer, Nothing_is_read_from_outside_of_its_folder) {
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const QString outside = system.paths.Program_Folder() + u"/red.png"_s;
    picture.save(outside);
    picture.fill(Qt::green);
    picture.save(folder + u"/green.png"_s);
    Write_File(system.paths.Program_Folder() + u"/outside.css"_s, "p { background-color: red; }");
    QTcpServer web;
    ASSERT_TRUE(web.listen(QHostAddress::LocalHost));
    const QByteArray there = "http://127.0.0.1:" + QByteArray::number(web.serverPort()) + "/x";
    Write_File(
        folder + u"/one.html"_s,
        "<html><head><link rel='stylesheet' type='text/css' href='../outside.css'>"
        "<link rel='stylesheet' type='text/css' href='" +
            there + "'></head><body background='" + there + "'><p>text</p><img src='" + there +
            "'><img src='//127.0.0.1/x'><img src='green.png'><img src='../red.png'><img src='" +
            outside.toUtf8() + "'><p><a href='https://example.org/x?y=1'>b</a></p>");
    Show_HelpPage(u"one.html"_s);
    const QImage seen = Browser()->grab().toImage();
    const auto count = [&seen](QColor color) {
        int found = 0;
        for (int at = 0; at < seen.width() * seen.height(); ++at)
            found += seen.pixelColor(at % seen.width(), at / seen.width()) == color ? 1 : 0;
        return found;
    };
    EXPECT_FALSE(web.waitForNewConnection(0));
    EXPECT_EQ(count(Qt::red), 0);
    EXPECT_EQ(count(Qt::green), 40 * 40) << "at the size at which it was taken";
    QTest::keyClick(Browser(), Qt::Key_Tab);
    QTest::keyClick(Browser(), Qt::Key_Return);
    ASSERT_EQ(system.shell.calls.size(), 1U) << "a page of the web is the browser's";
    EXPECT_EQ(system.shell.calls[0].target, u"https://example.org/x?y=1"_s);
}

TEST_F(HelpViewer, Every_shipped_page_can_be_reached_and_leads_only_to_others) {
    static const QRegularExpression target(u"(?:href|src)=\"([^\"]*)\""_s);
    for (const QString& page :
         {help_page::Contents, help_page::Toolbar, help_page::Links, help_page::Reminders,
          help_page::NewReminder, help_page::Notes, help_page::Setup}) {
        QFile file(ShippedPages + u'/' + page);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
        QStringList links;
        for (const auto& match : target.globalMatch(QString::fromUtf8(file.readAll())))
            links.append(match.captured(1));
        for (const QString& link : links)
            EXPECT_TRUE(QFile::exists(ShippedPages + u'/' + link)) << link.toStdString();
        const bool isContents = page == help_page::Contents;
        EXPECT_EQ(links.filter(u".html"_s).contains(help_page::Contents), !isContents);
        EXPECT_TRUE(!isContents || links.filter(u".html"_s).size() == 6);
    }
}

} // namespace
