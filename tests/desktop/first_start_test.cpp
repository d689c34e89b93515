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
        Wait_For_Focus(SetupTitle);
        const auto next = [&] { Click(SetupTitle, {"push button", "Next >"}); };
        next();
        Click(SetupTitle, {"radio button", "Shrink:"});
        Click(SetupTitle, {"push button", "Test"});
        EXPECT_TRUE(Wait_Until([&] { return desktop.Geometry(Strip_Window()).height() < 20; }));
        EXPECT_TRUE(Strip_Stands({345, 0, 333, 20}));
        next();
        Click(SetupTitle, {"radio button", "Top-right"});
        EXPECT_TRUE(Strip_Stands({TopRight, 0, 333, 20})) << "it moves while one looks";
        next();
        Click(SetupTitle, {"text", "Please insert the date format used to display dates:"});
        Retype(u"dd.mm.yyyy"_s);
        next();
        Click(SetupTitle, {"check box", "Load Tockly on startup"});
        next();
        Click(SetupTitle, {"push button", "Finish"});
        Wait_Until_Gone(SetupTitle);
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
        Bring_Up(tockly);
        EXPECT_TRUE(Strip_Stands({345, 0, 333, 20}));
        const QString state = desktop.Property(Strip_Window(), u"_NET_WM_STATE"_s);
        for (const QString& wanted : {u"_NET_WM_STATE_ABOVE"_s, u"_NET_WM_STATE_SKIP_TASKBAR"_s,
                                      u"_NET_WM_STATE_SKIP_PAGER"_s}) {
            EXPECT_TRUE(state.contains(wanted)) << qPrintable(state);
        }
        EXPECT_EQ(
            desktop.Property(Strip_Window(), u"_NET_FRAME_EXTENTS"_s).section(u'=', 1).remove(u' '),
            u"0,0,0,0"_s);
        EXPECT_TRUE(Wait_Until([&] { return Line_Has_Text(); })) << "no greeting";
        Through_The_Wizard();
        Open(u"Add new reminder"_s, "Add new reminder");
        Keys({u"Escape"_s});
        Agree(Box); // to quit the wizard
        Open(u"Reminders"_s, "View reminders");
        Leave(u"Reminders"_s);
        Open(u"Notes"_s, "View notes");
        Leave(u"Notes"_s);
        Open(u"Textbox"_s, "Open Textbox");
        Click(Strip, {"push button", "Open Textbox"});
        Wait_Until_Gone(u"Textbox"_s);
        const std::pair<const char*, QString> links[] = {
            {"View Help", u"Help"_s},
            {"About Tockly", u"About..."_s},
            {"View Reminders", u"Reminders"_s},
            {"View Notes", u"Notes"_s},
            {"'My Links' menu setup", u"'My Links' menu setup"_s},
            {"Program Setup", u"Setup"_s},
            {"Setup wizard", SetupTitle},
        };
        for (const auto& [row, title] : links) {
            SCOPED_TRACE(row);
            Choose_OwnLink(row, title);
            Leave(title);
        }
        EXPECT_TRUE(Wait_Until([&] { return Windows_OfProgram() == 1; }));
        tockly.Signal(SIGINT);
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
    EXPECT_EQ(Registry_Value(Home(), user, u"Global_Autohide_SelectedHideMode"_s),
              u"dword:ffffffff"_s);
    EXPECT_EQ(Registry_Value(Home(), user, u"DateFormat"_s),
              u"hex:"_s + QString::fromLatin1(QByteArray("dd.mm.yyyy").toHex(',')));
    EXPECT_EQ(Saved_Reminders(File_Bytes(Reminders())).size(), 5U);

    Tockly again(desktop, Home());
    Bring_Up(again);
    EXPECT_TRUE(Strip_Stands({TopRight, 0, 333, 20}));
    Open(u"Notes"_s, "View notes");
    EXPECT_EQ(Count(SetupTitle), 0) << "the wizard came twice";
}

} // namespace
