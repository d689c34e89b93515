// Clock, paths and session.
#include "platform/date_pattern.h"
#include "platform/paths.h"
#include "platform/providers.h"
#include "platform/session.h"
#include "support/fake_clock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Clock, what_is_to_be_called_later_comes_in_its_time_and_goes_with_its_context) {
    const auto clock = platform::Make_Clock();
    QObject context;
    auto gone = std::make_unique<QObject>();
    QString called;
    const std::int32_t start = clock->Milliseconds();
    clock->Call_Later(40, &context, [&] { called += u'b'; });
    clock->Call_Later(20, &context, [&] {
        EXPECT_GE(clock->Milliseconds_Since(start), 20);
        called += u'a';
    });
    clock->Call_Later(10, gone.get(), [&] { called += u'x'; });
    gone.reset();
    while (called.size() < 2 && clock->Milliseconds_Since(start) < 10'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(called, u"ab"_s);
}

// What the kernel knows of the timers on the wall clock.
static QString Wall_Timers() {
    QString found;
    for (const QString& name : QDir(u"/proc/self/fdinfo"_s).entryList(QDir::Files)) {
        QFile file(u"/proc/self/fdinfo/"_s + name);
        const QString text =
            file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        if (text.contains("clockid: 0\n"_L1)) {
            found += text;
        }
    }
    return found;
}

TEST(Clock, the_wait_for_the_next_minute_ends_with_a_step_of_the_clock_and_goes_with_its_context) {
    const auto clock = platform::Make_Clock();
    const QString before = Wall_Timers();
    QObject context;
    auto gone = std::make_unique<QObject>();
    clock->Call_NextMinute(gone.get(), [] { FAIL(); });
    const QString timer = Wall_Timers();
    gone.reset();
    EXPECT_EQ(Wall_Timers(), before);
    EXPECT_TRUE(timer.contains("settime flags: 03"_L1))
        << timer.toStdString(); // absolute, cancelled
    const QRegularExpressionMatch left = QRegularExpression(u"it_value: \\((\\d+),"_s).match(timer);
    const int full = 60 - clock->Now().second;
    EXPECT_NEAR(left.captured(1).toInt() % 60, full % 60, 2) << timer.toStdString();
}

TEST(Clock, a_measurement_crosses_the_end_of_the_counter) {
    FakeClock clock;
    clock.Set_Milliseconds(INT32_MAX - 5);
    const std::int32_t start = clock.Milliseconds();
    clock.Advance(20);
    EXPECT_LT(clock.Milliseconds(), 0);
    EXPECT_EQ(clock.Milliseconds_Since(start), 20);
}

TEST(Clock, the_local_time_follows_the_zone) {
    const auto clock = platform::Make_Clock();
    for (const int hours : {0, 5, -8}) {
        qputenv("TZ", "XXX" + QByteArray::number(-hours));
        const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(hours * 3600);
        const platform::LocalTime now = clock->Now();
        const QDateTime read(QDate(now.year, now.month, now.day),
                             QTime(now.hour, now.minute, now.second, now.millisecond), Qt::UTC);
        EXPECT_LT(qAbs(before.msecsTo(read)), 5000) << hours;
    }
    qunsetenv("TZ");
}

TEST(Paths, the_named_folder_is_made_and_files_are_looked_for_there_first) {
    const QTemporaryDir folder;
    qputenv("TOCKLY_HOME", folder.filePath(u"a/../home/"_s).toLocal8Bit());
    const auto paths = platform::Make_Paths();
    const QString home = folder.filePath(u"home"_s);
    EXPECT_EQ(paths->Program_Folder(), home);
    EXPECT_TRUE(QFile::exists(home));
    qunsetenv("TOCKLY_HOME");
    EXPECT_EQ(paths->Program_Folder(), home); // chosen once

    const QString program = QFileInfo(paths->Executable()).fileName();
    const QString beside = QCoreApplication::applicationDirPath() + u'/' + program;
    EXPECT_EQ(paths->Shipped_File(program), beside);
    EXPECT_EQ(paths->Shipped_File(u"missing.txt"_s), home + u"/missing.txt"_s);
    ASSERT_TRUE(QFile::copy(beside, home + u'/' + program));
    EXPECT_EQ(paths->Shipped_File(program), home + u'/' + program);
}

TEST(Paths, the_data_lie_with_the_users_others_and_beside_a_portable_program) {
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
    EXPECT_EQ(platform::Make_Paths()->Program_Folder(), data.filePath(u"tockly"_s));
    QFile mark(QCoreApplication::applicationDirPath() + u"/portable"_s);
    ASSERT_TRUE(mark.open(QIODevice::WriteOnly));
    EXPECT_EQ(platform::Make_Paths()->Program_Folder(), QCoreApplication::applicationDirPath());
    mark.remove();
    qunsetenv("XDG_DATA_HOME");
}

TEST(Paths, the_data_beside_an_earlier_build_are_taken_along_and_replace_nothing) {
    const QTemporaryDir folder;
    const auto put = [&](const QString& name, const char* text) {
        QDir().mkpath(QFileInfo(folder.filePath(name)).path());
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
    };
    put(u"old/User-1/notes.dat"_s, "old");
    put(u"old/User-2/notes.dat"_s, "old");
    put(u"old/HKEY_LOCAL_MACHINE.reg"_s, "old");
    put(u"old/tooltips.txt"_s, "shipped");
    put(u"new/User-2/notes.dat"_s, "new");
    for (int time = 0; time < 2; ++time) {
        QProcess script;
        script.start(u"bash"_s,
                     {u"-euc"_s, u". \"$1\"; bring_data \"$2/old\" \"$2/new\""_s, u"bash"_s,
                      QStringLiteral(TOCKLY_SCRIPTS "/data.sh"), folder.path()});
        ASSERT_TRUE(script.waitForFinished() && script.exitCode() == 0);
    }
    const auto text = [&](const char* name) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    };
    EXPECT_EQ(text("new/User-1/notes.dat"), "old");
    EXPECT_EQ(text("old/User-1/notes.dat"), "none");
    EXPECT_EQ(text("new/User-2/notes.dat"), "new");
    EXPECT_EQ(text("old/User-2/notes.dat"), "old");
    EXPECT_EQ(text("new/HKEY_LOCAL_MACHINE.reg"), "old");
    EXPECT_EQ(text("new/tooltips.txt"), "none");
}

TEST(Session, a_date_format_of_the_toolkit_becomes_a_pattern) {
    const struct {
        const char16_t* format;
        const char16_t* pattern;
    } cases[] = {
        {u"M/d/yy", u"mm/dd/yy"},
        {u"dd.MM.yyyy", u"dd.mm.yyyy"},
        {u"yyyy-MM-dd", u"yyyy-mm-dd"},
        {u"d.M.y", u"dd.mm.yyyy"},
        {u"yyyy. MM. dd.", u"yyyy.mm.dd"},
        {u"d.MM.yy 'd.'", u"dd.mm.yy"},
        {u"d\u200F/M\u200F/yyyy", u"dd/mm/yyyy"},
        {u"d MMM yyyy", u""},
        {u"", u""},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(platform::Date_Pattern(QString::fromUtf16(one.format)),
                  QString::fromUtf16(one.pattern));
    }
}

TEST(Session, the_user_has_a_name_and_the_system_counts_as_recent) {
    const auto session = platform::Make_Session();
    EXPECT_EQ(session->User_Name(), QFileInfo(u"/proc/self"_s).owner());
    EXPECT_EQ(session->System_Version().major, 6);
    EXPECT_LE(session->Short_Date_Pattern().size(), 10);
}
