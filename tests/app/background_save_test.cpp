// What changes is on the disk soon, beside an interface that goes on.
#include "app/background_save.h"
#include "core/categories.h"
#include "core/record_stream.h"
#include "support/fake_system.h"

#include <QKeyEvent>
#include <QTest>
#include <QThread>
#include <QWidget>
#include <gtest/gtest.h>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

class Saving : public testing::Test {
protected:
    Saving() { Init_Reminders(); }

    BackgroundSave::Ports Ports() {
        return {{File(u"reminders.dat"_s), Reminders_File(), {}, u"Error saving reminders"_s},
                {{File(u"rcategories.txt"_s), Categories_File(), [this] { return other; },
                  u"Error saving categories"_s}},
                [this] { ++begun; },
                [this] { return [this] { ++settings; }; },
                [this](const QString& text) { told.append(text); }};
    }
    QString File(const QString& name) { return system.paths.Program_Folder() + u'/' + name; }
    std::optional<std::string> Bytes(const QString& name) {
        return platform::Files::Get().Read(File(name));
    }
    static void Add(std::int32_t id) {
        ReminderSlot& slot = Global_Reminders[static_cast<std::size_t>(Take_FreeReminderSlot())];
        slot = {true, false, std::make_unique<ReminderClass>()};
        slot.Reminder->rs_ID = id;
    }
    static bool Wait(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, 10000);
    }

    FakeSystem system;
    std::optional<std::string> other = "Work;Write\r\n";
    QStringList told;
    int begun = 0;
    std::atomic<int> settings = 0;
};

TEST_F(Saving, A_Change_Is_Written_Once_And_Rest_Writes_Nothing) {
    BackgroundSave save(Ports(), {5, 5});
    QWidget window;
    QTest::keyClick(&window, Qt::Key_A); // any input may have changed something
    ASSERT_TRUE(Wait([&] { return settings == 1; }));
    ASSERT_TRUE(Wait([&] { return Bytes(u"rcategories.txt"_s) == other; }));
    EXPECT_EQ(Bytes(u"reminders.dat"_s), "RSaveFile001" + std::string(4, '\0'));
    system.files.replaced.clear();

    Add(7);
    save.Note_Change();
    ASSERT_TRUE(Wait([&] { return settings >= 2; }));
    save.Finish();
    EXPECT_EQ(system.files.replaced, QStringList{File(u"reminders.dat"_s)});
    save.Note_Change(); // too late: the end saves
    QTest::qWait(50);
    EXPECT_LE(begun, 3);
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(Saving, A_Disk_That_Refuses_Is_Said_Once_And_Said_To_Work_Again) {
    BackgroundSave save(Ports(), {5, 5});
    system.files.refusedWrites = {u"reminders.dat"_s};
    save.Note_Change();
    ASSERT_TRUE(Wait([&] { return begun > 3; })) << "it keeps trying";
    EXPECT_EQ(told, QStringList{u"Error saving reminders\r\nTockly keeps trying."_s});
    system.files.refusedWrites.clear();
    ASSERT_TRUE(Wait([&] { return told.size() == 2; }));
    EXPECT_EQ(told.back(), u"Your data is saved again."_s);
    EXPECT_TRUE(Bytes(u"reminders.dat"_s));
}

TEST_F(Saving, What_Another_Program_Wrote_Is_Kept_And_Said) {
    BackgroundSave save(Ports(), {5, 5});
    save.Note_Change();
    ASSERT_TRUE(Wait([&] { return Bytes(u"reminders.dat"_s).has_value(); }));
    save.Finish();
    ASSERT_TRUE(system.files.Replace(File(u"reminders.dat"_s), "from a copy"));
    BackgroundSave later(Ports(), {5, 5});
    later.Note_Change();
    ASSERT_TRUE(Wait([&] { return !told.isEmpty(); }));
    EXPECT_EQ(Bytes(u"reminders.dat.other"_s), "from a copy");
    EXPECT_TRUE(told.front().startsWith(u"reminders.dat was changed by another program."_s));
}

} // namespace
