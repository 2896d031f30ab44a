// Each row of the reader's tables, from a file of one's own to the control.

#include "document/ReadXML.h"

#include <ostream>

#include <gtest/gtest.h>

#include "ProposalFile.h"

namespace plandesk::test {

namespace {

constexpr std::string_view sheet = "frmAnnexureA";
constexpr std::string_view continuation = "AnnexureACont";
constexpr std::string_view payment = "frmPayDetail";
constexpr std::string_view mandatory = "frmDocCheckList";
constexpr std::string_view conditional = "frmDocCheckList1";
constexpr int whole = -1;

using Boxes = std::vector<Message>;

/// A value of the document and the text box that takes it.
struct TextRow {
    std::string_view element;
    int part;
    std::string_view form;
    std::string_view box;
};

std::ostream& operator<<(std::ostream& out, const TextRow& row) {
    return out << row.element << " part " << row.part;
}

constexpr TextRow textRows[] = {
    {"TITLE", whole, sheet, "txtTitle"},
    {"PLOTNO", whole, sheet, "txtpltno"},
    {"FPNO", whole, sheet, "txtFPNo"},
    {"HISSANO", whole, sheet, "txtHissaNo"},
    {"CTSNO", whole, sheet, "txtCTSNo"},
    {"GUTNO", whole, sheet, "txtGutNo"},
    {"APPLICANTNM", whole, sheet, "txtApplicantNm"},
    {"APPLICANTADDR", whole, sheet, "txtApplicantAddr"},
    {"ARCHINFO", 1, sheet, "txtArchNm"},
    {"ARCHINFO", 2, sheet, "txtArchFirstName"},
    {"ARCHINFO", 3, sheet, "txtArchMiddName"},
    {"ARCHINFO", 4, sheet, "txtRegNm"},
    {"THREE-TEXT", 0, sheet, "txtPltArea"},
    {"THREE-TEXT", 1, sheet, "txtActualArea"},
    {"REMARK1", whole, sheet, "txtRmk1"},
    {"FILENO", whole, sheet, "txtFileNo"},
    {"REVNO", whole, sheet, "txtRevNo"},
    {"ReservationType", whole, sheet, "txtReservationType"},
    {"TOTALFSI", whole, sheet, "txtTikaNo"},
    {"FIVE-TEXT", 0, sheet, "txtSanctionNo"},
    {"EIGHT-TEXT", 0, sheet, "txtMainProcess"},
    {"EIGHT-TEXT", 1, sheet, "txtWorkmen"},
    {"EIGHT-TEXT", 2, sheet, "txtHPEmp"},
    {"EIGHT-TEXT", 3, sheet, "txtInstClass"},
    {"EIGHT-TEXT", 4, sheet, "txtReferalLaw"},
    {"EIGHT-TEXT", 5, sheet, "txtInstNm"},
    {"EIGHT-TEXT", 6, sheet, "txtInstAddr"},
    {"EIGHT-TEXT", 7, sheet, "txtWaste"},
    {"NINE-TEXT", 0, sheet, "txtAverage"},
    {"NINE-TEXT", 1, sheet, "txtPescribWidth"},
    {"NINE-TEXT", 2, sheet, "txtBuildingHgt"},
    {"NINE-TEXT", 3, sheet, "txtAbvCentStreet"},
    {"TEN-TEXT", 0, sheet, "txtNoTeneExist"},
    {"TEN-TEXT", 1, sheet, "txtTenePropose"},
    {"REMARK2", whole, sheet, "txtRmk2"},
    {"ELEVEN-TEXT", 0, sheet, "txtPlinthArea"},
    {"ELEVEN-TEXT", 1, sheet, "txtFloorArea"},
    {"ELEVEN-TEXT", 2, sheet, "txtDevRights"},
    {"ELEVEN-TEXT", 3, sheet, "txtTotTene"},
    {"REMARK3", whole, sheet, "txtRmk3"},
    {"ONETHREE-TEXT", whole, continuation, "txtDistCentStreet"},
    {"ONESIX-TEXT", 0, continuation, "txtDiaInnerChowk"},
    {"ONESIX-TEXT", 1, continuation, "txtDiaOuterChowk"},
    {"ONESEVEN-TEXT", 0, continuation, "txtLiftTyp"},
    {"ONESEVEN-TEXT", 1, continuation, "txtLiftPassCap"},
    {"ONESEVEN-TEXT", 2, continuation, "txtNoLift"},
    {"ONESEVEN-TEXT", 3, continuation, "txtDoorTyp"},
    {"ONESEVEN-TEXT", 4, continuation, "txtFireDetail"},
    {"REMARK4", whole, continuation, "txtRmk4"},
    {"TWOONE-TEXT", 0, continuation, "txtWidthMeanAccess"},
    {"TWOONE-TEXT", 1, continuation, "txtRightWay"},
    {"TWOONE-TEXT", 2, continuation, "txtAttachDoc"},
    {"TWOONE-TEXT", 3, continuation, "txtClearHgt"},
    {"TWOTHREE-TEXT", whole, continuation, "txtHgtEnroch"},
    {"TWOFOUR-TEXT", whole, continuation, "txtCompWallHgt"},
    {"TWOSIX-TEXT", whole, continuation, "txtProvAnteena"},
    {"TWOEIGHT-TEXT", whole, continuation, "txtNotComply"},
    {"TWONINE-TEXT", 0, continuation, "txtFillLevel"},
    {"TWONINE-TEXT", 1, continuation, "txtLevelRoad"},
    {"TWONINE-TEXT", 2, continuation, "txtPlinthHgtRoad"},
    {"THREEZERO-TEXT", 0, continuation, "txtRoofs"},
    {"THREEZERO-TEXT", 1, continuation, "txtFloor"},
    {"THREEZERO-TEXT", 2, continuation, "txtWall"},
    {"THREEZERO-TEXT", 3, continuation, "txtColumns"},
    {"THREEZERO-TEXT", 4, continuation, "txtBeam"},
    {"THREEZERO-TEXT", 5, continuation, "txtOtherItem"},
    {"THREEONE-TEXT", 0, continuation, "txtWaterCloset"},
    {"THREEONE-TEXT", 1, continuation, "txtNoBath"},
    {"THREEONE-TEXT", 2, continuation, "txtNoUrinal"},
    {"THREEONE-TEXT", 3, continuation, "txtNoKitchen"},
    {"THREETWO-TEXT", whole, continuation, "txtWaterSource"},
    {"THREETHREE-TEXT", whole, continuation, "txtDistSwer"},
    {"THREEFOUR-TEXT", whole, continuation, "txtMuncipalLand"},
    {"REMARK5", whole, continuation, "txtRmk5"},
    {"AREADEVRESI", whole, payment, "txtArea"},
    {"RATEDEVRESI", whole, payment, "txtRate"},
    {"AMTDEVRESI", whole, payment, "txtTotal"},
    {"AREADEVCOM", whole, payment, "txtDevAreaC"},
    {"RATEDEVCOM", whole, payment, "txtDevRateC"},
    {"AMTDEVCOM", whole, payment, "txtDevAmtC"},
    {"AREADEVIND", whole, payment, "txtDevAreaI"},
    {"RATEDEVIND", whole, payment, "txtDevRateI"},
    {"AMTDEVIND", whole, payment, "txtDevAmtI"},
    {"AREASCRUTINYRESI", whole, payment, "txtScrutinyRArea"},
    {"RATESCRUTINYRESI", whole, payment, "txtScrutinyRRate"},
    {"AMTSCRUTINYRESI", whole, payment, "txtScrutinyRAmount"},
    {"AREASCRUTINYCOM", whole, payment, "txtScrutinyCArea"},
    {"RATESCRUTINYCOM", whole, payment, "txtScrutinyCRate"},
    {"AMTSCRUTINYCOM", whole, payment, "txtScrutinyCAmount"},
    {"AREASCRUTINYIND", whole, payment, "txtScrutinyIndArea"},
    {"RATESCRUTINYIND", whole, payment, "txtScrutinyINDRate"},
    {"AMTSCRUTINYIND", whole, payment, "txtScrutinyINDAmount"},
    {"COMPUNDFEES", whole, payment, "txtCompoundFees"},
    {"OTHER", whole, payment, "txtOther"},
    {"TOTALAMOUNT", whole, payment, "txtGrandTotal"},
    {"AREA-SCRUT-RESI-2", whole, payment, "txtScrutinyRArea2"},
    {"RATE-SCRUT-RESI-2", whole, payment, "txtScrutinyRRate2"},
    {"AMOUNT-SCRUT-RESI-2", whole, payment, "txtScrutinyRAmount2"},
    {"AREA-SCRUT-COMM-2", whole, payment, "txtScrutinyCArea2"},
    {"RATE-SCRUT-COMM-2", whole, payment, "txtScrutinyCRate2"},
    {"AMOUNT-SCRUT-COMM-2", whole, payment, "txtScrutinyCAmount2"},
    {"AREA-SCRUT-IND-2", whole, payment, "txtScrutinyIndArea2"},
    {"RATE-SCRUT-IND-2", whole, payment, "txtScrutinyINDRate2"},
    {"AMOUNT-SCRUT-IND-2", whole, payment, "txtScrutinyINDAmount2"},
};

/// A yes/no answer of the sections and the question that takes it.
struct AnswerRow {
    std::string_view element;
    int part;
    std::string_view form;
    const char* question;
    bool strict = false;
    std::size_t comparisons = 1;  ///< how often the reader looks at it
};

std::ostream& operator<<(std::ostream& out, const AnswerRow& row) {
    return out << row.element << " part " << row.part;
}

constexpr AnswerRow answerRows[] = {
    {"THREE-RAD", 0, sheet, "Opt1", true},
    {"THREE-RAD", 1, sheet, "Opt2", true, 2},
    {"FOUR-RAD", whole, sheet, "Opt3"},
    {"FIVE-RAD", whole, sheet, "Opt4"},
    {"SEVEN-RAD", 0, sheet, "Opt5"},
    {"SEVEN-RAD", 1, sheet, "Opt6"},
    {"SEVEN-RAD", 2, sheet, "Opt7"},
    {"SEVEN-RAD", 3, sheet, "Opt8"},
    {"EIGHT-RAD", 0, sheet, "Opt9"},
    {"EIGHT-RAD", 1, sheet, "Opt10"},
    {"EIGHT-RAD", 2, sheet, "Opt11"},
    {"EIGHT-RAD", 3, sheet, "Opt12"},
    {"EIGHT-RAD", 4, sheet, "Opt13"},
    {"EIGHT-RAD", 5, sheet, "Opt14"},
    {"EIGHT-RAD", 6, sheet, "Opt15"},
    {"EIGHT-RAD", 7, sheet, "Opt16"},
    {"EIGHT-RAD", 8, sheet, "Opt17"},
    {"ELEVEN-RAD", whole, sheet, "Opt18"},
    {"ONETHREE-RAD", whole, continuation, "Opt19"},
    {"ONEFOUR-RAD", 0, continuation, "Opt20"},
    {"ONEFOUR-RAD", 1, continuation, "Opt21"},
    {"ONESIX-RAD", 0, continuation, "Opt22"},
    {"ONESIX-RAD", 1, continuation, "Opt23"},
    {"ONESIX-RAD", 2, continuation, "Opt24"},
    {"ONESEVEN-RAD", 0, continuation, "Opt25"},
    {"ONESEVEN-RAD", 1, continuation, "Opt26"},
    {"ONEEIGHT-RAD", 0, continuation, "Opt27"},
    {"ONEEIGHT-RAD", 1, continuation, "Opt28"},
    {"TWOZERO", whole, continuation, "Opt29"},
    {"TWOONE-RAD", whole, continuation, "Opt30"},
    {"TWOTHREE-RAD", whole, continuation, "Opt31"},
    {"TWOFOUR-RAD", 0, continuation, "Opt32"},
    {"TWOFOUR-RAD", 1, continuation, "Opt33"},
    {"TWOFIVE-RAD", 0, continuation, "Opt34"},
    {"TWOFIVE-RAD", 1, continuation, "Opt35"},
    {"TWOFIVE-RAD", 2, continuation, "Opt36"},
    {"TWOFIVE-RAD", 3, continuation, "Opt37"},
    {"TWONINE-RAD", 0, continuation, "Opt38"},
    {"TWONINE-RAD", 1, continuation, "Opt39"},
};

template <class Row>
ProposalFile fileWith(const Row& row, std::string_view value) {
    ProposalFile file;
    if (row.part == whole)
        file.set(row.element, value);
    else
        file.setPart(row.element, row.part, value);
    return file;
}

constexpr std::string_view annexureTexts[] = {"TotalAreaRoadDeduction",
                                              "NetArea",
                                              "PermissibleFSIZone",
                                              "NoOfTenamentsPerAcre",
                                              "Average",
                                              "ExistingWidthStreet",
                                              "AboveAverageGrndLevel",
                                              "PlinthAreaOfStructureRet",
                                              "PlinthTotFloorArea",
                                              "AnnexBPlinthArea",
                                              "AnnexBFloorArea",
                                              "OverAllFloorArea",
                                              "WhyNot",
                                              "TotalNoOfTenements"};

constexpr std::string_view continuationTexts[] = {"WidthOfFrontOpenSpace",
                                                  "WidthOfSideOpenSpace",
                                                  "WidthOfRearOpenSpace",
                                                  "DistanceBetweenBldg",
                                                  "RequirmentForParking",
                                                  "ParkingSpaceProposed",
                                                  "LockUpGaragesProposed",
                                                  "Requirement",
                                                  "ProposedSpaceForLoadUnLoading",
                                                  "MaxWidthOfBalcony",
                                                  "TotalArea",
                                                  "MaxWidthOtherProjection",
                                                  "PurposeAccessoryBldg",
                                                  "NoOfWaterClosetProposed",
                                                  "NoOfBathsClosetProposed",
                                                  "NoOfUrinalsClosetProposed",
                                                  "NoOfKitchenClosetProposed",
                                                  "SectionRemark4"};

constexpr const char* annexureQuestions[] = {
    "IsAffectRoadReservation",  "IsAnyDeductOfRoadLine",   "IsUseOfEveryRoomMarked",      "IsInAccordanceRegulation",
    "IsComplyWith83Regulation", "IsAnyStructureOnPlot",    "IsCorrectlyMarkedOnSitePlan", "IsDemolishMarkedYellow",
    "IsConsumeFullFloor",       "IsBldgSetbacksonUpFloors"};

constexpr const char* continuationQuestions[] = {"IsAbutsTwoMoreStreets",
                                                 "IsComplyWithRegul74",
                                                 "ApplicableProvInAppendixN",
                                                 "IsComplyWithRegul75",
                                                 "IsPlotNarrow",
                                                 "IsLoadingUnloadinUnRegulat86",
                                                 "IsReduceOpenSpace",
                                                 "IsCanopiesProposed",
                                                 "IsComplyWithRegula80",
                                                 "IsAmenityUnRegula54",
                                                 "IsAnyAccessoryBldgProposed",
                                                 "IsAwayFrom75Or15",
                                                 "IsNaturalWaterCoursePass",
                                                 "IsSetbackProvideRegula43"};

/// The 14 rows of the checklists, of which `row` is `entry`.
std::string checklistWith(int row, std::string_view entry) {
    std::string list;
    for (int i = 0; i < 14; ++i)
        list.append(i > 0 ? "#" : "").append(i == row ? entry : "0-0-0");
    return list;
}

std::string_view checklistOf(int row) {
    return row < 9 ? mandatory : conditional;
}

std::string key(std::string_view name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

}  // namespace

TEST(ReadXML, aQuietFileReadsWithoutABox) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile()), Boxes());
}

