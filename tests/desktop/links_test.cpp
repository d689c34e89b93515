// The links menu on a real X desktop.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <csignal>

namespace {

QByteArray Links_File(const QList<QByteArray>& urls) {
    QByteArray bytes = "LinksSaveFile001";
    Put(bytes, urls.size() - 1, 4);
    for (const QByteArray& url : urls) {
        for (const QByteArray& text : {url, QByteArray("Row"), QByteArray()}) {
            Put(bytes, text.size(), 2);
            bytes += text;
        }
        Put(bytes, 0, 1);
    }
    return bytes;
}

class Links : public Driven {
protected:
    QStringList Menus() const {
        QStringList menus;
        for (const QString& window : desktop.Search({u"--class"_s, u"^tockly$"_s}))
            if (window != strip)
                menus.append(window);
        return menus;
    }
    void Move_To(const QPoint& place) const {
        desktop.XDo(QStringList{u"mousemove"_s} + At(place.x() - 1, place.y()) +
                    QStringList{u"mousemove"_s} + At(place.x(), place.y()));
    }
    // The one that came; its place.
    QRect Wait_For_Another(const QStringList& before) const {
        QRect place;
        EXPECT_TRUE(Wait_Until([&] {
            for (const QString& window : Menus()) {
                if (!before.contains(window)) {
                    place = desktop.Geometry(window);
                    return place.width() > 1;
                }
            }
            return false;
        }));
        return place;
    }

    QString strip;
    // The first row of a level with a header.
    static constexpr QPoint FirstRow{40, 38};
};

TEST_F(Links, Five_Levels_Open_Close_Behind_The_Mouse_And_Keep_The_Toolbar_From_Hiding) {
    Write_File(Reminders(), Reminder_File({})); // no message holds the toolbar
    Write_File(Home() + "/User-1/links.dat"_L1,
               Links_File({"@0Category", "@1Category", "@2Category", "@3Category", "4nowhere"}));
    Write_File(Home() + "/HKEY_CURRENT_USER.reg"_L1,
               "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tockly]\r\n"
               "\"First Time\"=dword:00000000\r\n\"Global_CurID\"=dword:00000001\r\n"
               "\"Global_Autohide_Enabled\"=dword:ffffffff\r\n"
               "\"Global_Autohide_WaitTime\"=dword:000007d0\r\n"
               "\"Global_Autohide_SelectedHideMode\"=dword:ffffffff\r\n");
    Tockly tockly(desktop, Home());
    tockly.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    strip = Strip_Window();
    Click(strip, 50, 10);
    QRect level = Wait_For_Another({});
    EXPECT_EQ(level.topLeft(), QPoint(345, 20));
    const QPoint rootHeader = level.topLeft() + QPoint(40, 10); // opens nothing again
    for (int depth = 1; depth < 5; ++depth) {
        const QStringList before = Menus();
        Move_To(level.topLeft() + FirstRow);
        desktop.XDo({u"click"_s, u"1"_s});
        const QRect child = Wait_For_Another(before);
        EXPECT_EQ(child.left(), level.right() + 1) << depth;
        level = child;
    }
    Move_To(level.topLeft() + FirstRow);
    EXPECT_EQ(Menus().size(), 5);
    EXPECT_FALSE(Wait_Until([&] { return desktop.Geometry(strip).height() < 20; }, 4500));
    EXPECT_EQ(Menus().size(), 5) << "the mouse rests in the last one";
    Move_To(rootHeader);
    EXPECT_TRUE(Wait_Until([&] { return Menus().size() == 1; })) << "what was left closes";
    Move_To({900, 600});
    EXPECT_TRUE(Wait_Until([&] { return Menus().isEmpty(); }));
    EXPECT_TRUE(Wait_Until([&] { return desktop.Geometry(strip).height() < 20; }));
    tockly.Signal(SIGTERM);
    EXPECT_EQ(tockly.Wait_For_End(), 0);
}

TEST_F(Links, A_Target_Is_Opened_As_One_Also_By_Keyboard_And_Never_Through_A_Shell) {
    const QString trap = Home() + "/trap"_L1;
    const QString script = Home() + "/do $(touch trap) \"it\".exe"_L1;
    Write_File(script, "#!/bin/sh\necho \"$#\" > '" + (Home() + "/ran"_L1).toUtf8() + "'\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
    Write_File(Home() + "/User-1/links.dat"_L1, Links_File({"0" + script.toUtf8()}));
    Tockly tockly(desktop, Home());
    tockly.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    Tockly second(desktop, Home());
    second.Start();
    EXPECT_EQ(second.Wait_For_End(), 0);
    Wait_For_Focus(Strip);
    strip = Strip_Window();
    Keys({u"space"_s});
    Wait_For_Another({});
    EXPECT_TRUE(Wait_Until([&] { return desktop.XDo({u"getactivewindow"_s}) != strip; }));
    Keys({u"End"_s, u"Return"_s}); // the link stands behind the program's category
    EXPECT_TRUE(Wait_Until([&] { return File_Bytes(Home() + "/ran"_L1) == "0\n"; }));
    EXPECT_FALSE(QFile::exists(trap));
    EXPECT_TRUE(Wait_Until([&] { return Menus().isEmpty(); }));
}

} // namespace
