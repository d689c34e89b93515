#include "core/record_stream.h"
#include "core_test.h"
#include "platform/code_page.h"
#include "platform/record_text.h"

#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* allKindsHex = "48 65 61 64"             // header
                                    "C8 FF FF FE FF"          // 200, true, -2
                                    "78 56 34 12"             // 0x12345678
                                    "00 00 00 00 00 40 E6 40" // 45568.0
                                    "04 00 00 00 43 61 66 E9" // 4 bytes
                                    "06 00 EF BB BF E6 97 A5" // 6 bytes
                                    "01 02 03"
                                    "00 00 00 00 00 00"; // two empty texts

} // namespace

TEST(RecordStream, Every_Kind_Is_Read_And_Written_As_Its_Bytes) {
    const std::string bytes = From_Hex(allKindsHex);
    RecordReader reader(bytes);
    EXPECT_EQ(reader.Get_Header(4), "Head");
    EXPECT_EQ(reader.Get_Byte(), 200);
    EXPECT_TRUE(reader.Get_Boolean());
    EXPECT_EQ(reader.Get_Integer(), -2);
    EXPECT_EQ(reader.Position(), 10);
    EXPECT_EQ(reader.Get_Long(), 0x12345678);
    EXPECT_EQ(reader.Get_Date(), 45568.0);
    EXPECT_EQ(reader.Get_LenString(), u"Caf\u00E9"_s);
    EXPECT_EQ(reader.Get_RecString(), u"\u65E5"_s);
    std::array<std::uint8_t, 3> array{};
    reader.Get_ByteArray(array);
    EXPECT_EQ(array, (std::array<std::uint8_t, 3>{1, 2, 3}));
    EXPECT_TRUE(reader.Get_LenString().isEmpty());
    EXPECT_TRUE(reader.Get_RecString().isEmpty());
    EXPECT_EQ(reader.Get_LongAt(10), 0x12345678);
    EXPECT_EQ(reader.Left(), 0U);
    EXPECT_FALSE(reader.Failed());

    RecordWriter writer;
    writer.Put_Header("Head");
    writer.Put_Byte(200);
    writer.Put_Boolean(true);
    writer.Put_Integer(-2);
    writer.Put_Long(0);
    writer.Put_Date(45568.0);
    writer.Put_LenString(u"Caf\u00E9"_s);
    writer.Put_RecString(u"\u65E5"_s);
    writer.Put_ByteArray(array);
    writer.Put_LenString(QString());
    writer.Put_RecString(QString());
    writer.Put_LongAt(10, 0x12345678);
    EXPECT_EQ(writer.Bytes(), bytes);
    EXPECT_FALSE(writer.Failed());
}

TEST(RecordStream, A_Read_Past_The_End_Fails_For_Good) {
    struct {
        const char* hex;
        void (*read)(RecordReader&);
    } cases[] = {
        {"01", [](RecordReader& stream) { stream.Get_Integer(); }},
        {"01 02 03", [](RecordReader& stream) { stream.Get_Long(); }},
        {"05 00 00 00 41 42", [](RecordReader& stream) { stream.Get_LenString(); }},
        {"FB FF FF FF 41 42", [](RecordReader& stream) { stream.Get_LenString(); }},
        {"FF FF FF 7F 41 42", [](RecordReader& stream) { stream.Get_SharedLenString(); }},
        {"FF FF 41 42", [](RecordReader& stream) { stream.Get_RecString(); }},
        {"01 02 03 04", [](RecordReader& stream) { stream.Get_LongAt(2); }},
        {"01 02 03 04", [](RecordReader& stream) { stream.Get_LongAt(0); }},
    };
    for (const auto& broken : cases) {
        const std::string bytes = From_Hex(broken.hex);
        RecordReader reader(bytes);
        broken.read(reader);
        EXPECT_TRUE(reader.Failed()) << broken.hex;
        EXPECT_EQ(reader.Get_Byte(), 0) << broken.hex;
        EXPECT_EQ(reader.Left(), 0U) << broken.hex;
    }
}

