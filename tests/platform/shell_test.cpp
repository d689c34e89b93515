// Opening and starting: the desktop's opener is a script of the test that writes down what it got.
#include "platform/desktop.h"
#include "platform/providers.h"
#include "platform/shell.h"
#include "platform/window.h"
#include "support/recording_media.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::ShowState;

namespace {

class ShellTest : public testing::Test {
protected:
    ShellTest() : path(qgetenv("PATH")), shell(platform::Make_Shell()) {
        qputenv("PATH", folder.path().toLocal8Bit() + ":" + path);
        qputenv("ARGUMENTS", folder.filePath(u"arguments"_s).toLocal8Bit());
        Put(u"xdg-open"_s, Script("opener"), true);
    }
    ~ShellTest() override { qputenv("PATH", path); }

    // Writes its name and each argument to the file, which appears when it is complete.
    static QByteArray Script(const char* name) {
        return QByteArray("#!/bin/sh\nprintf '%s|' ") + name +
               " \"$@\" > \"$ARGUMENTS.new\"\nmv \"$ARGUMENTS.new\" \"$ARGUMENTS\"\n";
    }
    QString Put(const QString& name, const QByteArray& bytes, bool isProgram) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.setPermissions(isProgram ? QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                      : QFile::ReadOwner | QFile::WriteOwner);
        return file.fileName();
    }
    QString Started() {
        QFile file(folder.filePath(u"arguments"_s));
        EXPECT_TRUE(QTest::qWaitFor([&] { return file.exists(); }, 20'000));
        const QString words =
            file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        file.remove();
        return words;
    }

    QTemporaryDir folder;
    QByteArray path;
    std::unique_ptr<platform::Shell> shell;
};

} // namespace

TEST_F(ShellTest, whatever_a_target_looks_like_it_is_one_argument) {
    for (const QString& name :
         {u"two words.txt"_s, u"a \"quote\" 'b'.txt"_s, u"$(touch x)`y`.txt"_s, u"-option.txt"_s,
          u"K\u00E4se \u0416.txt"_s, u"a;b&c|d"_s}) {
        const QString file = Put(name, "text", false);
        EXPECT_TRUE(shell->Open(file, ShowState::Normal));
        EXPECT_EQ(Started(), u"opener|"_s + file + u'|');
    }
    QDir::setCurrent(folder.path());
    EXPECT_TRUE(shell->Open(u"-option.txt"_s, ShowState::Normal));
    EXPECT_EQ(Started(), u"opener|"_s + folder.filePath(u"-option.txt"_s) + u'|');
    QDir::setCurrent(u"/"_s);
    const QString umlaut = folder.filePath(u"K\u00E4se \u0416.txt"_s);
    for (const QString& target : {QUrl::fromLocalFile(umlaut).toString(QUrl::FullyEncoded),
                                  u"file://"_s + umlaut, u' ' + umlaut + u"\r\n"_s}) {
        EXPECT_TRUE(shell->Open(target, ShowState::Minimized));
        EXPECT_EQ(Started(), u"opener|"_s + umlaut + u'|');
    }
    EXPECT_TRUE(shell->Open(u" WWW.example.org/a b"_s, ShowState::Normal));
    EXPECT_EQ(Started(), u"opener|http://WWW.example.org/a b|"_s);
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().toLocal8Bit());
    EXPECT_TRUE(shell->Open(u"~/two words.txt"_s, ShowState::Normal));
    qputenv("HOME", home);
    EXPECT_EQ(Started(), u"opener|"_s + folder.filePath(u"two words.txt"_s) + u'|');
    EXPECT_TRUE(shell->Open(u"https://example.org/?a=$(b)&c=\"d e\""_s, ShowState::Normal));
    EXPECT_EQ(Started(), u"opener|https://example.org/?a=$(b)&c=\"d e\"|"_s);
    EXPECT_TRUE(shell->Open(folder.path(), ShowState::Maximized));
    EXPECT_EQ(Started(), u"opener|"_s + folder.path() + u'|');
}

TEST_F(ShellTest, a_program_is_started_and_a_picture_with_its_bits_is_not) {
    EXPECT_TRUE(shell->Open(Put(u"my tool"_s, Script("tool"), true), ShowState::Normal));
    EXPECT_EQ(Started(), u"tool|"_s);
    EXPECT_TRUE(shell->Open(u"my tool"_s, ShowState::Normal)); // found as commands are
    EXPECT_EQ(Started(), u"tool|"_s);
    const QString picture = Put(u"picture.png"_s, "\x89PNG", true);
    EXPECT_TRUE(shell->Open(picture, ShowState::Normal));
    EXPECT_EQ(Started(), u"opener|"_s + picture + u'|');
    EXPECT_TRUE(shell->Start(u"my tool"_s, {u"-a b"_s, {}, u"$(id)`id`"_s, u"a;b \"c'"_s},
                             ShowState::Minimized));
    EXPECT_EQ(Started(), u"tool|-a b||$(id)`id`|a;b \"c'|"_s);
    // However a program file is named and started, it starts in its own folder.
    Put(u"where.exe"_s,
        "#!/bin/sh\npwd > \"$ARGUMENTS.new\"\nmv \"$ARGUMENTS.new\" \"$ARGUMENTS\"\n", true);
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().toLocal8Bit());
    EXPECT_TRUE(shell->Open(u"~/where.exe"_s, ShowState::Normal));
    EXPECT_EQ(Started().trimmed(), folder.path());
    EXPECT_TRUE(shell->Start(u" ~/where.exe"_s, {}, ShowState::Normal));
    EXPECT_EQ(Started().trimmed(), folder.path());
    qputenv("HOME", home);
}

TEST_F(ShellTest, what_is_not_there_is_not_started) {
    for (const QString& target : {QString(), u"/no/such/file"_s, u"no-such-command"_s, u"c:x"_s,
                                  u"file:///no/such/file"_s}) {
        EXPECT_FALSE(shell->Open(target, ShowState::Normal)) << target.toStdString();
        EXPECT_FALSE(shell->Start(target, {}, ShowState::Normal));
    }
    EXPECT_FALSE(shell->Start(Put(u"no program"_s, "text", false), {}, ShowState::Normal));
    EXPECT_FALSE(shell->Open(Put(u"broken"_s, "#!/no/interpreter\n", true), ShowState::Normal));
}

TEST(WithoutX11, windows_and_desktop_do_no_harm) {
    QWidget widget;
    const auto windows = platform::Make_Windows();
    const auto desktop = platform::Make_Desktop();
    for (const platform::WindowId window :
         {platform::WindowId{0}, platform::WindowId{widget.winId()}}) {
        windows->Set_Topmost(window, true);
        windows->Raise(window, platform::RaiseOver::Others);
        windows->Show_Everywhere(window);
        windows->Leave_TaskBar(window);
        windows->Activate(window);
        windows->Set_Alpha(window, 100);
        windows->Clear_Alpha(window);
        windows->Set_Shadow(window, true);
    }
    desktop->Minimize_All();
    EXPECT_EQ(desktop->Foreground_Title(), QString());
    EXPECT_EQ(desktop->Screens(), std::vector{QRect(0, 0, 800, 800)});
    EXPECT_EQ(desktop->TwipsPerPixelX(), 15);
    RecordingMedia media;
    desktop->Beep();
    EXPECT_EQ(media.tones, 1);
}
