// What every registry does, in memory or in files.
#include "platform/providers.h"
#include "support/memory_registry.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::RegistryRoot;
using platform::RegistryType;
using platform::RegistryValue;

namespace {

constexpr auto User = RegistryRoot::CurrentUser;

enum class Kind { Memory, System };

class RegistryContract : public testing::TestWithParam<Kind> {
protected:
    RegistryContract() {
        qputenv("TOCKLY_REGISTRY", folder.path().toLocal8Bit());
        if (GetParam() == Kind::System) {
            system = platform::Make_Registry();
        }
    }
    ~RegistryContract() override { qunsetenv("TOCKLY_REGISTRY"); }

    platform::Registry& Tested() { return system ? *system : memory; }
    static RegistryValue Text(const QString& text) { return {RegistryType::String, text, {}, 0}; }

    QTemporaryDir folder;
    MemoryRegistry memory;
    std::unique_ptr<platform::Registry> system;
};

} // namespace

TEST_P(RegistryContract, names_are_compared_without_case_and_keep_their_first_form) {
    ASSERT_TRUE(Tested().Create_Key(User, u"Software\\Tockly"_s));
    ASSERT_TRUE(Tested().Create_Key(User, u"SOFTWARE\\TOCKLY\\Sub"_s));
    ASSERT_TRUE(Tested().Write(User, u"software\\tockly"_s, u"Width"_s, Text(u"1"_s)));
    ASSERT_TRUE(Tested().Write(User, u"Software\\Tockly"_s, u"WIDTH"_s, Text(u"2"_s)));
    EXPECT_EQ(Tested().Sub_Keys(User, {}), std::vector{u"Software"_s});
    EXPECT_EQ(Tested().Sub_Keys(User, u"software"_s), std::vector{u"Tockly"_s});
    EXPECT_EQ(Tested().Value_Names(User, u"Software\\Tockly"_s), std::vector{u"Width"_s});
    EXPECT_EQ(Tested().Read(User, u"Software\\Tockly"_s, u"wIDTH"_s), Text(u"2"_s));
    EXPECT_EQ(Tested().Read(RegistryRoot::LocalMachine, u"Software\\Tockly"_s, u"Width"_s),
              std::nullopt);
}

TEST_P(RegistryContract, every_type_is_read_as_it_was_written) {
    const RegistryValue values[] = {
        {RegistryType::String, u"two\r\nlines \"quoted\" C:\\x \u00E4 \u0416"_s, {}, 0},
        {RegistryType::String, {}, {}, 0},
        {RegistryType::Binary, {}, std::string("\0\xFF\r\n", 4), 0},
        {RegistryType::Binary, {}, {}, 0},
        {RegistryType::DWord, {}, {}, 0xFFFFFFFFU},
    };
    ASSERT_TRUE(Tested().Create_Key(User, u"K"_s));
    for (const RegistryValue& value : values) {
        for (const QString& name : {QString(), u"a=\"b\"\\"_s}) {
            ASSERT_TRUE(Tested().Write(User, u"K"_s, name, value));
            EXPECT_EQ(Tested().Read(User, u"K"_s, name), value);
        }
    }
}

TEST_P(RegistryContract, a_key_goes_with_its_values_and_the_keys_below_alone) {
    for (const auto* path : {u"A\\B\\C", u"A\\B2", u"AB"}) {
        ASSERT_TRUE(Tested().Create_Key(User, QString::fromUtf16(path)));
    }
    EXPECT_TRUE(Tested().Delete_Key(User, u"a\\b"_s));
    EXPECT_FALSE(Tested().Key_Exists(User, u"A\\B\\C"_s));
    EXPECT_EQ(Tested().Sub_Keys(User, u"A"_s), std::vector{u"B2"_s});
    EXPECT_TRUE(Tested().Key_Exists(User, u"AB"_s));
}

TEST_P(RegistryContract, what_cannot_be_done_is_refused) {
    ASSERT_TRUE(Tested().Create_Key(User, u"K"_s));
    EXPECT_FALSE(Tested().Write(User, u"Missing"_s, u"v"_s, Text(u"x"_s)));
    EXPECT_FALSE(Tested().Key_Exists(User, u"Missing"_s));
    EXPECT_FALSE(Tested().Write(User, u"K"_s, u"two\nlines"_s, Text(u"x"_s)));
    EXPECT_FALSE(Tested().Delete_Value(User, u"K"_s, u"v"_s));
    EXPECT_FALSE(Tested().Delete_Key(User, u"Missing"_s));
    EXPECT_FALSE(Tested().Delete_Key(User, {}));
    EXPECT_FALSE(Tested().Create_Key(User, QString(256, u'k')));
    EXPECT_FALSE(Tested().Create_Key(User, u"two\nlines"_s));
    EXPECT_FALSE(Tested().Create_Key(User, u"k\\"_s.repeated(513)));
}

INSTANTIATE_TEST_SUITE_P(Registries, RegistryContract, testing::Values(Kind::Memory, Kind::System),
                         [](const auto& one) {
                             return one.param == Kind::Memory ? "Memory" : "System";
                         });

TEST(MemoryRegistry, a_refused_root_can_be_read_and_not_changed) {
    MemoryRegistry registry;
    ASSERT_TRUE(registry.Create_Key(User, u"K"_s));
    registry.Refuse(User);
    EXPECT_FALSE(registry.Write(User, u"K"_s, u"v"_s, {}));
    EXPECT_TRUE(registry.Key_Exists(User, u"K"_s));
    EXPECT_TRUE(registry.Create_Key(RegistryRoot::LocalMachine, u"K"_s));
}
