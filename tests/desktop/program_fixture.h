// A program on a desktop of its own, with folders of its own.
#pragma once

#include "desktop/test_desktop.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

inline const QString Strip = u"Tockly Toolbar"_s;
inline const QString Box = u"Tockly"_s;       // the title of message boxes
inline constexpr QRect Line(196, 4, 112, 13); // the message line inside the strip

class Program : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(desktop.Is_Up() && folder.isValid());
        Write_File(Home() + "/HKEY_CURRENT_USER.reg"_L1, "REGEDIT4\r\n\r\n"
                                                         "[HKEY_CURRENT_USER\\Software\\Tockly]\r\n"
                                                         "\"First Time\"=dword:00000000\r\n");
    }
    // The next start is the very first, with its wizard.
    void Forget_Settings() const { QFile::remove(Home() + "/HKEY_CURRENT_USER.reg"_L1); }

    QString Home() const { return folder.path(); }
    QString Reminders() const { return Home() + "/User-1/reminders.dat"_L1; }
    QString Strip_Window() const { return desktop.Visible_Windows(Strip).value(0); }
    // Text stands on the message line once more than background and frame are to be seen there.
    bool Line_Has_Text() const {
        return desktop.Colours(Line.translated(desktop.Geometry(Strip_Window()).topLeft())) > 1;
    }
    void Give_Examples() const {
        QFile::copy(QStringLiteral(TOCKLY_EXAMPLES), Home() + "/examplereminders.dat"_L1);
    }
    // A popup menu is a window of the program without a title that the tools read.
    bool Menu_Is_Open() const {
        return desktop.Search({u"--class"_s, u"^tockly$"_s}).size() > Count(Strip);
    }
    int Count(const QString& title) const {
        return static_cast<int>(desktop.Visible_Windows(title).size());
    }

    QTemporaryDir folder;
    TestDesktop desktop;
};
