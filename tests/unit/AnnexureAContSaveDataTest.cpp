#include <array>

#include "unit/ParticularsFixture.h"

// The two packed texts in which AnnexureACont leaves its answers.

namespace plandesk::test {
namespace {

class AnnexureAContSaveDataTest : public ParticularsTest {
protected:
    std::string sectionFour() {
        EXPECT_TRUE(second().SaveData());
        return first().txtSectFourVal.text();
    }
    std::string sectionFive() {
        EXPECT_TRUE(second().SaveData());
        return first().txtSecFiveVal.text();
    }
    /// The value at that place, counted from 1.
    static std::string value(const std::string& packed, std::size_t place) { return split(packed, "$$").at(place - 1); }

    /// Sets the pair to 1 Yes, 0 No or 2 neither without the reactions of other answers.
    static void answer(YesNo& question, int code) {
        question.clear();
        if (code != 2)
            (code == 1 ? question.yes : question.no).setValue(true);
    }

    /// Expects the value of the section to carry the answer in all three states between `before` and `after`.
    void expectAnswer(YesNo& question, std::string (AnnexureAContSaveDataTest::*section)(), std::size_t place,
                      const std::string& before = "", const std::string& after = "") {
        for (const int code : {1, 0, 2}) {
            answer(question, code);
            const std::string digit = std::to_string(code);
            EXPECT_EQ(value((this->*section)(), place), join(std::array{before, digit, after}, ""))
                << question.yes.name() << " " << code;
        }
    }
    /// Expects the dependent answer after a Yes, and "2" in its place otherwise.
    void expectDependent(YesNo& question, YesNo& further, std::string (AnnexureAContSaveDataTest::*section)(),
                         std::size_t place, const std::string& after = "") {
        for (const int code : {1, 0, 2})
            for (const int furtherCode : {1, 0, 2}) {
                answer(question, code);
                answer(further, furtherCode);
                EXPECT_EQ(value((this->*section)(), place),
                          std::to_string(code) + "#" + std::to_string(code == 1 ? furtherCode : 2) + after)
                    << question.yes.name() << " " << code << " " << furtherCode;
            }
    }

