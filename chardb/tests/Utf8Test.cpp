#include "Utf8.h"

#include <gtest/gtest.h>

TEST(Utf8, DecodesEachLengthAndRefusesWhatIsNotWellFormed)
{
    EXPECT_EQ(DecodeUtf8At("a", 0).codePoint, U'a');
    EXPECT_EQ(DecodeUtf8At("é", 0).length, 2u);
    EXPECT_EQ(DecodeUtf8At("学", 0).codePoint, U'学');
    EXPECT_EQ(DecodeUtf8At("𠂉", 0).length, 4u);
    EXPECT_EQ(DecodeUtf8At("\xC0\xAF", 0).length, 0u); // overlong "/"
    EXPECT_EQ(DecodeUtf8At("\xED\xA0\x80", 0).length, 0u); // a surrogate
    EXPECT_EQ(DecodeUtf8At("\xF4\x90\x80\x80", 0).length, 0u); // past U+10FFFF
    EXPECT_EQ(DecodeUtf8At("\xE5\xAD", 0).length, 0u); // cut short
    EXPECT_EQ(DecodeUtf8At("\xE5\x41\x41", 0).length, 0u); // not a continuation
    EXPECT_EQ(DecodeUtf8At("\xFF", 0).length, 0u);
    EXPECT_TRUE(IsUtf8("明日 tomorrow"));
    EXPECT_FALSE(IsUtf8("明\xE6"));
    EXPECT_EQ(CodePointsOf("日\xFF月"), std::vector<char32_t>{U'日'});
    for (char32_t c : {U'a', U'é', U'学', U'𠂉'})
        EXPECT_EQ(CodePointsOf(EncodeUtf8(c)), std::vector<char32_t>{c});
}
