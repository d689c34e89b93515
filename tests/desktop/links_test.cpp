// The links menu on a real X desktop.
#include "desktop/driven.h"
#include "desktop/records.h"

namespace {

QByteArray Links_File(const QList<QByteArray>& urls) {
    QByteArray bytes = "LinksSaveFile001";
    Put(bytes, urls.size() - 1, 4);
    for (int level = 0; level < urls.size(); ++level) {
        const QByteArray& url = urls[level];
        for (const QByteArray& text : {url, "Row " + QByteArray::number(level), QByteArray()}) {
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
    // A row sees the mouse that moves over it.
    void Rest_At(const QPoint& place) const {
        desktop.XDo(Move_To(place - QPoint(1, 0)) + Move_To(place));
    }
    QString strip;
};

TEST_F(Links, Five_Levels_Open_Close_Behind_The_Mouse_And_The_Toolbar_Hides_By_Itself) {
    Write_File(Reminders(), Reminder_File({})); // no message holds the toolbar
    Write_File(Home() + "/User-1/links.dat"_L1,
               Links_File({"@0Category", "@1Category", "@2Category", "@3Category", "4nowhere"}));
    Lay_Out("\"Global_CurID\"=dword:00000001\r\n"
            "\"Global_Autohide_Enabled\"=dword:ffffffff\r\n"
            "\"Global_Autohide_WaitTime\"=dword:000007d0\r\n"
            "\"Global_Autohide_SelectedHideMode\"=dword:ffffffff\r\n");
    Tockly tockly(desktop, Home());
    Bring_Up(tockly);
    strip = Strip_Window();
    Click(Strip, {"push button", "My Links"});
    QRect menu = Find({}, {"popup menu", "My Links"}).place;
    EXPECT_EQ(menu.topLeft(), QPoint(345, 20));
    const QPoint header(menu.center().x(), menu.top() + 10); // opens nothing again
    for (int level = 0; level < 4; ++level) {
        const QByteArray row = "Row " + QByteArray::number(level);
        Click({}, {"menu item", row});
        const QRect child = Find({}, {"popup menu", row}).place;
        EXPECT_EQ(child.left(), menu.right() + 1) << level;
        menu = child;
    }
    Rest_At(Place({}, {"menu item", "Row 4"}));
    EXPECT_EQ(Menus().size(), 5);
    Rest_At(header);
    EXPECT_TRUE(Wait_Until([&] { return Menus().size() == 1; })) << "what was left closes";
    Rest_At({900, 600});
    EXPECT_TRUE(Wait_Until([&] { return Menus().isEmpty(); }));
    EXPECT_TRUE(Wait_Until([&] { return desktop.Geometry(strip).height() < 20; }));
    EXPECT_EQ(tockly.End(), 0);
}

TEST_F(Links, A_Target_Is_Opened_As_One_Also_By_Keyboard_And_Never_Through_A_Shell) {
    const QString trap = Home() + "/trap"_L1;
    const QString ran = Home() + "/ran"_L1;
    const QString script = Home() + "/do $(touch trap) \"it\".exe"_L1;
    Write_File(script, "#!/bin/sh\n(echo \"$#\"; env) > '" + ran.toUtf8() + ".new'\nmv '" +
                           ran.toUtf8() + ".new' '" + ran.toUtf8() + "'\n");
    QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner);
    Write_File(Home() + "/User-1/links.dat"_L1, Links_File({"0" + script.toUtf8()}));
    Tockly tockly(desktop, Home());
    Bring_Up(tockly);
    Launch_Again();
    Wait_For_Focus(Strip);
    strip = Strip_Window();
    Keys({u"space"_s});
    Wait_For_Focus(u"My Links"_s);
    Keys({u"Escape"_s});
    Wait_For_Focus(Strip);
    EXPECT_TRUE(Wait_Until([&] { return Menus().isEmpty(); }));
    Keys({u"space"_s});
    Wait_For_Focus(u"My Links"_s);
    Keys({u"End"_s, u"Return"_s}); // the link stands behind the program's category
    ASSERT_TRUE(Wait_Until([&] { return QFile::exists(ran); }));
    const QByteArray said = File_Bytes(ran);
    EXPECT_TRUE(said.startsWith("0\n") && said.contains("\nDISPLAY="));
    EXPECT_FALSE(said.contains("\nQT_QPA_PLATFORM=")) << "the environment is that of the launch";
    EXPECT_FALSE(QFile::exists(trap));
    EXPECT_TRUE(Wait_Until([&] { return Menus().isEmpty(); }));
}

} // namespace
