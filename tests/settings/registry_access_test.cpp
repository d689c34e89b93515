#include "settings/reg_file.h"
#include "settings/registry_access.h"
#include "support/fake_files.h"
#include "support/memory_registry.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

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

    QTemporaryDir folder;
    QString path = folder.filePath(u"settings.reg"_s);
    MemoryRegistry registry;
    FakeFiles files;
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
    files.refusedWrites << u"settings"_s;
    EXPECT_FALSE(access.ExportToReg(Key, path, true));
}

TEST_F(RegistryAccess, Any_value_survives_export_and_import) {
    QStringList texts = u"|\\|\"|\\\"|a=b|-|hex:41|dword:1|[x]|;|  blanks\t |\\\\server\\share\\|"
                        "\u4e2d\u6587\\\"|\u00ef\u00bb\u00bf"_s.split(u'|');
    texts << u"one\r\ntwo\nthree\r"_s << QString(u'\0') + u'x' + QChar(u'\0');
    std::map<QString, RegistryValue> wanted;
    for (const QString& text : texts) {
        const QString name = u'n' + QString(text).remove(u'\r').remove(u'\n').remove(QChar(u'\0'));
        access.WriteString(Key, name, text);
        wanted[name] = {RegistryType::String, text, {}, 0};
        access.WriteBinary(Key, u'b' + name, text);
        wanted[u'b' + name] = *Read(u'b' + name);
    }
    std::string every;
    for (int byte = 255; byte >= 0; --byte)
        every += static_cast<char>(byte);
    wanted[u"@"_s] = {RegistryType::Binary, {}, every, 0}; // not the default value
    wanted[QString()] = {RegistryType::DWord, {}, {}, 0x80000001U};
    for (const auto& [name, value] : wanted)
        registry.Write(RegistryRoot::CurrentUser, u"Software\\Tockly"_s, name, value);

    const std::string file = Export(true);
    ASSERT_TRUE(access.KillKey(Key));
    ASSERT_TRUE(Import(file));
    for (const auto& [name, value] : wanted)
        EXPECT_EQ(Read(name), value) << name.toStdString();
    EXPECT_EQ(Export(true), file);

    for (std::size_t at = 0; at < file.size(); ++at) { // cut, and broken, at every place
        ASSERT_EQ(Read_RegFile(file.substr(0, at)).has_value(), at >= 8) << at;
        std::string broken = file;
        broken[at] = static_cast<char>(broken[at] ^ 0x2E);
        ASSERT_EQ(Read_RegFile(broken).has_value(), at >= 10) << at;
    }
    access.WriteString(Key, u"a\r\nb"_s, u"no line for such a name"_s);
    EXPECT_FALSE(access.ExportToReg(Key, path, true));
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
    EXPECT_FALSE(access.ImportFromReg(folder.filePath(u"none.reg"_s)));
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
