#include "platform/reg_text.h"
#include "settings/registry_access.h"
#include "support/memory_files.h"
#include "support/memory_registry.h"

#include <gmock/gmock.h>

#include <random>

using namespace Qt::StringLiterals;
using platform::RegistryRoot;
using platform::RegistryType;
using platform::RegistryValue;
using testing::ElementsAre;

namespace {

const QString Key = u"HKCU\\Software\\Tockly"_s;

class RegistryAccess : public testing::Test {
protected:
    // Imports a file of these bytes.
    bool Import(const std::string& content) {
        EXPECT_TRUE(files.Replace(path, content));
        return access.ImportFromReg(path);
    }
    std::string Export(bool recursive) {
        EXPECT_TRUE(access.ExportToReg(Key, path, recursive));
        return files.Read(path).value_or("");
    }
    std::optional<RegistryValue> Read(const QString& name) {
        return registry.Read(RegistryRoot::CurrentUser, u"Software\\Tockly"_s, name);
    }

    const QString path = u"settings.reg"_s;
    MemoryRegistry registry;
    MemoryFiles files;
    clsRegistryAccess access;
};

TEST_F(RegistryAccess, Every_form_of_a_root_names_the_same_keys) {
    const std::tuple<QString, QString, std::uint32_t> roots[] = {
        {u"HKCU"_s, u"HKEY_CURRENT_USER"_s, 1},     {u"HKLM"_s, u"HKEY_LOCAL_MACHINE"_s, 2},
        {u"HKCR"_s, u"HKEY_CLASSES_ROOT"_s, 0},     {u"HKUS"_s, u"HKEY_USERS"_s, 3},
        {u"HKPD"_s, u"HKEY_PERFORMANCE_DATA"_s, 4}, {u"HKDD"_s, u"HKEY_DYN_DATA"_s, 6},
        {u"HKCC"_s, u"HKEY_CURRENT_CONFIG"_s, 5}};
    for (const auto& [shortForm, longForm, number] : roots) {
        const auto root = static_cast<RegistryRoot>(0x80000000U + number);
        EXPECT_TRUE(access.CreateKey(shortForm.toLower() + u"\\software\\x"_s));
        EXPECT_TRUE(registry.Key_Exists(root, u"Software\\X"_s)) << shortForm.toStdString();
        EXPECT_TRUE(access.HaveSubkey(shortForm));
        EXPECT_THAT(access.EnumKeys(longForm + u"\\Software"_s), ElementsAre(u"x"_s));
        EXPECT_FALSE(access.HaveSubkey(longForm + u"\\Software\\x"_s));
        EXPECT_TRUE(access.KillKey(longForm.toLower() + u"\\SOFTWARE\\X\\"_s));
        EXPECT_FALSE(access.KeyExists(shortForm + u"\\Software\\x"_s));
        EXPECT_FALSE(access.KillKey(shortForm));
    }
    EXPECT_FALSE(access.CreateKey(u"HKXX\\Software"_s));
}

TEST_F(RegistryAccess, Values_keep_their_types_and_reads_fall_back) {
    EXPECT_TRUE(access.WriteString(Key, u"@"_s, u"default"_s));
    EXPECT_TRUE(access.WriteDWORD(Key, u"n"_s, -2));
    EXPECT_TRUE(access.WriteBinary(Key, u"b"_s, u"A\u20ac"_s));
    EXPECT_TRUE(access.WriteBinary(Key, u"empty"_s, QString()));
    EXPECT_EQ(access.ReadString(Key, u"@"_s, u"-"_s), u"default"_s);
    EXPECT_EQ(Read(QString())->text, u"default"_s);
    EXPECT_EQ(access.ReadDWORD(Key, u"N"_s, 5), -2);
    EXPECT_EQ(access.ReadBinary(Key, u"b"_s, u"-"_s), u"A\u20ac"_s);
    EXPECT_EQ(access.ReadBinary(Key, u"empty"_s, u"-"_s), QString());
    EXPECT_EQ(access.ReadDWORD(Key, u"b"_s, 5), 5);
    EXPECT_EQ(access.ReadString(Key, u"none"_s, u"-"_s), u"-"_s);
    const RegistryValueNames names = access.EnumValues(Key);
    EXPECT_THAT(names.Strings, ElementsAre(QString()));
    EXPECT_THAT(names.Binaries, ElementsAre(u"b"_s, u"empty"_s));
    EXPECT_THAT(names.DWords, ElementsAre(u"n"_s));
    EXPECT_TRUE(access.KillValue(Key, u"@"_s));
    EXPECT_FALSE(access.ValueExists(Key, u"@"_s));
    EXPECT_TRUE(access.ValueExists(Key, u"b"_s));
}

TEST_F(RegistryAccess, A_write_creates_a_missing_key_only_when_it_may) {
    access.CreateKeyIfDoesntExists = false;
    EXPECT_FALSE(access.WriteDWORD(Key, u"n"_s, 1));
    EXPECT_EQ(registry.changes, 0);
    EXPECT_TRUE(Import("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tockly]\r\n\"n\"=\"1\"\r\n"));
    EXPECT_FALSE(access.KeyExists(Key));
    access.CreateKeyIfDoesntExists = true;
    EXPECT_TRUE(access.WriteDWORD(Key, u"n"_s, 1));
    registry.Refuse(RegistryRoot::CurrentUser);
    EXPECT_FALSE(access.WriteDWORD(Key, u"n"_s, 2));
}

TEST_F(RegistryAccess, The_export_has_the_bytes_of_the_registry_editor) {
    access.WriteDWORD(Key, u"Wait"_s, 10000);
    access.WriteBinary(Key, u"Path"_s, u"C:\u20ac"_s);
    access.WriteBinary(Key, u"None"_s, QString());
    access.WriteString(Key, u"say \"hi\""_s, u"C:\\a \"b\""_s);
    access.WriteString(Key, u"@"_s, u"top"_s);
    access.WriteString(Key + u"\\Sub"_s, u"lines"_s, u"a\r\nb"_s);
    const std::string own = "REGEDIT4\r\n\r\n"
                            "[HKEY_CURRENT_USER\\Software\\Tockly]\r\n"
                            "@=\"top\"\r\n"
                            "\"say \\\"hi\\\"\"=\"C:\\\\a \\\"b\\\"\"\r\n"
                            "\"None\"=hex:\r\n"
                            "\"Path\"=hex:43,3a,80\r\n"
                            "\"Wait\"=dword:00002710\r\n"
                            "\r\n";
    EXPECT_EQ(Export(false), own);
    EXPECT_EQ(Export(true), own + "[HKEY_CURRENT_USER\\Software\\Tockly\\Sub]\r\n"
                                  "\"lines\"=hex(1):61,0d,0a,62,00\r\n"
                                  "\r\n");
    EXPECT_FALSE(access.ExportToReg(u"HKCU\\Software\\None"_s, path, true));
    files.refused.insert(path);
    EXPECT_FALSE(access.ExportToReg(Key, path, true));
}

// Texts of what lines, lists, code pages and surrogates stumble over.
class Chance {
public:
    int Below(int end) { return std::uniform_int_distribution(0, end - 1)(engine); }
    QString Text(int longest, const QString& without = {}) {
        static const QStringList pieces =
            u"a|B|0| |\"|=|-|@|;|[|]|,|\u00e4|\u20ac|\u0416|\u4e2d|\u0130|\u00ef\u00bb\u00bf|hex:"
            "|dword:|\U0001F600|\\|\t|\r\n|\n"_s.split(u'|') +
            QStringList{QChar(u'\0'), QChar(0xDC00)};
        QString text;
        for (int left = Below(longest + 1); left > 0; --left)
            text += pieces[Below(static_cast<int>(pieces.size()))];
        return text.removeIf([&](QChar letter) { return without.contains(letter); });
    }
    RegistryValue Value() {
        std::string bytes(static_cast<std::size_t>(Below(6)), '\0');
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(Below(256)); });
        const RegistryValue values[] = {
            {RegistryType::String, Text(8), {}, 0},
            {RegistryType::Binary, {}, bytes, 0},
            {RegistryType::DWord, {}, {}, static_cast<std::uint32_t>(engine())}};
        return values[Below(3)];
    }

