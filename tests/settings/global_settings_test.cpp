#include "core/date_text.h"
#include "settings/account.h"
#include "settings/global_settings.h"
#include "settings/registry_access.h"
#include "support/fake_files.h"
#include "support/fake_session.h"
#include "support/memory_registry.h"

#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::RegistryType;

namespace {

// Writes down what is written, as "key name type value".
class WatchedRegistry : public MemoryRegistry {
public:
    QStringList log;

    bool Create_Key(Root root, const QString& path) override {
        log << u"create "_s + path;
        return MemoryRegistry::Create_Key(root, path);
    }
    bool Write(Root root, const QString& path, const QString& name,
               const platform::RegistryValue& value) override {
        const QString text =
            value.type == RegistryType::DWord
                ? u" dword "_s + QString::number(value.number, 16)
                : u" binary "_s +
                      QString::fromLatin1(QByteArray::fromStdString(value.bytes).toHex(' '));
        log << (root == Root::LocalMachine ? u"HKLM "_s : u"HKCU "_s) + name + text;
        return MemoryRegistry::Write(root, path, name, value);
    }
};

class GlobalSettings : public testing::Test {
protected:
    void Load() { Load_Global_Settings({4995, 15360, 3870, 15}); }
    void Store(const QString& name, std::int32_t value) {
        clsRegistryAccess().WriteDWORD(u"HKCU\\Software\\Tockly"_s, name, value);
    }
    WatchedRegistry registry;
    FakeSession session;
};

TEST_F(GlobalSettings, A_first_start_has_the_defaults_and_the_first_account) {
    session.shortDatePattern = u"DD.MM.YYYY"_s;
    Compute_IsWinXP();
    Load();
    EXPECT_TRUE(Global_TopForm && Global_UseShadows && Global_UseTransparency);
    EXPECT_FALSE(Global_Autohide_Enabled);
    EXPECT_EQ(Global_Autohide_WaitTime, 10000);
    EXPECT_EQ(Global_Autohide_SelectedHideMode, 4);
    EXPECT_EQ(Global_Config_MainForm_Width, 4995);
    EXPECT_EQ(Global_Config_MainForm_Top, 0);
    EXPECT_EQ(Global_Config_MainForm_Left, 5182); // 7680 - 2497.5, the half to the even number
    EXPECT_EQ(Global_Config_Textbox_Top, 450);
    EXPECT_EQ(Global_Config_Textbox_Left, 11490);
    EXPECT_EQ(Global_DateFormat, u"dd.mm.yyyy"_s);
    EXPECT_EQ(FirstTime, 1);
    EXPECT_EQ(Global_CurID, 1);
    EXPECT_EQ(Global_MaxAccountID, 2);
    EXPECT_EQ(registry.changes, 0);
}

TEST_F(GlobalSettings, Stored_values_come_back_and_a_width_is_repaired_in_twips) {
    Store(u"Global_TopForm"_s, 0);
    Store(u"Global_Autohide_Enabled"_s, 2);
    Store(u"Global_Autohide_SelectedHideMode"_s, -1);
    Store(u"Global_CurID"_s, 7);
    clsRegistryAccess().WriteString(u"HKCU\\Software\\Tockly"_s, u"Global_Autohide_WaitTime"_s,
                                    u"2000"_s); // not a number's type
    const std::pair<std::int32_t, std::int32_t> widths[] = {{100, 280}, {-5, 280}, {281, 281}};
    for (const auto& [stored, loaded] : widths) {
        Store(u"Global_Config_MainForm_Width"_s, stored);
        Load();
        EXPECT_EQ(Global_Config_MainForm_Width, loaded);
    }
    EXPECT_FALSE(Global_TopForm);
    EXPECT_TRUE(Global_Autohide_Enabled);
    EXPECT_EQ(Global_Autohide_SelectedHideMode, -1);
    EXPECT_EQ(Global_Autohide_WaitTime, 10000);
    EXPECT_EQ(Global_CurID, 7);
    EXPECT_EQ(Global_MaxAccountID, 1);
}

TEST_F(GlobalSettings, Only_systems_after_5_0_count_as_recent_and_have_shadows_at_first) {
    const std::pair<platform::SystemVersion, bool> cases[] = {
        {{4, 10}, false}, {{5, 0}, false}, {{5, 1}, true}, {{6, 0}, true}};
    for (const auto& [version, recent] : cases) {
        session.version = version;
        Compute_IsWinXP();
        Load();
        EXPECT_EQ(Global_IsWinXP, recent) << version.major << '.' << version.minor;
        EXPECT_EQ(Global_UseShadows, recent) << version.major << '.' << version.minor;
    }
}

TEST_F(GlobalSettings, Saving_writes_every_value_in_order_with_its_type) {
    Load();
    Global_TopForm = false;
    Global_Autohide_SelectedHideMode = -1;
    Global_DateFormat = u"dd/mm/yy"_s;
    Save_Global_Settings({120, {16, 32}, std::nullopt}, u"C:\\\u20ac"_s);
    const QStringList wanted{u"create Software\\Tockly"_s,
                             u"HKCU Global_TopForm dword 0"_s,
                             u"HKCU Global_UseShadows dword ffffffff"_s,
                             u"HKCU Global_UseTransparency dword ffffffff"_s,
                             u"HKCU Global_Autohide_WaitTime dword 2710"_s,
                             u"HKCU Global_Autohide_Enabled dword 0"_s,
                             u"HKCU Global_Autohide_SelectedHideMode dword ffffffff"_s,
                             u"HKCU Global_Config_MainForm_Width dword 78"_s,
                             u"HKCU Global_Config_MainForm_Top dword 10"_s,
                             u"HKCU Global_Config_MainForm_Left dword 20"_s,
                             u"HKCU Global_Config_Textbox_Top dword 1c2"_s,
                             u"HKCU Global_Config_Textbox_Left dword 2ce2"_s,
                             u"HKCU First Time dword 0"_s,
                             u"HKCU Global_CurID dword 1"_s,
                             u"create Software\\Tockly"_s,
                             u"HKLM Global_MaxAccountID dword 2"_s,
                             u"HKLM Path binary 43 3a 5c 80"_s,
                             u"HKCU DateFormat binary 64 64 2f 6d 6d 2f 79 79"_s};
    EXPECT_EQ(registry.log, wanted) << registry.log.join(u'\n').toStdString();
}

TEST_F(GlobalSettings, Without_the_machine_key_all_is_kept_but_the_account_counter) {
    registry.Refuse(platform::RegistryRoot::LocalMachine);
    Load();
    Global_DateFormat = u"yyyy年mm月dd"_s; // beyond the code page
    Save_Global_Settings({6000, {-15, 30}, WindowPlace{900, 1200}}, u"/opt/tockly"_s);
    EXPECT_EQ(registry.changes, 1 + 14); // the key, and the user's values
    Global_DateFormat.clear();
    Global_Config_Textbox_Top = 0;
    Load();
    EXPECT_EQ(Global_DateFormat, u"yyyy年mm月dd"_s);
    EXPECT_EQ(Global_Config_MainForm_Top, -15);
    EXPECT_EQ(Global_Config_Textbox_Top, 900);
    EXPECT_EQ(Global_CurID, 1);
    EXPECT_EQ(Global_MaxAccountID, 1);
    EXPECT_EQ(FirstTime, 0);
}

TEST_F(GlobalSettings, A_number_whose_folder_bears_only_another_users_marker_is_passed_over) {
    QTemporaryDir program;
    FakeFiles files;
    const auto put = [&](const char* path, const char* content) {
        const QString file = program.filePath(QString::fromLatin1(path));
        files.Make_Folder(QFileInfo(file).path());
        EXPECT_TRUE(files.Replace(file, content));
    };
    put("User-1/alice", "");
    put("User-1/notes.dat", "NotesSaveFile");
    put("User-2/carol", "");
    put("User-3/links.dat", ""); // an emptied data file is nobody's marker
    session.userName = u"bob"_s;
    SettingsDefaults defaults;
    defaults.AccountIsTaken = [&](std::int32_t number) {
        return Account_Is_Taken(program.path(), number);
    };
    Load_Global_Settings(defaults);
    EXPECT_EQ(Global_CurID, 3);
    EXPECT_EQ(Global_MaxAccountID, 4);
    put("User-2/bob", ""); // both have been here: nobody is driven out
    EXPECT_FALSE(Account_Is_Taken(program.path(), 2));
    // What nobody but its owner may read: the folder, and the counter.
    files.refusedReads = {u"User-3"_s};
    EXPECT_TRUE(Account_Is_Taken(program.path(), 3));
    defaults.AccountIsClosed = [&](std::int32_t number) {
        return Account_Is_Closed(program.path(), number);
    };
    put("User-4/links.dat", "LinksSaveFile");
    registry.unreadable.insert(platform::RegistryRoot::LocalMachine);
    registry.Create_Key(platform::RegistryRoot::CurrentUser, u"Software\\Tockly"_s);
    registry.Write(platform::RegistryRoot::CurrentUser, u"Software\\Tockly"_s, u"Global_CurID"_s,
                   {platform::RegistryType::DWord, {}, {}, 3});
    Load_Global_Settings(defaults);
    EXPECT_EQ(Global_CurID, 2) << "a number that leads nowhere is not kept";
    EXPECT_TRUE(Account_Is_Taken(program.path(), 4));
    EXPECT_FALSE(Account_Is_Taken(program.path(), 5));
}

} // namespace
