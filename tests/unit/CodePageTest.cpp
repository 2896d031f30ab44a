#include "base/CodePage.h"

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace plandesk {
namespace {

const std::string e = "\xC3\xA9";               // e with acute
const std::string devanagari = "\xE0\xA4\x85";  // letter A
const std::string house = "\xF0\x9F\x8F\xA0";

/// Sets the variables of the locale for one test and puts back what they held before.
class SystemCodePage : public testing::Test {
protected:
    SystemCodePage() {
        for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
            const char* value = std::getenv(name);
            before[name] = value ? std::optional<std::string>(value) : std::nullopt;
            unsetenv(name);
        }
    }

    ~SystemCodePage() override {
        for (const auto& [name, value] : before) {
            if (value)
                setenv(name.c_str(), value->c_str(), 1);
            else
                unsetenv(name.c_str());
        }
    }

private:
    std::map<std::string, std::optional<std::string>> before;
};

TEST_F(SystemCodePage, IsUtf8WithoutAnyLocale) {
    EXPECT_EQ(systemCodePage(), "UTF-8");
    setenv("LANG", "", 1);
    EXPECT_EQ(systemCodePage(), "UTF-8");
}

TEST_F(SystemCodePage, IsThatOfTheStrongestVariable) {
    setenv("LANG", "en_IN.ISO-8859-1", 1);
    EXPECT_EQ(systemCodePage(), "ISO-8859-1");
    setenv("LC_CTYPE", "en_IN.CP1252", 1);
    EXPECT_EQ(systemCodePage(), "CP1252");
    setenv("LC_ALL", "en_IN.UTF-8", 1);
    EXPECT_EQ(systemCodePage(), "UTF-8");
}

TEST_F(SystemCodePage, HasOneNameForUtf8) {
    setenv("LANG", "C.utf8", 1);
    EXPECT_EQ(systemCodePage(), "UTF-8");
}

TEST_F(SystemCodePage, EndsWhereTheVariantOfTheLocaleBegins) {
    setenv("LANG", "de_DE.ISO-8859-15@euro", 1);
    EXPECT_EQ(systemCodePage(), "ISO-8859-15");
}

TEST_F(SystemCodePage, IsAsciiInTheCAndPosixLocales) {
    setenv("LC_ALL", "C", 1);
    EXPECT_EQ(systemCodePage(), "ASCII");
    setenv("LC_ALL", "POSIX", 1);
    EXPECT_EQ(systemCodePage(), "ASCII");
}

TEST_F(SystemCodePage, IsUtf8ForALocaleThatTheMachineDoesNotKnow) {
    setenv("LANG", "xx_YY", 1);
    EXPECT_EQ(systemCodePage(), "UTF-8");
}

TEST(CodePage, Utf8ComesBackByteForByte) {
    const std::string text = "Plot " + devanagari + house + "\xE9\xFF";
    EXPECT_EQ(toCodePage(text, "UTF-8"), text);
    EXPECT_EQ(toCodePage(text, "utf8"), text);
}

TEST(CodePage, CharactersThatTheSetHoldsAreConverted) {
    EXPECT_EQ(toCodePage("caf" + e, "ISO-8859-1"), "caf\xE9");
    EXPECT_EQ(toCodePage("\xE2\x82\xAC" + e, "CP1252"), "\x80\xE9");
}

TEST(CodePage, ACharacterThatTheSetCannotHoldBecomesOneQuestionMark) {
    EXPECT_EQ(toCodePage("a" + e + devanagari + house + "b?", "ASCII"), "a???b?");
    EXPECT_EQ(toCodePage(devanagari + e, "ISO-8859-1"), "?\xE9");
}

TEST(CodePage, AByteThatIsNoCharacterBecomesAQuestionMark) {
    EXPECT_EQ(toCodePage("a\xE9z\xE0\xA4", "ASCII"), "a?z??");
}

TEST(CodePage, ShiftSequencesAreEnded) {
    EXPECT_EQ(toCodePage("\xE3\x81\x82", "ISO-2022-JP"), "\x1B$B$\"\x1B(B");
}

TEST(CodePage, ControlCharactersAreKept) {
    const std::string text("a\0\t\r\n\x01z", 7);
    EXPECT_EQ(toCodePage(text, "ASCII"), text);
}

TEST(CodePage, AnUnknownSetLeavesTheTextAsItIs) {
    EXPECT_EQ(toCodePage(devanagari, "NO-SUCH-SET"), devanagari);
}

TEST(CodePage, LongTextsAreConverted) {
    std::string text;
    for (int i = 0; i < 100'000; ++i)
        text += devanagari;
    EXPECT_EQ(toCodePage(text, "ASCII"), std::string(100'000, '?'));
    const std::string letters(100'000, 'a');
    EXPECT_EQ(toCodePage(letters + e, "ISO-8859-1"), letters + "\xE9");
}

}  // namespace
}  // namespace plandesk