class ReadText : public testing::TestWithParam<TextRow> {};

TEST_P(ReadText, reachesItsBox) {
    Reading reading;
    ASSERT_EQ(reading.sections(fileWith(GetParam(), "7.00")), Boxes());
    EXPECT_EQ(reading.text(GetParam().form, GetParam().box), "7.00");
}

TEST_P(ReadText, anEmptyOneEmptiesItsBox) {
    Reading reading;
    reading.world.box(GetParam().form, GetParam().box).restoreText("5.00");
    ASSERT_EQ(reading.sections(fileWith(GetParam(), "")), Boxes());
    // The answer about the attached documents is never empty: its own reaction fills it.
    EXPECT_EQ(reading.text(GetParam().form, GetParam().box), GetParam().box == "txtAttachDoc" ? "2" : "");
}

INSTANTIATE_TEST_SUITE_P(, ReadText, testing::ValuesIn(textRows));

class ReadAnswer : public testing::TestWithParam<AnswerRow> {
protected:
    /// The answer after a file with `value` was read over the answer "1" or "0".
    std::string after(std::string_view before, std::string_view value) {
        Reading reading;
        const std::string option = std::string(GetParam().question) + (before == "1" ? "Y" : "N");
        auto& control = reading.world.option(GetParam().form, option);
        control.click = nullptr;
        control.setValue(true);
        EXPECT_EQ(reading.sections(fileWith(GetParam(), value)), Boxes()) << value;
        return reading.answer(GetParam().form, GetParam().question);
    }
};