TEST(RecordStream, Nothing_Is_Cut_When_A_Text_Is_Too_Long_For_Its_Count) {
    const QString longest(65535, u'x');
    EXPECT_TRUE(Fits_RecString(longest));
    EXPECT_FALSE(Fits_RecString(longest + u'x'));
    RecordWriter writer;
    writer.Put_RecString(longest);
    EXPECT_FALSE(writer.Failed());
    RecordReader reader(writer.Bytes());
    EXPECT_EQ(reader.Get_RecString(), longest);
    writer.Put_RecString(longest + u'x');
    EXPECT_TRUE(writer.Failed());
}

TEST(RecordStream, Shared_Texts_Are_Never_Mixed_Up) {
    RecordWriter writer;
    for (int number = 0; number < 1000; ++number)
        writer.Put_LenString(QString::number(number % 300));
    RecordReader reader(writer.Bytes());
    for (int number = 0; number < 1000; ++number)
        ASSERT_EQ(reader.Get_SharedLenString(), QString::number(number % 300));
}

TEST(RecordText, A_Text_Stands_In_The_Code_Page_Or_Behind_The_Mark) {
    struct {
        QString text;
        const char* hex;
    } cases[] = {
        {u"A\u20AC\u00FF"_s, "41 80 FF"},
        {u"\u0081"_s, "81"}, // one of the bytes that the page leaves open
        {u"A\u65E5"_s, "EF BB BF 41 E6 97 A5"},
        {u"\U0001F600"_s, "EF BB BF F0 9F 98 80"},
        {u"\uFEFF\u65E5"_s, "EF BB BF EF BB BF E6 97 A5"},
        {QString(QChar(0xD800)), "EF BB BF ED A0 80"},
        // Looks like the mark: stays in the page where it cannot be mistaken ...
        {u"\u00EF\u00BB\u00BFabc"_s, "EF BB BF 61 62 63"},
        // ... and goes behind the mark where it could.
        {u"\u00EF\u00BB\u00BF\u00E6\u2014\u00A5"_s,
         "EF BB BF C3 AF C2 BB C2 BF C3 A6 E2 80 94 C2 A5"},
    };
    for (const auto& known : cases) {
        EXPECT_EQ(QByteArray::fromStdString(Encode_Text(known.text)).toHex(' ').toUpper(),
                  QByteArray(known.hex));
        EXPECT_EQ(Decode_Text(From_Hex(known.hex)), known.text) << known.hex;
    }
    // Never written so, and therefore bytes of the page.
    for (const char* hex : {"EF BB BF", "EF BB BF C0 80", "EF BB BF E6 97", "EF BB BF F8 80 80 80",
                            "EF BB BF ED A0 BD ED B8 80", "EF BB BF F4 90 80 80"})
        EXPECT_EQ(Decode_Text(From_Hex(hex)), platform::From_CodePage(From_Hex(hex))) << hex;
}

TEST(RecordText, Every_Text_Comes_Back_And_Every_Field_Reads_As_It_Was_Written) {
    std::mt19937 dice(1);
    const char16_t units[] = {0x41, 0xEF, 0xBB, 0xBF, 0xFEFF, 0xE9,   0x20AC, 0x81,
                              0xC3, 0xAF, 0xC2, 0xE6, 0x65E5, 0xD83D, 0xDE00, 0xFFFD};
    const unsigned char raw[] = {0x41, 0xEF, 0xBB, 0xBF, 0xC3, 0xAF, 0xC2,
                                 0xE6, 0x97, 0xA5, 0x80, 0xED, 0xA0, 0xF0};
    for (int round = 0; round < 100000; ++round) {
        QString text;
        for (auto left = dice() % 8; left > 0; --left)
            text += QChar(dice() % 4 == 0 ? static_cast<char16_t>(dice()) : units[dice() % 16]);
        ASSERT_EQ(Decode_Text(Encode_Text(text)), text) << text.toUtf8().toHex(' ').toStdString();

        std::string field = dice() % 2 == 0 ? "" : "\xEF\xBB\xBF";
        for (auto left = dice() % 8; left > 0; --left)
            field += static_cast<char>(dice() % 4 == 0 ? dice() : raw[dice() % 14]);
        const QString read = Decode_Text(field);
        if (read != platform::From_CodePage(field)) {
            ASSERT_EQ(Encode_Text(read), field) << "a field that no text is written as";
        }
        ASSERT_EQ(Decode_Text(Encode_Text(read)), read);
    }
}