private:
    std::mt19937 engine{1};
};

TEST_F(RegistryAccess, Any_tree_survives_its_file_and_export_and_import) {
    constexpr auto User = RegistryRoot::CurrentUser;
    const QString noLine = u"\r\n"_s + QChar(u'\0');
    platform::RegistryTree& tree = registry.trees[User];
    Chance chance;
    for (int round = 0; round < 3000; ++round) {
        tree = {};
        for (int values = chance.Below(6); values > 0; --values) {
            QString key;
            for (int depth = chance.Below(4); depth > 0; --depth)
                key += chance.Text(4, noLine + u"\t\\"_s) + u'\\';
            ASSERT_TRUE(tree.Create_Key(key));
            ASSERT_TRUE(tree.Write(key, chance.Text(4, noLine), chance.Value()));
        }
        const platform::RegistryTree wanted = tree;
        const std::string file = Write_RegTree(User, wanted);
        const platform::RegTree kept = Read_RegTree(User, file);
        ASSERT_TRUE(!kept.isDamaged && kept.tree == wanted) << file;
        ASSERT_TRUE(access.ExportToReg(u"HKCU"_s, path, true));
        tree = {};
        ASSERT_TRUE(access.ImportFromReg(path));
        ASSERT_TRUE(tree == wanted) << files.content[path];
        for (std::size_t at = 0; at < file.size(); ++at) { // cut, and broken, at some places
            if (round % 100 != 0)
                break;
            EXPECT_EQ(platform::Read_RegText(file.substr(0, at)).hasHeader, at >= 8);
            std::string broken = file;
            broken[at] = static_cast<char>(broken[at] ^ 0x2E);
            EXPECT_EQ(platform::Read_RegText(broken).hasHeader, at >= 10);
        }
    }
}