TEST_P(ReadAnswer, oneIsYesZeroIsNoTwoIsNeither) {
    for (const std::string_view before : {"1", "0"}) {
        for (const std::string_view value : {"1", "0", "2"})
            EXPECT_EQ(after(before, value), value) << "over " << before;
        EXPECT_EQ(after(before, "01"), "1");
        EXPECT_EQ(after(before, " 1.0 "), "1");
        EXPECT_EQ(after(before, "00"), "0");
    }
}

TEST_P(ReadAnswer, anyOtherNumberLeavesItOrClearsItWhereReadingIsStrict) {
    for (const std::string_view before : {"1", "0"})
        for (const std::string_view value : {"3", "-1", "21", "0.5"})
            EXPECT_EQ(after(before, value), GetParam().strict ? "2" : before) << value;
}

TEST_P(ReadAnswer, aTextThatIsNoNumberIsABoxForEachComparisonAndReadingGoesOn) {
    for (const std::string_view value : {"x", "Y", "1x"}) {
        Reading reading;
        EXPECT_EQ(reading.sections(fileWith(GetParam(), value).set("REMARK5", "read")),
                  Boxes(GetParam().comparisons, mismatch));
        EXPECT_EQ(reading.answer(GetParam().form, GetParam().question), "2");
        EXPECT_EQ(reading.text(continuation, "txtRmk5"), "read");
    }
}

