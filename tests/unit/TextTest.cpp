#include "base/Text.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace plandesk {
namespace {

using Pieces = std::vector<std::string>;

std::string throughCodePoints(const std::string& text) {
    std::string result;
    for (const char32_t codePoint : codePoints(text))
        appendUtf8(result, codePoint);
    return result;
}

TEST(Text, TrimTakesBlanksFromBothEndsOnly) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim(""), "");
}

TEST(Text, TrimKeepsTabsAndLineEnds) {
    EXPECT_EQ(trim(" \ta\r\n "), "\ta\r\n");
}

TEST(Text, CaseConversionLeavesOtherCharactersAlone) {
    EXPECT_EQ(upperCase("az-AZ 2nd \xC3\xA9 [`{"), "AZ-AZ 2ND \xC3\xA9 [`{");
    EXPECT_EQ(lowerCase("az-AZ 2ND \xC3\x89 @[^"), "az-az 2nd \xC3\x89 @[^");
}

TEST(Text, ComparisonIgnoresTheCaseOfLettersAtoZOnly) {
    EXPECT_TRUE(equalsIgnoringCase("frmAnnexureA", "FRMANNEXUREA"));
    EXPECT_FALSE(equalsIgnoringCase("frmAnnexureA", "frmAnnexure"));
    EXPECT_FALSE(equalsIgnoringCase("\xC3\xA9", "\xC3\x89"));
    EXPECT_FALSE(equalsIgnoringCase("[", "{"));
}

TEST(Text, SplitKeepsEmptyPiecesBetweenAndAroundSeparators) {
    EXPECT_EQ(split("#a##b#", "#"), (Pieces{"", "a", "", "b", ""}));
    EXPECT_EQ(split("a$$b$$", "$$"), (Pieces{"a", "b", ""}));
    EXPECT_EQ(split("a$$$b", "$$"), (Pieces{"a", "$b"}));
}

TEST(Text, SplitOfATextWithoutSeparatorIsThatText) {
    EXPECT_EQ(split("abc", "#"), Pieces{"abc"});
    EXPECT_EQ(split("abc", ""), Pieces{"abc"});
}

TEST(Text, SplitOfAnEmptyTextHasNoPieces) {
    EXPECT_TRUE(split("", "#").empty());
}

TEST(Text, JoinPutsTheSeparatorBetweenPieces) {
    EXPECT_EQ(join(Pieces{"a", "", "b"}, "@->"), "a@->@->b");
    EXPECT_EQ(join(Pieces{"a"}, "#"), "a");
    EXPECT_EQ(join(Pieces{}, "#"), "");
}

TEST(Text, ReplaceAllReplacesEachOccurrenceOnce) {
    EXPECT_EQ(replaceAll("a&b&", "&", "&amp;"), "a&amp;b&amp;");
    EXPECT_EQ(replaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaceAll("", "a", "b"), "");
    EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
}

TEST(Text, CodePointsOfEachUtf8LengthAreDecoded) {
    EXPECT_EQ(codePoints("A\xC3\xA9\xE0\xA4\x85\xF0\x9F\x8F\xA0"), U"A\u00E9\u0905\U0001F3E0");
    EXPECT_EQ(codePoints(std::string("a\0b", 3)), std::u32string(U"a\0b", 3));
}

TEST(Text, BytesThatAreNotUtf8BecomeOneEscapeEach) {
    EXPECT_EQ(codePoints("\xE9t"), std::u32string({0xDCE9, U't'}));
    EXPECT_EQ(codePoints("a\xE0\xA4"), std::u32string({U'a', 0xDCE0, 0xDCA4}));
    EXPECT_EQ(codePoints("\x80\xFF"), std::u32string({0xDC80, 0xDCFF}));
}

TEST(Text, OverlongFormsSurrogatesAndNumbersBeyondUnicodeAreNotUtf8) {
    EXPECT_EQ(codePoints("\xC0\x80"), std::u32string({0xDCC0, 0xDC80}));
    EXPECT_EQ(codePoints("\xED\xA0\x80"), std::u32string({0xDCED, 0xDCA0, 0xDC80}));
    EXPECT_EQ(codePoints("\xF4\x90\x80\x80"), std::u32string({0xDCF4, 0xDC90, 0xDC80, 0xDC80}));
}

TEST(Text, EveryTextComesBackFromItsCodePoints) {
    std::string allBytes;
    for (int byte = 0; byte < 256; ++byte)
        allBytes += static_cast<char>(byte);
    for (const std::string& text : {std::string("Plot \xE0\xA4\x85 \xF0\x9F\x8F\xA0 \xC3\xA9"), allBytes,
                                    std::string("\xF0\x9F\x8F"), std::string("\x7F\xC2\x80\xDF\xBF\xEF\xBF\xBF")})
        EXPECT_EQ(throughCodePoints(text), text);
}

TEST(Text, WhatIsNoCodePointIsAppendedAsTheReplacementCharacter) {
    std::string text;
    appendUtf8(text, 0xD800);
    appendUtf8(text, 0x110000);
    EXPECT_EQ(text, "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Text, LongTextsPassThroughEveryFunction) {
    const std::string hashes(100'000, '#');
    EXPECT_EQ(split(hashes, "#").size(), 100'001U);
    EXPECT_EQ(replaceAll(hashes, "#", "&amp;").size(), 500'000U);
    EXPECT_EQ(trim(std::string(100'000, ' ')), "");
    EXPECT_EQ(throughCodePoints(hashes), hashes);
}

}  // namespace
}  // namespace plandesk
