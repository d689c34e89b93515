// Clock, paths and session.
#include "platform/date_pattern.h"
#include "platform/paths.h"
#include "platform/providers.h"
#include "platform/session.h"
#include "support/fake_clock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
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

TEST(Paths, the_program_lives_beside_its_executable_where_it_may_write) {
    EXPECT_EQ(platform::Make_Paths()->Program_Folder(), QCoreApplication::applicationDirPath());
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