INSTANTIATE_TEST_SUITE_P(, ReadAnswer, testing::ValuesIn(answerRows));

TEST(ReadXML, caseTypesLandOnTheirPositions) {
    const auto positionOf = [](std::string_view code) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile().set("CASETYPE", code)), Boxes()) << code;
        return reading.world.list(sheet, "cboCaseType").listIndex();
    };
    EXPECT_EQ(positionOf("NEW"), 0);
    EXPECT_EQ(positionOf("CHG"), 1);
    EXPECT_EQ(positionOf("REV"), 1);
    EXPECT_EQ(positionOf("rev"), 0);
    EXPECT_EQ(positionOf(" REV"), 0);
    EXPECT_EQ(positionOf(""), 0);
    EXPECT_EQ(positionOf("XYZ"), 0);
}

TEST(ReadXML, aCaseTypeBeyondTheListIsABoxAndTheListKeepsItsChoice) {
    for (const std::string_view code : {"RES", "RVA"}) {
        Reading reading;
        reading.world.list(sheet, "cboCaseType").setListIndex(1);
        EXPECT_EQ(reading.sections(ProposalFile().set("CASETYPE", code)),
                  Boxes{sectionBox("380 : Invalid property value")});
        EXPECT_EQ(reading.world.list(sheet, "cboCaseType").listIndex(), 1);
    }
}

TEST(ReadXML, aCaseTypeOpensTheFileAndRevisionNumbers) {
    Reading reading;
    reading.sections(ProposalFile().set("CASETYPE", "REV"));
    EXPECT_TRUE(reading.world.box(sheet, "txtRevNo").visible());
}

TEST(ReadXML, proposalTypesLandOnTheirPositions) {
    const auto positionOf = [](std::string_view text) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile().set("PROPOSALTYPE", text)), Boxes()) << text;
        return reading.world.list(sheet, "cboProposalTyp").listIndex();
    };
    EXPECT_EQ(positionOf("Resi+Comm "), 1);
    EXPECT_EQ(positionOf("Residential"), 0);
    EXPECT_EQ(positionOf("Industrial"), 2);
    EXPECT_EQ(positionOf("Educational "), 3);
    EXPECT_EQ(positionOf("Assembly/Public"), 4);
    EXPECT_EQ(positionOf("Institutional"), 5);
    EXPECT_EQ(positionOf("Merchantile/Commercial"), 6);
    EXPECT_EQ(positionOf("Business"), 7);
    EXPECT_EQ(positionOf("Utility/services"), 8);
    EXPECT_EQ(positionOf("Storage"), 9);
    EXPECT_EQ(positionOf("  UTILITY/SERVICES "), 8);
    EXPECT_EQ(positionOf("storage"), 9);
}

TEST(ReadXML, anUnknownProposalTypeChangesNothing) {
    Reading reading;
    reading.world.list(sheet, "cboProposalTyp").setListIndex(4);
    EXPECT_EQ(reading.sections(ProposalFile().set("PROPOSALTYPE", "Palace")), Boxes());
    EXPECT_EQ(reading.world.list(sheet, "cboProposalTyp").listIndex(), 4);
    EXPECT_EQ(reading.world.list(sheet, "cboCaseType").listIndex(), 0);
}

TEST(ReadXML, anEmptyProposalTypeClearsTheCaseTypeAndKeepsItself) {
    for (const std::string_view empty : {"", "   "}) {
        Reading reading;
        reading.world.list(sheet, "cboProposalTyp").setListIndex(4);
        EXPECT_EQ(reading.sections(ProposalFile().set("CASETYPE", "REV").set("PROPOSALTYPE", empty)), Boxes());
        EXPECT_EQ(reading.world.list(sheet, "cboCaseType").listIndex(), -1);
        EXPECT_EQ(reading.world.list(sheet, "cboCaseType").text(), "");
        EXPECT_EQ(reading.world.list(sheet, "cboProposalTyp").listIndex(), 4);
    }
}

TEST(ReadXML, projectsLandOnTheirPositions) {
    const auto positionOf = [](std::string_view code) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile().set("PROPOSEDPROJECT", code)), Boxes()) << code;
        return reading.world.list(sheet, "cboProposProj").listIndex();
    };
    EXPECT_EQ(positionOf("Development"), 0);
    EXPECT_EQ(positionOf("AMLG"), 1);
    EXPECT_EQ(positionOf("SD"), 2);
    EXPECT_EQ(positionOf("SD + AMLG"), 3);
    EXPECT_EQ(positionOf("AMLG + SD"), 4);
    EXPECT_EQ(positionOf("AMLG + Development"), 5);
    EXPECT_EQ(positionOf("SD + Development"), 6);
    EXPECT_EQ(positionOf("SD + AMLG + Dev"), 7);
    EXPECT_EQ(positionOf("AMLG + SD + Dev"), 8);
    EXPECT_EQ(positionOf("amlg"), 0);
    EXPECT_EQ(positionOf(""), 0);
}