    static constexpr auto four = &AnnexureAContSaveDataTest::sectionFour;
    static constexpr auto five = &AnnexureAContSaveDataTest::sectionFive;
};

TEST_F(AnnexureAContSaveDataTest, AnEmptyFormHasNineAndEighteenValues) {
    EXPECT_EQ(sectionFour(), "2$$$$2#2$$2#2#2$$#$$2#2$$####$$2#2$$");
    EXPECT_EQ(sectionFive(), "2$$2$$#2#2#$$2$$$$2#2$$$$2#2#2#2$$$$$$2#2$$##$$#####$$###$$$$$$$$");
}

TEST_F(AnnexureAContSaveDataTest, SectionFourAnswersInAllThreeStates) {
    expectAnswer(second().Opt19, four, 1);
    expectDependent(second().Opt20, second().Opt21, four, 3);
    expectDependent(second().Opt25, second().opt26, four, 6);
    expectDependent(second().Opt27, second().Opt28, four, 8);
}

TEST_F(AnnexureAContSaveDataTest, TheChowkAnswersLackASeparatorWhereTheyAlwaysDid) {
    struct Row {
        int chowk, wings, square;
        std::string_view packed;
    };
    const Row rows[] = {
        {1, 1, 2, "1#1#2"}, {1, 0, 2, "1#01#2"}, {1, 2, 2, "1#21#2"}, {0, 2, 1, "0#2#1"},
        {0, 2, 0, "0#2#0"}, {0, 2, 2, "0#2#2"},  {2, 2, 2, "2#2#2"},  {1, 1, 0, "1#1#2"},
        {0, 1, 1, "0#2#1"}, {2, 1, 1, "2#2#2"},  {2, 0, 0, "2#2#2"},
    };
    for (const Row& row : rows) {
        answer(second().Opt22, row.chowk);
        answer(second().Opt23, row.wings);
        answer(second().Opt24, row.square);
        EXPECT_EQ(value(sectionFour(), 4), row.packed) << row.chowk << row.wings << row.square;
    }
}

TEST_F(AnnexureAContSaveDataTest, SectionFiveAnswersInAllThreeStates) {
    expectAnswer(second().Opt29, five, 1);
    expectAnswer(second().Opt29, five, 2);
    expectAnswer(second().Opt31, five, 4);
    answer(second().Opt33, 1);
    expectAnswer(second().Opt32, five, 6, "", "#1");
    answer(second().Opt32, 0);
    expectAnswer(second().Opt33, five, 6, "0#");
    answer(second().Opt36, 1);
    answer(second().Opt37, 0);
    expectDependent(second().Opt34, second().Opt35, five, 8, "#1#0");
    answer(second().Opt34, 0);
    answer(second().Opt37, 1);
    expectAnswer(second().Opt36, five, 8, "0#2#", "#1");
    answer(second().Opt36, 2);
    expectAnswer(second().Opt37, five, 8, "0#2#2#");
    answer(second().Opt39, 1);
    expectAnswer(second().Opt38, five, 11, "", "#1");
    answer(second().Opt38, 0);
    expectAnswer(second().Opt39, five, 11, "0#");
}

TEST_F(AnnexureAContSaveDataTest, TheAnswerOnPavingNeverReachesTheDocument) {
    answer(second().Opt29, 0);
    const std::string before = sectionFive();
    answer(second().Opt30, 1);
    EXPECT_EQ(sectionFive(), before);
    EXPECT_EQ(value(before, 2), "0");
}

TEST_F(AnnexureAContSaveDataTest, TextsStandTrimmedInTheirPlaces) {
    const std::pair<std::string_view, std::string_view> texts[] = {
        {"txtDistCentStreet", "a"}, {"txtDiaInnerChowk", "b"},   {"txtDiaOuterChowk", "c"}, {"txtLiftTyp", "d"},
        {"txtLiftPassCap", "e"},    {"txtNoLift", "f"},          {"txtDoorTyp", "g"},       {"txtFireDetail", "h"},
        {"txtRmk4", "i"},           {"txtWidthMeanAccess", "j"}, {"txtClearHgt", "k"},      {"txtHgtEnroch", "l"},
        {"txtCompWallHgt", "m"},    {"txtProvAnteena", "n"},     {"txtNotComply", "o"},     {"txtFillLevel", "p"},
        {"txtLevelRoad", "q"},      {"txtPlinthHgtRoad", "r"},   {"txtRoofs", "s"},         {"txtFloor", "t"},
        {"txtWall", "u"},           {"txtColumns", "v"},         {"txtBeam", "w"},          {"txtOtherItem", "x"},
        {"txtWaterCloset", "y"},    {"txtNoBath", "z"},          {"txtNoUrinal", "A"},      {"txtNoKitchen", "B"},
        {"txtWaterSource", "C"},    {"txtDistSwer", "D"},        {"txtMuncipalLand", "E"},  {"txtRmk5", "F"},
    };
    for (const auto& [name, text] : texts)
        write(second(), name, "  " + std::string(text) + " ");
    EXPECT_EQ(sectionFour(), "2$$a$$2#2$$2#2#2$$b#c$$2#2$$d#e#f#g#h$$2#2$$i");
    EXPECT_EQ(sectionFive(),
              "2$$2$$j#2#2#k$$2$$l$$2#2$$m$$2#2#2#2$$n$$o$$2#2$$p#q#r$$s#t#u#v#w#x$$y#z#A#B$$C$$D$$E$$F");
}

TEST_F(AnnexureAContSaveDataTest, TheRightOfWayStandsInTheThirdValue) {
    click(second(), "opt21bi(1)");
    click(second(), "opt21bii(0)");
    EXPECT_EQ(value(sectionFive(), 3), "#1#0#");
}

TEST_F(AnnexureAContSaveDataTest, ASeparatorTypedIntoAValueShiftsWhatFollows) {
    second().txtDistCentStreet.setText("1$$2");
    EXPECT_EQ(value(sectionFour(), 3), "2");
    EXPECT_EQ(split(sectionFour(), "$$").size(), 10U);
}

TEST_F(AnnexureAContSaveDataTest, IsReachableByName) {
    EXPECT_TRUE(second().run("SaveData"));
    EXPECT_NE(first().txtSectFourVal.text(), "");
}

}  // namespace
}  // namespace plandesk::test
