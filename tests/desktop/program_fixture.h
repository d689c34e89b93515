// A program on a desktop of its own, with folders of its own.
#pragma once

#include "desktop/test_desktop.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

inline const QString Strip = u"Tockly Toolbar"_s;
inline const QString Box = u"Tockly"_s; // the title of message boxes

class Program : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(desktop.Is_Up() && folder.isValid());
        Lay_Out();
    }
    // Settings of a program that was started before.
    void Lay_Out(const QByteArray& more = {}) const {
        Write_File(Home() + "/HKEY_CURRENT_USER.reg"_L1,
                   "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tockly]\r\n"
                   "\"First Time\"=dword:00000000\r\n" +
                       more);
    }
    void Bring_Up(Tockly& tockly) const {
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    }
    // The next start is the very first, with its wizard.
    void Forget_Settings() const { QFile::remove(Home() + "/HKEY_CURRENT_USER.reg"_L1); }

    QString Home() const { return folder.path(); }
    QString Reminders() const { return Home() + "/User-1/reminders.dat"_L1; }
    QString Strip_Window() const { return desktop.Visible_Windows(Strip).value(0); }
    void Give_Examples() const {
        QFile::copy(QStringLiteral(TOCKLY_EXAMPLES), Home() + "/examplereminders.dat"_L1);
    }
    int Count(const QString& title) const {
        return static_cast<int>(desktop.Visible_Windows(title).size());
    }

    QTemporaryDir folder;
    TestDesktop desktop;
};