TEST(ReadXML, datesReachTheirPickers) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile()
                                   .set("PROPOSALDATE", "29/02/2024")
                                   .setPart("FIVE-TEXT", 1, "1/3/2025")
                                   .set("PAYMODE", "PAYORDER")
                                   .set("PAYDATE", "05/06/2026")),
              Boxes());
    EXPECT_EQ(reading.world.control<DatePicker>(sheet, "DTPicker1").date().text(), "29/02/2024");
    EXPECT_EQ(reading.world.control<DatePicker>(sheet, "DTPicker2").date().text(), "01/03/2025");
    EXPECT_EQ(reading.world.control<DatePicker>(payment, "DTPicker1").date().text(), "05/06/2026");
}

TEST(ReadXML, aTextThatIsNoDateIsABoxAndThePickerKeepsItsDate) {
    for (const std::string_view bad : {"", "tomorrow", "30/02/2024", "01/13/2024", "12"}) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile()
                                       .set("PROPOSALDATE", bad)
                                       .setPart("FIVE-TEXT", 1, bad)
                                       .set("PAYMODE", "PAYORDER")
                                       .set("PAYDATE", bad)),
                  Boxes(3, mismatch))
            << bad;
        for (const std::string_view picker : {"DTPicker1", "DTPicker2"})
            EXPECT_EQ(reading.world.control<DatePicker>(sheet, picker).date().text(), "15/03/2024");
    }
}

TEST(ReadXML, aSectorIsFoundByItsNumber) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().set("SECTOR", "11")), Boxes());
    EXPECT_EQ(reading.world.list(sheet, "cboSector").text(), "Khandri");
    ASSERT_EQ(reading.sections(ProposalFile().set("SECTOR", " 2.0 ")), Boxes());
    EXPECT_EQ(reading.world.list(sheet, "cboSector").text(), "Balundi");
}

TEST(ReadXML, theLastSectorOfANumberStays) {
    Reading reading;
    ComboBox& list = reading.world.list(sheet, "cboSector");
    list.addItem("Second of two", 2);
    ASSERT_EQ(reading.sections(ProposalFile().set("SECTOR", "2")), Boxes());
    EXPECT_EQ(list.text(), "Second of two");
}

TEST(ReadXML, aSectorOfBlanksClearsTheChoice) {
    for (const std::string_view empty : {"", "  "}) {
        Reading reading;
        reading.world.list(sheet, "cboSector").setListIndex(1);
        ASSERT_EQ(reading.sections(ProposalFile().set("SECTOR", empty)), Boxes());
        EXPECT_EQ(reading.world.list(sheet, "cboSector").listIndex(), -1);
    }
}

TEST(ReadXML, aSectorThatNoVillageCarriesKeepsTheChoice) {
    Reading reading;
    reading.world.list(sheet, "cboSector").setListIndex(1);
    ASSERT_EQ(reading.sections(ProposalFile().set("SECTOR", "99")), Boxes());
    EXPECT_EQ(reading.world.list(sheet, "cboSector").listIndex(), 1);
}

TEST(ReadXML, aSectorThatIsNoNumberIsABoxWhereThereIsAVillageToCompare) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("SECTOR", "Khandri")), Boxes{mismatch});
    reading.world.list(sheet, "cboSector").clear();
    EXPECT_EQ(reading.sections(ProposalFile().set("SECTOR", "Khandri")), Boxes());
}

TEST(ReadXML, theProfessionalIsComparedExactly) {
    const auto chosen = [](std::string_view code) -> std::string {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile().setPart("ARCHINFO", 0, code)), Boxes()) << code;
        std::string names;
        for (const std::string_view name : {"OptArch", "OptLE", "OptSE"})
            if (reading.world.option(sheet, name).value())
                names += name;
        return names;
    };
    EXPECT_EQ(chosen("ARCH"), "OptArch");
    EXPECT_EQ(chosen("LE"), "OptLE");
    EXPECT_EQ(chosen(" SE "), "OptSE");
    EXPECT_EQ(chosen("le"), "OptArch");
    EXPECT_EQ(chosen("Engineer"), "OptArch");
    EXPECT_EQ(chosen(""), "OptArch");
}

TEST(ReadXML, theProfessionalNamesTheHeading) {
    Reading reading;
    reading.sections(ProposalFile().setPart("ARCHINFO", 0, "LE"));
    EXPECT_EQ(reading.world.control<Label>(sheet, "lblArch").caption(), "Licence Engineer");
}

TEST(ReadXML, theAllowedAreaIsReadOnlyAfterAClearance) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().set("THREE-RAD", "1#2").set("THREE-TEXT", "100#90#80")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtAreaAllowed"), "");
    ASSERT_EQ(reading.sections(ProposalFile().set("THREE-RAD", "1#0").set("THREE-TEXT", "100#90#80")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtAreaAllowed"), "");
    EXPECT_EQ(reading.world.proposal.feeArea, 0);
}

TEST(ReadXML, aClearanceWorksTheAllowedAreaOutAnewOverWhatTheFileHolds) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().set("THREE-RAD", "1#1").set("THREE-TEXT", "100#90#80")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtAreaAllowed"), "90");
    EXPECT_EQ(reading.world.proposal.feeArea, 90);
}

TEST(ReadXML, aClearanceWithoutAreasTellsAsForTheUser) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("THREE-RAD", "1#1").set("THREE-TEXT", "##80")),
              (Boxes{{"Plot Area", "Enter Plot Area", Icon::Information}}));
    EXPECT_EQ(reading.answer(sheet, "Opt2"), "2");
    EXPECT_EQ(reading.text(sheet, "txtAreaAllowed"), "80");
}

