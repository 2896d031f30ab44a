#include "proposal/mdlProject.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "controls/User.h"
#include "proposal/DataForm.h"
#include "proposal/Proposal.h"
#include "unit/SampleForm.h"

namespace plandesk {
namespace {

using test::Log;

// chkString

struct Membership {
    std::string_view kind;
    bool letters;
    bool digits;
    std::string_view others;
};

constexpr std::array memberships = std::to_array<Membership>({
    {"alpha", true, false, "'"},
    {"alphanumeric", true, true, ""},
    {"numeric", false, true, ""},
    {"decimal", false, true, "."},
    {"currency", false, true, ", ."},
    {"spalphanumeric", true, true, "_-& "},
    {"phone", false, true, " ()-+"},
    {"short", true, true, "_@."},
    {"name", true, true, ".!@#$%^&*-()?{}[]+|~`,><;= "},
    {"password", true, true, "_"},
    {"ishtml", false, false, "<>/"},
    {"invalid", false, true, "<>/_!@#$%^&*-()?{}[]+|~`,;="},
    {"amp", false, false, "[!@#$%^&*]`"},
    {"alphaint", true, false, "'."},
});

TEST(chkString, FindsTheMembersOfEachKindAndNoOtherCharacter) {
    for (const Membership& kind : memberships) {
        for (int code = 0; code < 256; ++code) {
            const char character = static_cast<char>(code);
            const bool letter = code < 128 && std::isalpha(code) != 0;
            const bool digit = code < 128 && std::isdigit(code) != 0;
            const bool member = (letter && kind.letters) || (digit && kind.digits) ||
                                kind.others.find(character) != std::string_view::npos;
            EXPECT_EQ(chkString(std::string(1, character), kind.kind), member ? -1 : 0) << kind.kind << " " << code;
        }
    }
}

TEST(chkString, OfAnEmptyTextIs0ForEveryKind) {
    for (const Membership& kind : memberships)
        EXPECT_EQ(chkString("", kind.kind), 0) << kind.kind;
}

TEST(chkString, TellsWhetherTheTextHoldsAMemberNotWhetherItIsMadeOfThem) {
    EXPECT_EQ(chkString("12a4", "alpha"), -1);
    EXPECT_EQ(chkString("---4", "numeric"), -1);
    EXPECT_EQ(chkString("12.4", "alpha"), 0);
    EXPECT_EQ(chkString("1\u0917\u00e9", "alpha"), 0) << "letters are A to Z alone";
}

TEST(chkString, IgnoresTheCaseOfKindAndText) {
    EXPECT_EQ(chkString("Z", "ALPHA"), -1);
    EXPECT_EQ(chkString("z", "Alpha"), -1);
    EXPECT_EQ(chkString("5", "SpAlphaNumeric"), -1);
}

TEST(chkString, OfAnUnknownKindIs0) {
    EXPECT_EQ(chkString("abc123", "letters"), 0);
    EXPECT_EQ(chkString("abc123", ""), 0);
}

// Key filters

TEST(KeyFilters, DecimalPassesDigitsPointAndBackspace) {
    for (int key = 0; key < 0x3000; ++key) {
        const bool passes = key == 8 || key == '.' || (key >= '0' && key <= '9');
        EXPECT_EQ(keyFilterDecimal(key), passes ? key : 0) << key;
    }
}

TEST(KeyFilters, NumericPassesDigitsAndBackspace) {
    for (int key = 0; key < 0x3000; ++key) {
        const bool passes = key == 8 || (key >= '0' && key <= '9');
        EXPECT_EQ(keyFilterNumeric(key), passes ? key : 0) << key;
    }
}

TEST(KeyFilters, DecimalLooksAtOneKeyAtATimeSoThatASecondPointPasses) {
    test::Desk desk;
    test::SampleForm form{desk.screen};
    form.txtFirst.keyPress = keyFilterDecimal;
    user::type(form.txtFirst, "1.2.3a");
    EXPECT_EQ(form.txtFirst.text(), "1.2.3");
}

TEST(KeyFilters, EightSpecialKeysAreDroppedAndNoOthers) {
    for (int key = 0; key < 0x3000; ++key) {
        const bool dropped =
            key == 35 || key == 36 || key == 37 || key == 38 || key == 42 || key == 64 || key == 94 || key == 126;
        EXPECT_EQ(dropSpecialKeys(key), dropped ? 0 : key) << key;
    }
    EXPECT_EQ(dropSpecialKeys(0x1F3E0), 0x1F3E0);
}

// Texts

TEST(EscapeXML, ReplacesAmpersandAndAngleBracketsAlone) {
    EXPECT_EQ(EscapeXML("a < b & c > d \"e\" 'f'"), "a &lt; b &amp; c &gt; d \"e\" 'f'");
    EXPECT_EQ(EscapeXML(""), "");
    EXPECT_EQ(EscapeXML("\u0917\u093e\u0935 #$$@||"), "\u0917\u093e\u0935 #$$@||");
}

TEST(EscapeXML, EscapesAnEscapedTextOnceMore) {
    EXPECT_EQ(EscapeXML("&amp;"), "&amp;amp;");
    EXPECT_EQ(EscapeXML("&lt;"), "&amp;lt;");
}

TEST(properCase, StartsAWordBehindEveryCharacterThatIsNoLetter) {
    EXPECT_EQ(properCase("2nd"), "2Nd");
    EXPECT_EQ(properCase("a-12 b"), "A-12 B");
    EXPECT_EQ(properCase("o'brien"), "O'Brien");
    EXPECT_EQ(properCase("NEW  PLOT no.7b"), "New  Plot No.7B");
}

TEST(properCase, LowersAllOtherLetters) {
    EXPECT_EQ(properCase("McDONALD"), "Mcdonald");
    EXPECT_EQ(properCase("ABC"), "Abc");
}

TEST(properCase, KeepsWhatIsNoLetterAToZ) {
    EXPECT_EQ(properCase(""), "");
    EXPECT_EQ(properCase(" 12.50"), " 12.50");
    EXPECT_EQ(properCase("\u0917\u093e\u0935 x"), "\u0917\u093e\u0935 X");
    EXPECT_EQ(properCase("caf\u00e9s"), "Caf\u00e9S") << "a letter outside a to z starts a word like any other sign";
}

TEST(properCase, OfAProperTextIsThatText) {
    for (const std::string_view text : {"2nd floor", "A-12 B", "o'brien", "x"}) {
        const std::string once = properCase(text);
        EXPECT_EQ(properCase(once), once);
    }
}

// Forms

struct mdlProjectTest : testing::Test {
    test::TestPorts ports;
    Proposal proposal{ports};
    test::SampleForm form{proposal.screen};
};

TEST_F(mdlProjectTest, AllDatesOfAFormBecomeToday) {
    DatePicker second{form, "DTPicker2"};
    ports.clock.day = {2023, 12, 31};
    setAllDatesToToday(form);
    EXPECT_EQ(form.DTPicker1.date(), (Date{2023, 12, 31}));
    EXPECT_EQ(second.date(), (Date{2023, 12, 31}));
    EXPECT_EQ(form.log, Log{"DTPicker1 Change"});
}

TEST_F(mdlProjectTest, FormColorGoesToEveryControlButBoxesButtonsListsDatesAndTabs) {
    proposal.formBackColor = fromBlueGreenRed(0xF2F8FF);
    setFormColors(form, proposal);
    EXPECT_EQ(form.backColor(), proposal.formBackColor);
    const std::vector<ControlKind> uncoloured = {ControlKind::TextBox, ControlKind::Button, ControlKind::ComboBox,
                                                 ControlKind::DatePicker, ControlKind::TabStrip};
    for (const Control* control : form.controls()) {
        const bool keeps = std::ranges::find(uncoloured, control->kind()) != uncoloured.end();
        EXPECT_EQ(control->backColor(), keeps ? white : proposal.formBackColor) << control->key();
    }
}

TEST_F(mdlProjectTest, FormColorLeavesTheGreyOfClosedBoxes) {
    proposal.formBackColor = fromBlueGreenRed(0xF2F8FF);
    closeBox(form.txtFirst);
    setFormColors(form, proposal);
    EXPECT_EQ(form.txtFirst.backColor(), disabledGrey);
}

TEST_F(mdlProjectTest, BoxesOpenWhiteAndCloseGreyWithTheirText) {
    form.txtFirst.setText("kept");
    closeBox(form.txtFirst);
    EXPECT_FALSE(form.txtFirst.enabled());
    EXPECT_EQ(form.txtFirst.backColor().text(), "E0E0E0");
    EXPECT_EQ(form.txtFirst.text(), "kept");
    openBox(form.txtFirst);
    EXPECT_TRUE(form.txtFirst.enabled());
    EXPECT_EQ(form.txtFirst.backColor(), white);
    emptyAndCloseBox(form.txtFirst);
    EXPECT_FALSE(form.txtFirst.enabled());
    EXPECT_EQ(form.txtFirst.text(), "");
    EXPECT_EQ(form.log, (Log{"txtFirst Change", "txtFirst Change"}));
}

template <int place>
class NamedForm : public DataForm {
public:
    static constexpr std::array names = std::to_array<std::string_view>(
        {"frmAnnexureA", "AnnexureACont", "frmDocCheckList", "frmPayDetail", "frmMain712"});
    static constexpr std::string_view formName = names[place];
    explicit NamedForm(Proposal& proposal) : DataForm(proposal, formName, "") {}
};

TEST_F(mdlProjectTest, ClosingAllFormsUnloadsFourInTheirOrderAndEndsWithoutAQuestion) {
    proposal.forms.get<NamedForm<0>>();
    proposal.forms.get<NamedForm<1>>();
    proposal.forms.get<NamedForm<2>>();
    proposal.forms.get<NamedForm<3>>();
    proposal.forms.get<NamedForm<4>>();
    test::RecordingObserver observer;
    proposal.screen.observer = &observer;
    proposal.screen.event([this] { closeAllForms(proposal); });
    EXPECT_EQ(observer.log, (Log{"unloading frmPayDetail", "unloading frmDocCheckList", "unloading AnnexureACont",
                                 "unloading frmAnnexureA"}));
    EXPECT_NE(proposal.forms.loaded("frmMain712"), nullptr);
    EXPECT_EQ(ports.program.ends, 1);
    EXPECT_TRUE(ports.dialogs.messages.empty());
    proposal.screen.observer = nullptr;
}

TEST_F(mdlProjectTest, ClosingAllFormsNeedsNoneOfThemLoaded) {
    closeAllForms(proposal);
    EXPECT_EQ(ports.program.ends, 1);
}

// The pair check

struct PairCheckTest : mdlProjectTest {
    TextBox& area = form.txtFirst;
    TextBox& rate = form.txtSecond;
    TextBox& amount = form.txtNotes;

