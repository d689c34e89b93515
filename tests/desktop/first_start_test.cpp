// The first start on an empty folder, through every window, and what the second start finds.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <QDir>

#include <csignal>

namespace {

const QString SetupTitle = u"Setup Wizard"_s;
constexpr int TopRight = 1024 - 333;

class FirstStart : public Driven {
protected:
    bool Strip_Stands(const QRect& place) const {
        return Wait_Until([&] { return desktop.Geometry(Strip_Window()) == place; });
    }
    void Through_The_Wizard() const {
        const QString window = Wait_For_Focus(SetupTitle);
        const auto next = [&] { Click(window, 430, 300); };
        next();
        Click(window, 157, 203); // shrink
        Click(window, 440, 261); // and the test of it
        EXPECT_TRUE(Wait_Until([&] { return desktop.Geometry(Strip_Window()).height() < 20; }));
        EXPECT_TRUE(Strip_Stands({345, 0, 333, 20}));
        next();
        Click(window, 157, 129);
        EXPECT_TRUE(Strip_Stands({TopRight, 0, 333, 20})) << "it moves while one looks";
        next();
        Click(window, 200, 80);
        Retype(u"dd.mm.yyyy"_s);
        next();
        Click(window, 157, 55); // load at start up
        next();
        next();
        Wait_Until_Gone(SetupTitle);
    }
    // A row of the program's own menu.
    QString Choose_OwnLink(int y, const QString& title) const {
        // The menu before has faded out.
        EXPECT_TRUE(Wait_Until([&] { return Windows_OfProgram() == 1; }));
        Click(Strip_Window(), 50, 10);
        EXPECT_TRUE(Wait_Until([&] { return Windows_OfProgram() == 2; }));
        desktop.XDo(QStringList{u"mousemove"_s} + At(TopRight + 40, 80) +
                    QStringList{u"mousemove"_s} + At(TopRight + 40, 82) +
                    QStringList{u"click"_s, u"1"_s});
        EXPECT_TRUE(Wait_Until([&] { return Windows_OfProgram() == 3; }));
        desktop.XDo(QStringList{u"mousemove"_s} + At(TopRight + 150, y) +
                    QStringList{u"mousemove"_s} + At(TopRight + 150, y + 1) +
                    QStringList{u"click"_s, u"1"_s});
        return Wait_For_Focus(title);
    }
    void Leave(const QString& title) const {
        Wait_For_Focus(title);
        Keys({u"Escape"_s});
        Wait_Until_Gone(title);
    }
};

TEST_F(FirstStart, Everything_Leads_Somewhere_And_Is_Found_Again) {
    Give_Examples();
    Forget_Settings();
    {
        Tockly tockly(desktop, Home());
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        Through_The_Wizard();
        Open(u"Add new reminder"_s, 118);
        Keys({u"Escape"_s});
        Agree(Box); // to quit the wizard
        Open(u"Reminders"_s, 138);
        Leave(u"Reminders"_s);
        Open(u"Notes"_s, 160);
        Leave(u"Notes"_s);
        Open(u"Textbox"_s, 182);
        Click(Strip_Window(), 182, 10);
        Wait_Until_Gone(u"Textbox"_s);
        const std::pair<int, QString> links[] = {
            {108, u"Help"_s},
            {156, u"About..."_s},
            {204, u"Reminders"_s},
            {228, u"Notes"_s},
            {252, u"'My Links' menu setup"_s},
            {300, u"Setup"_s},
            {324, SetupTitle},
        };
        for (const auto& [y, title] : links) {
            SCOPED_TRACE(qPrintable(title));
            Choose_OwnLink(y, title);
            Leave(title);
        }
        EXPECT_TRUE(Wait_Until([&] { return Windows_OfProgram() == 1; }));
        tockly.Signal(SIGTERM);
        ASSERT_EQ(tockly.Wait_For_End(), 0);
    }
    const auto names = [](const QString& path) {
        return QDir(path)
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name)
            .join(u' ')
            .toStdString();
    };
    EXPECT_EQ(names(Home()), "HKEY_CURRENT_USER.reg HKEY_LOCAL_MACHINE.reg User-1 config "
                             "examplereminders.dat runagain.txt");
    QStringList account = QDir(Home() + "/User-1"_L1).entryList(QDir::Files, QDir::Name);
    account.removeOne(QString::fromLocal8Bit(qgetenv("USER").isEmpty() ? "root" : qgetenv("USER")));
    EXPECT_EQ(account.filter(u"."_s).join(u' ').toStdString(),
              "links.dat notes.dat rareminders.dat rcategories.txt reminders.dat");
    EXPECT_EQ(names(Home() + "/config/autostart"_L1), "tockly.desktop");
    const QString user = u"HKEY_CURRENT_USER.reg"_s;
    EXPECT_EQ(Registry_Value(Home(), user, u"First Time"_s), u"dword:00000000"_s);
    EXPECT_EQ(Registry_Value(Home(), user, u"Global_Autohide_SelectedHideMode"_s),
              u"dword:ffffffff"_s);
    EXPECT_EQ(Registry_Value(Home(), user, u"DateFormat"_s),
              u"hex:"_s + QString::fromLatin1(QByteArray("dd.mm.yyyy").toHex(',')));
    EXPECT_EQ(Saved_Reminders(File_Bytes(Reminders())).size(), 5U);

    Tockly again(desktop, Home());
    again.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    EXPECT_TRUE(Strip_Stands({TopRight, 0, 333, 20}));
    Open(u"Notes"_s, 160);
    EXPECT_EQ(Count(SetupTitle), 0) << "the wizard came twice";
}

} // namespace