TEST(ReadXML, aReactionThatFailsIsTheBoxOfItsStatement) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("THREE-RAD", "1#1").set("THREE-TEXT", "40000#40000#40000")),
              Boxes{sectionBox("6 : Overflow")});
    EXPECT_EQ(reading.answer(sheet, "Opt2"), "1");
}

TEST(ReadXML, zonesTravelAsCodes) {
    const auto zone = [](std::string_view code) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile().set("SIX-A", code)), Boxes()) << code;
        return reading.world.list(sheet, "cboZone").text();
    };
    EXPECT_EQ(zone("R1"), "R1(purely residential)");
    EXPECT_EQ(zone("R2"), "R2(Residential with shop line)");
    EXPECT_EQ(zone("C1"), "C1(Commercial zone)");
    EXPECT_EQ(zone("C2"), "C2(District commercial)");
    EXPECT_EQ(zone("G1"), "G1(Not Hills)");
    EXPECT_EQ(zone("G2"), "G2(Green belt)");
    EXPECT_EQ(zone("I"), "I(Industrial)");
    EXPECT_EQ(zone("G3"), "I1(Service Industrial Zone)");
    EXPECT_EQ(zone(" r1 "), "R1(purely residential)");
    EXPECT_EQ(zone("I1"), "");
    EXPECT_EQ(zone(" "), "");
}

TEST(ReadXML, aZoneIsChosenWhereItsTextIsInTheList) {
    Reading reading;
    reading.sections(ProposalFile().set("SIX-A", "g3"));
    EXPECT_EQ(reading.world.list(sheet, "cboZone").listIndex(), 7);
    reading.sections(ProposalFile().set("SIX-A", ""));
    EXPECT_EQ(reading.world.list(sheet, "cboZone").listIndex(), -1);
    EXPECT_EQ(reading.world.list(sheet, "cboZone").text(), "");
}

TEST(ReadXML, eachRowOfTheChecklistsReachesItsControls) {
    for (int row = 0; row < 14; ++row) {
        Reading reading;
        ASSERT_EQ(reading.sections(ProposalFile().setChecklist(checklistWith(row, "1-5-6"))), Boxes()) << row;
        for (int i = 0; i < 14; ++i) {
            const std::string_view form = checklistOf(i);
            EXPECT_EQ(reading.world.control<CheckBox>(form, key("Check1", i)).value(), i == row ? 1 : 0) << row << i;
            EXPECT_EQ(reading.text(form, key("txtDocPageNo", 2 * i)), i == row ? "5" : "") << row << i;
            EXPECT_EQ(reading.text(form, key("txtDocPageNo", 2 * i + 1)), i == row ? "6" : "") << row << i;
        }
    }
}

TEST(ReadXML, aRowOfTheChecklistsForgetsWhatStoodThere) {
    for (const int row : {0, 8, 9, 13}) {
        Reading reading;
        const std::string_view form = checklistOf(row);
        reading.world.box(form, key("txtDocPageNo", 2 * row)).setText("3");
        reading.world.box(form, key("txtDocPageNo", 2 * row + 1)).setText("4");
        ASSERT_EQ(reading.world.control<CheckBox>(form, key("Check1", row)).value(), 1);
        ASSERT_EQ(reading.sections(ProposalFile()), Boxes());
        EXPECT_EQ(reading.world.control<CheckBox>(form, key("Check1", row)).value(), 0);
        EXPECT_EQ(reading.text(form, key("txtDocPageNo", 2 * row)), "");
        EXPECT_EQ(reading.text(form, key("txtDocPageNo", 2 * row + 1)), "");
    }
}

TEST(ReadXML, aConditionalRowOutsideTheFivePlacesKeepsWhatStoodThere) {
    Reading reading;
    reading.world.box(conditional, "txtDocPageNo(0)").setText("3");
    reading.sections(ProposalFile());
    EXPECT_EQ(reading.text(conditional, "txtDocPageNo(0)"), "3");
}

TEST(ReadXML, aPageZeroReadsBackEmpty) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().setChecklist(checklistWith(2, "1-0-7"))), Boxes());
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(4)"), "");
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(5)"), "7");
}

TEST(ReadXML, aRowOfTwoPartsHasNoLastPage) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().setChecklist(checklistWith(2, "1-4"))), Boxes());
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(4)"), "4");
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(5)"), "");
}

TEST(ReadXML, aPageTicksItsRowAsForTheUser) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().setChecklist(checklistWith(2, "0-4-0"))), Boxes());
    EXPECT_EQ(reading.world.control<CheckBox>(mandatory, "Check1(2)").value(), 1);
}

TEST(ReadXML, theTwoHalvesOfTheChecklistRunIntoEachOther) {
    Reading reading;
    std::string list = ProposalFile().xml();
    list = list.substr(list.find("<DOCCHKLIST>") + 12);
    list = list.substr(0, list.find('<'));
    // The last mandatory row ends in page 4, the first conditional one is ticked: the "1" joins the page.
    ASSERT_EQ(reading.sections(ProposalFile().setChecklist(list.replace(list.find("0-0-00-0-0"), 10, "1-3-41-5-6"))),
              Boxes());
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(16)"), "3");
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(17)"), "41");
    EXPECT_EQ(reading.world.control<CheckBox>(conditional, "Check1(0)").value(), 0);
}

TEST(ReadXML, fiveRowsOfTheConditionalListLandOnTheNinthToThirteenth) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().setChecklist(
                  "0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-00-0-0#1-11-11#1-12-12#1-13-13#1-14-14#1-15-15"
                  "#1-16-16#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0")),
              Boxes());
    for (int i = 9; i <= 13; ++i)
        EXPECT_EQ(reading.text(conditional, key("txtDocPageNo", 2 * i)), std::to_string(i + 2));
    for (const int i : {1, 2, 14})
        EXPECT_EQ(reading.text(conditional, key("txtDocPageNo", 2 * i)), "");
}