    PairCheckTest() { amount.setText("before"); }

    std::vector<Message> check(std::string_view areaText, std::string_view rateText, bool compute = true) {
        area.setText(areaText);
        rate.setText(rateText);
        checkRateBox(area, rate, amount, compute);
        return ports.dialogs.take();
    }
};

const Message letterInFirst{"Payment Detail", "Enter Numeric Data", Icon::Information};
const Message specialInFirst{"Payment Details", "Do not enter any special character [!@#$%^&*]", Icon::Information};
const Message letterInPartner{"Payment Details", "Enter Numeric values", Icon::Information};

TEST_F(PairCheckTest, LetterInTheChangedBoxIsRefused) {
    EXPECT_EQ(check("12a", "5"), std::vector{letterInFirst});
    EXPECT_EQ(area.text(), "");
    EXPECT_TRUE(area.focused());
    EXPECT_EQ(rate.text(), "5");
    EXPECT_EQ(amount.text(), "before");
}

TEST_F(PairCheckTest, LetterIsToldOfBeforeASpecialCharacter) {
    EXPECT_EQ(check("a!", ""), std::vector{letterInFirst});
}

TEST_F(PairCheckTest, SpecialCharacterInTheChangedBoxIsRefused) {
    EXPECT_EQ(check("12!", "5"), std::vector{specialInFirst});
    EXPECT_EQ(area.text(), "");
    EXPECT_TRUE(area.focused());
    EXPECT_EQ(amount.text(), "before");
    EXPECT_EQ(check("1]", ""), std::vector{specialInFirst}) << "also with an empty partner";
}

TEST_F(PairCheckTest, EmptyBoxOnEitherSideLeavesTheAmount) {
    EXPECT_TRUE(check("12", "").empty());
    EXPECT_TRUE(check("", "5").empty());
    EXPECT_TRUE(check("", "a").empty()) << "the partner is not looked at while the changed box is empty";
    EXPECT_EQ(amount.text(), "before");
}

TEST_F(PairCheckTest, LetterInThePartnerEmptiesTheChangedBox) {
    EXPECT_EQ(check("12", "x5"), std::vector{letterInPartner});
    EXPECT_EQ(area.text(), "");
    EXPECT_EQ(rate.text(), "x5");
    EXPECT_TRUE(area.focused());
    EXPECT_EQ(amount.text(), "before");
}

TEST_F(PairCheckTest, SoundPairGivesItsProduct) {
    EXPECT_TRUE(check("12.5", "4").empty());
    EXPECT_EQ(amount.text(), "50");
    EXPECT_TRUE(check("0.1", "0.2").empty());
    EXPECT_EQ(amount.text(), numberText(0.1 * 0.2));
    EXPECT_EQ(proposal.screen.focused(), nullptr);
}

TEST_F(PairCheckTest, WithoutComputeTheTargetIsKept) {
    EXPECT_TRUE(check("12.5", "4", false).empty());
    EXPECT_EQ(amount.text(), "before");
}

TEST_F(PairCheckTest, BoxMayBeItsOwnPartner) {
    area.setText("7");
    checkRateBox(area, area, area, false);
    EXPECT_EQ(area.text(), "7");
    area.setText("7a");
    checkRateBox(area, area, area, false);
    EXPECT_EQ(area.text(), "");
    EXPECT_EQ(ports.dialogs.take(), std::vector{letterInFirst});
}

TEST_F(PairCheckTest, ProductOfATextThatIsNoNumberIsARunTimeErrorAndKeepsAll) {
    area.setText("1.2.3");
    rate.setText("4");
    try {
        checkRateBox(area, rate, amount, true);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number, 13);
    }
    EXPECT_EQ(area.text(), "1.2.3");
    EXPECT_EQ(amount.text(), "before");
}

TEST_F(PairCheckTest, ProductBeyondTheRangeIsAnOverflow) {
    area.setText(std::string(200, '9'));
    rate.setText(std::string(200, '9'));
    try {
        checkRateBox(area, rate, amount, true);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number, 6);
    }
    EXPECT_EQ(amount.text(), "before");
}

TEST_F(PairCheckTest, RefusalInTheBoxesOwnChangeShowsOneBox) {
    area.change = [this] { checkRateBox(area, rate, amount, true); };
    rate.setText("2");
    user::type(area, "1x3");
    EXPECT_EQ(ports.dialogs.take(), std::vector{letterInFirst});
    EXPECT_EQ(area.text(), "3");
    EXPECT_EQ(amount.text(), "6");
}

}  // namespace
}  // namespace plandesk