TEST_F(RegistryAccess, Import_reads_what_editors_and_people_write) {
    const std::string start = "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tockly]\r\n";
    const std::tuple<std::string, QString, RegistryValue> lines[] = {
        {"v=plain", u"v"_s, {RegistryType::String, u"plain"_s, {}, 0}},
        {"  \"v\" = \"a=b\"  ", u"v"_s, {RegistryType::String, u"a=b"_s, {}, 0}},
        {"@=\"d\"", u""_s, {RegistryType::String, u"d"_s, {}, 0}},
        {"\"p\"=\"C:\\new\\\"", u"p"_s, {RegistryType::String, u"C:\\new\\"_s, {}, 0}},
        {"\"C:\\\"=\"x\"", u"C:\\"_s, {RegistryType::String, u"x"_s, {}, 0}},
        {"\"v\"=HEX:0a,ff", u"v"_s, {RegistryType::Binary, {}, "\x0A\xFF", 0}},
        {"\"v\"=hex:1,2", u"v"_s, {RegistryType::Binary, {}, "\x01\x02", 0}},
        {"\"v\"=hex:01,\\\r\n  02,\\\r\n  03", u"v"_s, {RegistryType::Binary, {}, "\1\2\3", 0}},
        {"\"v\"=DWord:FfFfFfFf", u"v"_s, {RegistryType::DWord, {}, {}, 0xFFFFFFFFU}},
        {"\"v\"=dword:10\n; \"v\"=\"lone line feeds\"", u"v"_s, {RegistryType::DWord, {}, {}, 16}}};
    for (const auto& [line, name, value] : lines) {
        access.KillKey(Key);
        EXPECT_TRUE(Import(start + line)) << line;
        EXPECT_EQ(Read(name), value) << line;
    }
}

TEST_F(RegistryAccess, Import_deletes_keys_and_values_and_passes_over_nonsense) {
    access.WriteString(Key, u"old"_s, u"1"_s);
    access.WriteString(Key + u"\\Gone\\Deep"_s, u"x"_s, u"1"_s);
    EXPECT_TRUE(Import("REGEDIT4\r\n\"no key\"=\"1\"\r\n[HKCU\\Software\\Tockly]\r\n\"old\"=-\r\n"
                       "\"dash\"=\"-\"\r\n=\r\n\"\r\n\"open=\r\nwords\r\n\"h\"=hex:0G\r\n"
                       "\"d\"=dword:\r\n\"d\"=dword:123456789\r\n;c=1\r\n"
                       "[HKCU\\Software\\Tockly\r\n\"unclosed\"=\"1\"\r\n"
                       "[-HKCU\\Software\\Tockly\\Gone]\r\n\"after\"=\"1\"\r\n[-HKCU]\r\n"
                       "[]\r\n\"e\"=\"1\"\r\n"
                       "[HKQQ\\Software]\r\n\"q\"=\"1\"\r\n[\r\n[-\r\n\"h\"=hex:01,\\"));
    EXPECT_FALSE(access.KeyExists(Key + u"\\Gone"_s));
    EXPECT_THAT(registry.Value_Names(RegistryRoot::CurrentUser, u"Software\\Tockly"_s),
                ElementsAre(u"dash"_s, u"open"_s));
    for (const char* file : {"", "\r\nREGEDIT4\r\n", "REGEDIT5\r\n", "regedit4"})
        EXPECT_FALSE(Import(file)) << file;
    EXPECT_FALSE(access.ImportFromReg(u"none.reg"_s));
}

TEST_F(RegistryAccess, Bytes_turn_into_hex_text_and_back) {
    EXPECT_EQ(clsRegistryAccess::StrToBin(u"AB\u20ac"_s), u"41 42 80 "_s);
    EXPECT_EQ(clsRegistryAccess::BinToStr(u"41 42 80 "_s), u"AB\u20ac"_s);
    EXPECT_EQ(clsRegistryAccess::BinToStr(u"4142"_s), u"AB"_s);
    EXPECT_EQ(clsRegistryAccess::BinToStr(u"4x"_s), QString());
    const std::pair<QString, bool> cases[] = {{u""_s, false},     {u"  "_s, false},
                                              {u"0a ff"_s, true}, {u"0G"_s, false},
                                              {u"F"_s, true},     {u"-1"_s, false}};
    for (const auto& [text, valid] : cases)
        EXPECT_EQ(clsRegistryAccess::isBinValid(text), valid) << text.toStdString();
}

} // namespace