TEST(ReadXML, eachBadPartOfAChecklistRowIsABox) {
    const auto boxesOf = [](std::string_view entry) {
        Reading reading;
        return reading.sections(ProposalFile().setChecklist(checklistWith(3, entry)));
    };
    EXPECT_EQ(boxesOf("x-3-4"), Boxes{mismatch});
    EXPECT_EQ(boxesOf("1-x-4"), Boxes{mismatch});
    EXPECT_EQ(boxesOf("1-3-x"), Boxes{mismatch});
    EXPECT_EQ(boxesOf("x-x-x"), Boxes(3, mismatch));
    EXPECT_EQ(boxesOf("1--"), Boxes(2, mismatch));
    EXPECT_EQ(boxesOf("1"), Boxes{outOfRange});
    EXPECT_EQ(boxesOf(""), Boxes(2, outOfRange));
}

TEST(ReadXML, eachMissingRowOfTheChecklistsIsABox) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().setChecklist("1-1-1#1-2-2")), Boxes(12, outOfRange));
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(2)"), "2");
    EXPECT_EQ(reading.text(mandatory, "txtDocPageNo(4)"), "");
}

TEST(ReadXML, anEmptyChecklistIsOneBoxMoreThanItsRows) {
    Reading reading;
    Boxes expected = {sectionBox("5 : Invalid procedure call or argument")};
    expected.resize(15, outOfRange);
    EXPECT_EQ(reading.sections(ProposalFile().setChecklist("")), expected);
}

TEST(ReadXML, cashDropsTheDateNumberBankAndBranch) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile()
                                   .set("PAYMODE", "CASH")
                                   .set("PAYDATE", "no date")
                                   .set("DRAFTCHQNO", "12")
                                   .set("BANKNAME", "Bank")
                                   .set("BRANCHNM", "Branch")),
              Boxes());
    EXPECT_TRUE(reading.world.option(payment, "OptCash").value());
    EXPECT_FALSE(reading.world.option(payment, "OptCheque").value());
    EXPECT_EQ(reading.world.control<DatePicker>(payment, "DTPicker1").date().text(), "15/03/2024");
    for (const std::string_view box : {"txtChqDraftNo", "txtBankNm", "txtBranchNm"})
        EXPECT_EQ(reading.text(payment, box), "") << box;
}

TEST(ReadXML, anyOtherModeIsAPayOrderWithItsBank) {
    for (const std::string_view mode : {"PAYORDER", "cash", "CASH ", "", "05/06/2026"}) {
        Reading reading;
        ASSERT_EQ(reading.sections(ProposalFile()
                                       .set("PAYMODE", mode)
                                       .set("DRAFTCHQNO", "12")
                                       .set("BANKNAME", "Bank")
                                       .set("BRANCHNM", "Branch")),
                  Boxes())
            << mode;
        EXPECT_FALSE(reading.world.option(payment, "OptCash").value());
        EXPECT_TRUE(reading.world.option(payment, "OptCheque").value());
        EXPECT_TRUE(reading.world.control<Frame>(payment, "frmChequeDetail").visible());
        EXPECT_EQ(reading.world.control<DatePicker>(payment, "DTPicker1").date().text(), "01/02/2003");
        EXPECT_EQ(reading.text(payment, "txtChqDraftNo"), "12");
        EXPECT_EQ(reading.text(payment, "txtBankNm"), "Bank");
        EXPECT_EQ(reading.text(payment, "txtBranchNm"), "Branch");
    }
}

TEST(ReadXML, feesReactAsForTheUser) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile()
                                   .set("AREADEVCOM", "10")
                                   .set("RATEDEVCOM", "3")
                                   .set("AMTDEVCOM", "31")
                                   .set("TOTALAMOUNT", "1000.00")
                                   .set("AMOUNT-SCRUT-RESI-2", "4")),
              Boxes());
    EXPECT_EQ(reading.text(payment, "txtDevAmtC"), "31.00");
    EXPECT_EQ(reading.text(payment, "txtScrutinyRAmount2"), "4.00");
    EXPECT_EQ(reading.text(payment, "txtGrandTotal"), "35.00");
}

TEST(ReadXML, aFeeThatHoldsALetterIsRefusedAsForTheUser) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("AREADEVCOM", "ten")),
              (Boxes{{"Payment Detail", "Enter Numeric Data", Icon::Information}}));
    EXPECT_EQ(reading.text(payment, "txtDevAreaC"), "");
}

TEST(ReadXML, eachTextOfAnnexureBFillsTheBoxOfItsName) {
    for (const bool first : {true, false}) {
        const std::string_view form = first ? sheet : continuation;
        const auto names = first ? std::span<const std::string_view>(annexureTexts) : continuationTexts;
        for (const std::string_view name : names) {
            Reading reading;
            ASSERT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", name, "7 &amp; up")), Boxes()) << name;
            EXPECT_EQ(reading.text(form, "txt" + std::string(name)), "7 & up") << name;
        }
    }
}

TEST(ReadXML, eachAnswerOfAnnexureBSetsTheOptionsOfItsName) {
    for (const bool first : {true, false}) {
        const std::string_view form = first ? sheet : continuation;
        const auto names = first ? std::span<const char* const>(annexureQuestions) : continuationQuestions;
        for (const char* name : names) {
            for (const std::string_view before : {"(1)", "(0)"}) {
                for (const std::string value : {"1", "0", "2"}) {
                    Reading reading;
                    reading.world.option(form, std::string(name).append(before)).setValue(true);
                    ASSERT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", name, value)), Boxes()) << name;
                    EXPECT_EQ(reading.answer(form, name), value) << name << " over " << before;
                }
            }
        }
    }
}

TEST(ReadXML, streetsAndTreesAreReadFromTheirOneElement) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "Section9a3536", "1#12.5#11#40#3")), Boxes());
    EXPECT_EQ(reading.answer(sheet, "Opt77"), "1");
    EXPECT_EQ(reading.text(sheet, "txtFstStreetWidth"), "12.5");
    EXPECT_EQ(reading.text(sheet, "txtFstExistingWidth"), "11");
    EXPECT_EQ(reading.text(continuation, "txtHowManyTrees"), "40");
    EXPECT_EQ(reading.text(continuation, "txtNoOfTreesAffected"), "3");
}

