// The registry's files, byte by byte, and the entry that starts the program at log-on.
#include "platform/files.h"
#include "platform/providers.h"
#include "platform/registry.h"
#include "small_files_only.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::RegistryRoot;
using platform::RegistryType;
using platform::RegistryValue;

namespace {

constexpr auto User = RegistryRoot::CurrentUser;
constexpr auto Machine = RegistryRoot::LocalMachine;
const QString RunKey = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s;

class RegistryFiles : public testing::Test {
protected:
    RegistryFiles() {
        qputenv("TOCKLY_REGISTRY", folder.filePath(u"registry"_s).toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", folder.filePath(u"config"_s).toLocal8Bit());
        QDir(folder.path()).mkpath(u"registry"_s);
    }
    ~RegistryFiles() override {
        qunsetenv("TOCKLY_REGISTRY");
        qunsetenv("XDG_CONFIG_HOME");
    }

    QString Path(const QString& name) { return folder.filePath(name); }
    std::string Content(const QString& name) {
        return files->Read(Path(name)).value_or("no such file");
    }
    void Put(const QString& name, const std::string& bytes) {
        ASSERT_TRUE(files->Replace(Path(name), bytes));
    }
    static RegistryValue Text(const QString& text) { return {RegistryType::String, text, {}, 0}; }

    QTemporaryDir folder;
    std::unique_ptr<platform::Files> files = platform::Make_Files();
    std::unique_ptr<platform::Registry> registry = platform::Make_Registry();
    const QString userFile = u"registry/HKEY_CURRENT_USER.reg"_s;
    const QString entry = u"config/autostart/tockly.desktop"_s;
};

} // namespace

TEST_F(RegistryFiles, values_are_kept_as_lines_of_the_registry_editor) {
    ASSERT_TRUE(registry->Create_Key(User, u"Software\\Tockly"_s));
    registry->Write(User, u"Software\\Tockly"_s, {}, Text(u"C:\\\"x\""_s));
    registry->Write(User, u"Software\\Tockly"_s, u"A\u00E4"_s, Text(u"\u0416"_s));
    registry->Write(User, u"Software\\Tockly"_s, u"B"_s,
                    {RegistryType::Binary, {}, std::string("\0\xAB", 2), 0});
    registry->Write(User, u"Software\\Tockly"_s, u"L"_s, Text(u"1\r\n"_s));
    registry->Write(User, u"Software\\Tockly"_s, u"C"_s, {RegistryType::DWord, {}, {}, 0x14DU});
    EXPECT_EQ(Content(userFile), "REGEDIT4\r\n"
                                 "\r\n[HKEY_CURRENT_USER\\Software]\r\n"
                                 "\r\n[HKEY_CURRENT_USER\\Software\\Tockly]\r\n"
                                 "@=\"C:\\\\\\\"x\\\"\"\r\n"
                                 "\"A\xE4\"=\"\xEF\xBB\xBF\xD0\x96\"\r\n"
                                 "\"L\"=hex(1):31,0d,0a,00\r\n"
                                 "\"B\"=hex:00,ab\r\n"
                                 "\"C\"=dword:0000014d\r\n\r\n");
}

TEST_F(RegistryFiles, a_file_written_by_hand_is_read_and_survives_a_change) {
    Put(userFile, "REGEDIT4\n; mine\n[HKEY_CURRENT_USER\\Soft]\n  \"N\" = \"a\\\\b=\\\"c\\\"\"  \n"
                  "\"D\"=dword:FF\n@=hex:0a, FF\n");
    EXPECT_EQ(registry->Read(User, u"Soft"_s, u"n"_s), Text(u"a\\b=\"c\""_s));
    EXPECT_EQ(registry->Read(User, u"Soft"_s, u"D"_s)->number, 255U);
    EXPECT_EQ(registry->Read(User, u"Soft"_s, {})->bytes, "\x0A\xFF");
    ASSERT_TRUE(registry->Write(User, u"Soft"_s, u"E"_s, Text({})));
    EXPECT_EQ(platform::Make_Registry()->Value_Names(User, u"Soft"_s).size(), 4U);
    EXPECT_FALSE(QFile::exists(Path(userFile + u".damaged"_s)));
}

TEST_F(RegistryFiles, a_damaged_file_is_read_as_far_as_it_can_be_and_kept) {
    const std::string damaged = "REGEDIT4\r\n[HKEY_CURRENT_USER\\K]\r\n\"a\"=\"1\"\r\n\"b\"=\"2\r\n"
                                "\"c\"=dword:xyz\r\n\"d\"=hex:1,,2\r\nrubbish\r\n\"e\"=\"3\"\r\n";
    Put(userFile, damaged);
    Put(userFile + u".damaged"_s, "an earlier one");
    EXPECT_EQ(registry->Value_Names(User, u"K"_s), (std::vector{u"a"_s, u"e"_s}));
    EXPECT_EQ(Content(userFile), damaged); // reading changes nothing
    ASSERT_TRUE(registry->Write(User, u"K"_s, u"f"_s, Text(u"4"_s)));
    ASSERT_TRUE(registry->Write(User, u"K"_s, u"g"_s, Text(u"5"_s)));
    EXPECT_EQ(Content(userFile + u".damaged"_s), "an earlier one");
    EXPECT_EQ(Content(userFile + u".damaged-2"_s), damaged);
    EXPECT_EQ(QDir(Path(u"registry"_s)).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

TEST_F(RegistryFiles, what_another_process_wrote_meanwhile_stays) {
    const auto other = platform::Make_Registry();
    ASSERT_TRUE(registry->Create_Key(User, u"K"_s));
    ASSERT_TRUE(other->Write(User, u"K"_s, u"theirs"_s, Text(u"1"_s)));
    ASSERT_TRUE(registry->Write(User, u"K"_s, u"ours"_s, Text(u"2"_s)));
    EXPECT_EQ(other->Value_Names(User, u"K"_s), (std::vector{u"ours"_s, u"theirs"_s}));
}

TEST_F(RegistryFiles, a_value_that_could_not_be_stored_is_not_kept) {
    ASSERT_TRUE(registry->Create_Key(User, u"K"_s));
    const std::string before = Content(userFile);
    {
        const SmallFilesOnly full(before.size());
        EXPECT_FALSE(registry->Write(User, u"K"_s, u"v"_s, Text(u"x"_s)));
    }
    EXPECT_EQ(registry->Read(User, u"K"_s, u"v"_s), std::nullopt);
    EXPECT_EQ(Content(userFile), before);

    QDir(folder.path()).mkpath(u"registry/HKEY_LOCAL_MACHINE.reg"_s);
    EXPECT_FALSE(registry->Create_Key(Machine, u"K"_s));
}

TEST_F(RegistryFiles, the_run_value_is_an_autostart_entry) {
    ASSERT_TRUE(registry->Create_Key(Machine, RunKey));
    const QString program = Path(u"my \"$(x)\" 5% prog"_s);
    Put(u"my \"$(x)\" 5% prog"_s, "");
    ASSERT_TRUE(registry->Write(Machine, RunKey, u"Other"_s, Text(u"x"_s)));
    EXPECT_FALSE(QFile::exists(Path(entry)));
    ASSERT_TRUE(registry->Write(Machine, RunKey, u"tockly"_s, Text(program)));
    const std::string place = folder.path().toStdString();
    EXPECT_EQ(Content(entry),
              "[Desktop Entry]\nType=Application\nName=Tockly\nIcon=tockly\nTryExec=" + place +
                  "/my \"$(x)\" 5% prog\nExec=\"" + place +
                  "/my \\\\\"\\\\$(x)\\\\\" 5%% prog\"\nTerminal=false\n");
    ASSERT_TRUE(registry->Write(Machine, RunKey, u"Tockly"_s, Text(u"\"/a b/c\" -d"_s)));
    EXPECT_NE(Content(entry).find("Exec=\"/a b/c\" \"-d\"\n"), std::string::npos);
    ASSERT_TRUE(registry->Delete_Value(Machine, RunKey, u"Tockly"_s));
    EXPECT_FALSE(QFile::exists(Path(entry)));
}

TEST_F(RegistryFiles, the_run_value_does_not_stick_where_no_entry_can_be_written) {
    Put(u"config"_s, "a file where the folder should be");
    ASSERT_TRUE(registry->Create_Key(Machine, RunKey));
    EXPECT_FALSE(registry->Write(Machine, RunKey, u"Tockly"_s, Text(u"/bin/true"_s)));
    EXPECT_EQ(registry->Read(Machine, RunKey, u"Tockly"_s), std::nullopt);
}
