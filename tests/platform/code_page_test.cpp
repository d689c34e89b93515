#include "platform/code_page.h"
#include "platform/record_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) {
        bytes.push_back(static_cast<char>(value));
    }
    return bytes;
}

} // namespace

TEST(CodePage, every_byte_has_a_character_of_its_own_that_leads_back_to_it) {
    for (int value = 0; value < 256; ++value) {
        const std::string byte = Bytes({value});
        EXPECT_EQ(platform::To_CodePage(platform::From_CodePage(byte)), byte) << value;
    }
}

TEST(CodePage, bytes_mean_what_page_1252_says) {
    EXPECT_EQ(platform::From_CodePage(Bytes({0x41, 0x80, 0x9F, 0xE4, 0x81})),
              u"A\u20AC\u0178\u00E4\u0081"_s);
    EXPECT_EQ(platform::To_CodePage(u"\u0416"_s), std::nullopt);
}

TEST(CodePage, a_text_is_stored_in_the_page_or_as_marked_utf8) {
    const struct {
        const char* name;
        QString text;
        std::string bytes;
    } cases[] = {
        {"a text of the page", u"K\u00E4se"_s, Bytes({'K', 0xE4, 's', 'e'})},
        {"a text beyond it", u"\u0416"_s, Bytes({0xEF, 0xBB, 0xBF, 0xD0, 0x96})},
        {"page text that begins like the mark", u"\u00EF\u00BB\u00BFa"_s,
         Bytes({0xEF, 0xBB, 0xBF, 'a'})},
        {"page text that looks like another's marked form", u"\u00EF\u00BB\u00BF\u00D0\u2013"_s,
         Bytes(
             {0xEF, 0xBB, 0xBF, 0xC3, 0xAF, 0xC2, 0xBB, 0xC2, 0xBF, 0xC3, 0x90, 0xE2, 0x80, 0x93})},
        {"a broken sequence behind the mark is page text", u"\u00EF\u00BB\u00BF\u00D0"_s,
         Bytes({0xEF, 0xBB, 0xBF, 0xD0})},
        {"beyond sixteen bits", u"\U0001F600"_s, Bytes({0xEF, 0xBB, 0xBF, 0xF0, 0x9F, 0x98, 0x80})},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(Encode_Text(one.text), one.bytes) << one.name;
        EXPECT_EQ(Decode_Text(one.bytes), one.text) << one.name;
    }
}