TEST(ReadXML, withoutASecondStreetTheTreesAloneAreRead) {
    for (const std::string answer : {"0", "2", "7"}) {
        Reading reading;
        ASSERT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "Section9a3536", answer + "#12.5#11#40#3")),
                  Boxes());
        EXPECT_EQ(reading.answer(sheet, "Opt77"), answer == "0" ? "0" : "2");
        EXPECT_EQ(reading.text(sheet, "txtFstStreetWidth"), "");
        EXPECT_EQ(reading.text(sheet, "txtFstExistingWidth"), "");
        EXPECT_EQ(reading.text(continuation, "txtHowManyTrees"), "40");
        EXPECT_EQ(reading.text(continuation, "txtNoOfTreesAffected"), "3");
    }
}

TEST(ReadXML, streetsAndTreesOfAnotherNameOrTooFewPartsAreNotRead) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "section9A3536", "1#12.5#11#40#3")), Boxes());
    EXPECT_EQ(reading.answer(sheet, "Opt77"), "2");
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "Section9a3536", "1#12.5")), Boxes(3, outOfRange));
    EXPECT_EQ(reading.answer(sheet, "Opt77"), "1");
    EXPECT_EQ(reading.text(sheet, "txtFstStreetWidth"), "12.5");
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "Section9a3536", "")), Boxes(3, outOfRange));
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "Section9a3536", "x#12.5#11#40#3")), Boxes{mismatch});
}

TEST(ReadXML, anyElementOfAnnexureBThatFindsAControlTakesEffect) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile()
                                   .append("ANNEXUREB", "title", "By name")
                                   .append("ANNEXUREB", "RMK5", "Too")
                                   .append("ANNEXUREB", "isplotnarrow", "1")
                                   .append("ANNEXUREB", "opt21bi", "1")
                                   .append("ANNEXUREB", "Nothing", "no control")
                                   .append("ANNEXUREB", "txtTitle", "no control")
                                   .append("ANNEXUREB", "cboZone", "no box")),
              Boxes());
    EXPECT_EQ(reading.text(sheet, "txtTitle"), "By name");
    EXPECT_EQ(reading.text(continuation, "txtRmk5"), "Too");
    EXPECT_EQ(reading.answer(continuation, "IsPlotNarrow"), "1");
    EXPECT_EQ(reading.text(continuation, "txtRightWay"), "1");
}

TEST(ReadXML, anOptionThatIsNoMemberOfAnArrayIsLeftAlone) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile()
                                   .append("ANNEXUREB", "Opt3Y", "1")
                                   .append("ANNEXUREB", "Opt4N", "0")
                                   .append("ANNEXUREB", "OptLE", "x")),
              Boxes{mismatch});
    EXPECT_EQ(reading.answer(sheet, "Opt3"), "2");
    EXPECT_EQ(reading.answer(sheet, "Opt4"), "2");
    EXPECT_FALSE(reading.world.option(sheet, "OptLE").value());
}

TEST(ReadXML, annexureBIsFoundInAnyCaseAndAsOftenAsItStands) {
    Reading reading;
    std::string xml = ProposalFile().append("ANNEXUREB", "WhyNot", "first").xml();
    xml.insert(xml.find("</INWARDINFO>"), "<AnnexureB><NetArea>5</NetArea></AnnexureB>");
    ASSERT_EQ(reading.sections(xml), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtWhyNot"), "first");
    EXPECT_EQ(reading.text(sheet, "txtNetArea"), "5");
}

TEST(ReadXML, anOptionOfAnnexureBThatIsNoNumberTakesThatOfTheElementBefore) {
    for (const std::string_view bad : {"", "x", "1x"}) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile()
                                       .append("ANNEXUREB", "IsPlotNarrow", "1")
                                       .append("ANNEXUREB", "TotalArea", "5")
                                       .append("ANNEXUREB", "IsReduceOpenSpace", bad)),
                  Boxes(2, mismatch));
        EXPECT_EQ(reading.answer(continuation, "IsReduceOpenSpace"), "1");
        EXPECT_EQ(
            reading.sections(
                ProposalFile().append("ANNEXUREB", "IsPlotNarrow", "2").append("ANNEXUREB", "IsReduceOpenSpace", bad)),
            Boxes(2, mismatch));
        EXPECT_EQ(reading.answer(continuation, "IsReduceOpenSpace"), "2");
    }
}

TEST(ReadXML, theFirstOptionOfAnnexureBThatIsNoNumberTakesZeroInEachReading) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "IsPlotNarrow", "1")), Boxes());
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "IsReduceOpenSpace", "x")), Boxes(2, mismatch));
    EXPECT_EQ(reading.answer(continuation, "IsReduceOpenSpace"), "0");
}

TEST(ReadXML, anOptionOfAnnexureBIsAWholeNumberOfSixteenBits) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "IsPlotNarrow", "0.6")), Boxes());
    EXPECT_EQ(reading.answer(continuation, "IsPlotNarrow"), "1");
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "IsReduceOpenSpace", "40000")),
              Boxes(2, sectionBox("6 : Overflow")));
}

TEST(ReadXML, setOptionFromTextTellsTheMembersApart) {
    Reading reading;
    OptionButton& yes = reading.world.option(continuation, "IsPlotNarrow(1)");
    OptionButton& no = reading.world.option(continuation, "IsPlotNarrow(0)");
    setOptionFromText(yes, 1);
    EXPECT_TRUE(yes.value());
    setOptionFromText(yes, 2);
    EXPECT_FALSE(yes.value());
    setOptionFromText(no, 0);
    EXPECT_TRUE(no.value());
    setOptionFromText(no, 1);
    EXPECT_FALSE(no.value());
}

}  // namespace plandesk::test
