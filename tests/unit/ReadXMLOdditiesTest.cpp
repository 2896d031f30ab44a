// Reading is no mirror of writing: what becomes of a value on its way to the file and back, and of files that the
// system did not write.

#include <functional>

#include <gtest/gtest.h>

#include "ProposalFile.h"

namespace plandesk::test {

namespace {

constexpr std::string_view sheet = "frmAnnexureA";
constexpr std::string_view continuation = "AnnexureACont";
constexpr std::string_view payment = "frmPayDetail";

using Boxes = std::vector<Message>;

/// The file that a new proposal is saved to after `fill` filled it in.
std::string saved(const std::function<void(World&)>& fill) {
    World world;
    world.shell.press("mnuNew");
    fill(world);
    world.ports.dialogs.answers.push_back("/home/a.xml");
    world.shell.run("mnuSaveAs_Click");
    return world.ports.files.contents.at("/home/a.xml");
}

std::string saved(std::string_view form, std::string_view box, std::string_view text) {
    return saved([&](World& world) { world.box(form, box).setText(text); });
}

/// The text of a box after it was saved, opened and saved again `times` times.
std::string reopened(std::string_view form, std::string_view box, std::string_view text, int times = 1) {
    std::string file = saved(form, box, text);
    std::string result;
    for (int i = 0; i < times; ++i) {
        Reading reading;
        reading.open(file);
        result = reading.text(form, box);
        file = saved(form, box, result);
    }
    return result;
}

}  // namespace

TEST(Reopening, theProposedRatioComesBackAsANumber) {
    EXPECT_EQ(reopened(sheet, "txtTikaNo", "12.50"), "12.5");
    EXPECT_EQ(reopened(sheet, "txtTikaNo", "1.5 times"), "1.5");
    EXPECT_EQ(reopened(sheet, "txtTikaNo", "much"), "0");
    EXPECT_EQ(reopened(sheet, "txtTikaNo", ""), "0");
}

TEST(Reopening, theElementBeforeTheLandMarkIsNeverRead) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("TIKANO", "9.9").set("TOTALFSI", "1.5")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtTikaNo"), "1.5");
}

TEST(Reopening, aRevisedProposalLandsOnThePositionOfAChangeOfUse) {
    Reading reading;
    reading.open(saved([](World& world) {
        world.list(sheet, "cboCaseType").setListIndex(1);
        world.list(sheet, "cboProposalTyp").setListIndex(0);
    }));
    EXPECT_EQ(reading.world.list(sheet, "cboCaseType").listIndex(), 1);
    EXPECT_EQ(reading.world.list(sheet, "cboCaseType").text(), "Revised");
}

TEST(Reopening, aProposalWithoutAnUseLosesItsCaseType) {
    const std::string file = saved([](World& world) { world.list(sheet, "cboCaseType").setListIndex(1); });
    EXPECT_NE(file.find("<CASETYPE>REV</CASETYPE>"), std::string::npos);
    EXPECT_NE(file.find("<PROPOSALTYPE></PROPOSALTYPE>"), std::string::npos);
    Reading reading;
    reading.open(file);
    EXPECT_EQ(reading.world.list(sheet, "cboCaseType").listIndex(), -1);
}

TEST(Reopening, anAtSignShiftsTheRestOfItsSectionAlone) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile()
                                   .set("REMARK1", "me@home")
                                   .set("FILENO", "file")
                                   .set("REVNO", "revision")
                                   .set("ReservationType", "garden")
                                   .set("TOTALFSI", "1.5")
                                   .set("REMARK2", "second")),
              Boxes());
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "me");
    EXPECT_EQ(reading.text(sheet, "txtFileNo"), "home");
    EXPECT_EQ(reading.text(sheet, "txtRevNo"), "file");
    EXPECT_EQ(reading.text(sheet, "txtReservationType"), "revision");
    EXPECT_EQ(reading.text(sheet, "txtTikaNo"), "garden");
    EXPECT_EQ(reading.text(sheet, "txtRmk2"), "second");
}

TEST(Reopening, anElectronicAddressOfTheApplicantShiftsTheArchitectAway) {
    Reading reading;
    const Boxes told = reading.sections(ProposalFile()
                                            .set("APPLICANTADDR", "Station Road, me@home")
                                            .set("ARCHINFO", "LE#Last#First#Middle#CA/1")
                                            .set("THREE-RAD", "1#2")
                                            .set("THREE-TEXT", "1250#1200"));
    EXPECT_EQ(reading.text(sheet, "txtApplicantAddr"), "Station Road, me");
    EXPECT_TRUE(reading.world.option(sheet, "OptArch").value());
    EXPECT_EQ(reading.text(sheet, "txtArchNm"), "");
    EXPECT_EQ(reading.text(sheet, "txtPltArea"), "1");
    EXPECT_EQ(reading.text(sheet, "txtActualArea"), "2");
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "1250#1200");
    // Last, first, middle name and number, Opt1 from "LE", the condition of the allowed area and Opt2 from "Last".
    EXPECT_EQ(told, (Boxes{outOfRange, outOfRange, outOfRange, outOfRange, mismatch, mismatch, mismatch}));
}

TEST(Reopening, twoBarsCutTheirSectionAndShiftAllBehindIt) {
    Reading reading;
    const Boxes told = reading.sections(ProposalFile()
                                            .set("REMARK1", "before||behind")
                                            .set("FILENO", "file")
                                            .set("REMARK2", "second")
                                            .set("REMARK3", "third")
                                            .append("ANNEXUREB", "WhyNot", "by name"));
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "before");
    EXPECT_EQ(reading.text(sheet, "txtFileNo"), "");
    EXPECT_EQ(std::vector<Message>(told.begin(), told.begin() + 4), Boxes(4, outOfRange));
    EXPECT_EQ(reading.text(sheet, "txtSanctionNo"), "");
    EXPECT_EQ(reading.text(sheet, "txtRmk2"), "");
    EXPECT_EQ(reading.text(sheet, "txtRmk3"), "#01/02/2003");
    EXPECT_EQ(reading.text(sheet, "txtWhyNot"), "by name");
}

TEST(Reopening, aNumberSignShiftsTheRestOfItsList) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("EIGHT-TEXT", "a#b#c#d#e#f#g#h#i")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtWorkmen"), "b");
    EXPECT_EQ(reading.text(sheet, "txtWaste"), "h");
    const std::string file = saved([](World& world) {
        world.box(continuation, "txtRoofs").setText("slab #1");
        world.box(continuation, "txtFloor").setText("tiles");
    });
    reading.open(file);
    EXPECT_EQ(reading.text(continuation, "txtRoofs"), "slab ");
    EXPECT_EQ(reading.text(continuation, "txtFloor"), "1");
    EXPECT_EQ(reading.text(continuation, "txtWall"), "tiles");
}

TEST(Reopening, eachBackslashDoublesWithEachOpening) {
    EXPECT_EQ(reopened(sheet, "txtTitle", R"(A\B)"), R"(A\\B)");
    EXPECT_EQ(reopened(sheet, "txtTitle", R"(A\B)", 2), R"(A\\\\B)");
    EXPECT_EQ(reopened(sheet, "txtTitle", R"(\)", 3), R"(\\\\\\\\)");
    EXPECT_EQ(reopened(continuation, "txtRmk5", R"(\x\)"), R"(\\x\\)");
    EXPECT_EQ(reopened(payment, "txtOther", R"(1\2)"), R"(1\\2)");
}

TEST(Reopening, theRegistrationNumberAloneHalvesThemAgain) {
    EXPECT_EQ(reopened(sheet, "txtRegNm", R"(CA\99\\1)", 3), R"(CA\99\\1)");
}

TEST(Reopening, valuesReadByNameKeepTheirBackslashes) {
    EXPECT_EQ(reopened(sheet, "txtWhyNot", R"(A\B)", 2), R"(A\B)");
    EXPECT_EQ(reopened(continuation, "txtHowManyTrees", R"(\)"), R"(\)");
}

TEST(Reopening, theCharactersOfMarkupComeBackWhereTheyAreEscaped) {
    EXPECT_EQ(reopened(sheet, "txtTitle", "a & b < c > d &amp; e"), "a & b < c > d &amp; e");
    EXPECT_EQ(reopened(continuation, "txtRmk4", "<&>"), "<&>");
    EXPECT_EQ(reopened(sheet, "txtNetArea", "<&>"), "<&>");
}

TEST(Reopening, anAmpersandInATextWrittenAsTypedMakesTheFileIllFormed) {
    Reading reading;
    const Boxes told = reading.open(saved(continuation, "txtSectionRemark4", "rest & rooms"));
    EXPECT_EQ(told.size(), 178U);
    EXPECT_EQ(reading.text(continuation, "txtSectionRemark4"), "");
}

TEST(Reopening, theServiceZoneTravelsUnderAGreenCode) {
    const std::string file =
        saved([](World& world) { world.list(sheet, "cboZone").setText("I1(Service Industrial Zone)"); });
    EXPECT_NE(file.find("<SIX-A>G3</SIX-A>"), std::string::npos);
    Reading reading;
    reading.open(file);
    EXPECT_EQ(reading.world.list(sheet, "cboZone").text(), "I1(Service Industrial Zone)");
}

TEST(Reopening, aPaymentInCashForgetsItsBank) {
    const auto bank = [](std::string_view option) {
        Reading reading;
        reading.open(saved([&](World& world) {
            world.box(payment, "txtBankNm").setText("Bank");
            world.box(payment, "txtBranchNm").setText("Branch");
            world.box(payment, "txtChqDraftNo").setText("77");
            world.option(payment, option).setValue(true);
        }));
        return reading.text(payment, "txtBankNm") + reading.text(payment, "txtBranchNm") +
               reading.text(payment, "txtChqDraftNo");
    };
    EXPECT_EQ(bank("OptCash"), "");
    EXPECT_EQ(bank("OptCheque"), "BankBranch77");
}

TEST(Reopening, aDraftComesBackAsAPayOrderWithEverythingOnePlaceOn) {
    Reading reading;
    const Boxes told = reading.open(saved([](World& world) {
        world.box(payment, "txtBankNm").setText("Bank");
        world.box(payment, "txtBranchNm").setText("Branch");
        world.box(payment, "txtChqDraftNo").setText("77");
        world.option(payment, "OptDraft").setValue(true);
    }));
    EXPECT_TRUE(reading.world.option(payment, "OptCheque").value());
    EXPECT_EQ(reading.text(payment, "txtChqDraftNo"), "Bank");
    EXPECT_EQ(reading.text(payment, "txtBankNm"), "Branch");
    EXPECT_EQ(reading.text(payment, "txtBranchNm"), "");
    // The number stands where the date is looked for.
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.front(), mismatch);
}

TEST(Reopening, aNameIsCutAtATilde) {
    EXPECT_EQ(reopened(sheet, "txtApplicantNm", "Patil ~ Sons ~ Co"), "Patil ");
    EXPECT_EQ(reopened(sheet, "txtApplicantNm", "~"), "");
    EXPECT_EQ(reopened(sheet, "txtApplicantNm", "Patil"), "Patil");
    EXPECT_EQ(reopened(sheet, "txtApplicantAddr", "a ~ b"), "a ~ b");
}

TEST(Reopening, thePavedAccessComesBackWithTheAnswerOfTheBalconies) {
    for (const std::string answer : {"1", "0", "2"}) {
        Reading reading;
        reading.open(saved([&](World& world) {
            world.option(continuation, "Opt30Y").setValue(true);
            if (answer != "2")
                world.option(continuation, answer == "1" ? "Opt29Y" : "Opt29N").setValue(true);
        }));
        EXPECT_EQ(reading.answer(continuation, "Opt29"), answer);
        EXPECT_EQ(reading.answer(continuation, "Opt30"), answer);
    }
}

TEST(Reopening, theChowkAnswersAreReadPartByPart) {
    const auto chowk = [](std::string_view text) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile().set("ONESIX-RAD", text)), Boxes());
        return reading.answer(continuation, "Opt22") + reading.answer(continuation, "Opt23") +
               reading.answer(continuation, "Opt24");
    };
    EXPECT_EQ(chowk("1#1#2"), "112");
    EXPECT_EQ(chowk("0#2#1"), "021");
    EXPECT_EQ(chowk("0#2#0"), "020");
    EXPECT_EQ(chowk("0#2#2"), "022");
    EXPECT_EQ(chowk("2#2#2"), "222");
}

TEST(Reopening, aNoBehindAChowkYesComesBackAsYesAndNeitherIsLeft) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("ONESIX-RAD", "1#01#2")), Boxes());
    EXPECT_EQ(reading.answer(continuation, "Opt23"), "1");
    reading.world.option(continuation, "Opt23N").setValue(true);
    EXPECT_EQ(reading.sections(ProposalFile().set("ONESIX-RAD", "1#21#2")), Boxes());
    EXPECT_EQ(reading.answer(continuation, "Opt23"), "0");
    EXPECT_EQ(reading.answer(continuation, "Opt24"), "2");
}

TEST(Reopening, noAccessoryBuildingsClearsTheirAnswersReadBefore) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile()
                                   .set("TWOTHREE-RAD", "1")
                                   .set("TWOTHREE-TEXT", "3.5")
                                   .append("ANNEXUREB", "IsAnyAccessoryBldgProposed", "0")),
              Boxes());
    EXPECT_EQ(reading.answer(continuation, "Opt31"), "2");
    EXPECT_EQ(reading.text(continuation, "txtHgtEnroch"), "3.5");
}

TEST(Reopening, theHiddenDigitOfTheAttachedDocumentsChoosesItsAnswer) {
    const auto attached = [](std::string_view digit) {
        Reading reading;
        EXPECT_EQ(reading.sections(ProposalFile().setPart("TWOONE-TEXT", 1, "1").setPart("TWOONE-TEXT", 2, digit)),
                  Boxes());
        EXPECT_EQ(reading.answer(continuation, "opt21bi"), "2");
        EXPECT_EQ(reading.text(continuation, "txtRightWay"), "1");
        return reading.answer(continuation, "opt21bii");
    };
    EXPECT_EQ(attached("1"), "1");
    EXPECT_EQ(attached("0"), "0");
    EXPECT_EQ(attached("2"), "2");
    EXPECT_EQ(attached("x"), "2");
}

TEST(Reopening, fieldsRefillWhatTheAnswersBeforeThemEmptied) {
    Reading reading;
    ASSERT_EQ(reading.sections(ProposalFile()
                                   .set("EIGHT-RAD", "0#2#2#2#2#2#2#2#2")
                                   .setPart("EIGHT-TEXT", 0, "weaving")
                                   .set("ELEVEN-RAD", "0")
                                   .setPart("ELEVEN-TEXT", 2, "rights")
                                   .set("ONESEVEN-RAD", "0#2")
                                   .setPart("ONESEVEN-TEXT", 0, "hydraulic")
                                   .set("TWONINE-RAD", "1#0")
                                   .setPart("TWONINE-TEXT", 0, "2 m")
                                   .append("ANNEXUREB", "IsAnyDeductOfRoadLine", "0")
                                   .append("ANNEXUREB", "NetArea", "55")
                                   .append("ANNEXUREB", "IsConsumeFullFloor", "1")
                                   .append("ANNEXUREB", "WhyNot", "because")),
              Boxes());
    EXPECT_EQ(reading.text(sheet, "txtMainProcess"), "weaving");
    EXPECT_FALSE(reading.world.box(sheet, "txtMainProcess").enabled());
    EXPECT_EQ(reading.text(sheet, "txtDevRights"), "rights");
    EXPECT_EQ(reading.text(continuation, "txtLiftTyp"), "hydraulic");
    EXPECT_EQ(reading.text(continuation, "txtFillLevel"), "2 m");
    EXPECT_EQ(reading.text(sheet, "txtNetArea"), "55");
    EXPECT_EQ(reading.text(sheet, "txtWhyNot"), "because");
}

TEST(ForeignFile, namesInsideASectionDoNotMatter) {
    Reading reading;
    EXPECT_EQ(reading.sections(
                  ProposalFile().set("REMARK1", "one").rename("REMARK1", "X").rename("TITLE", "y").set("y", "t")),
              Boxes());
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "one");
    EXPECT_EQ(reading.text(sheet, "txtTitle"), "t");
}

TEST(ForeignFile, namesOfSectionsDoNotMatterButForTheLandRecords) {
    Reading reading;
    std::string xml = ProposalFile().set("REMARK1", "one").set("REMARK2", "two").xml();
    for (const std::string_view from : {"<SECTION-I>", "</SECTION-I>"})
        xml.replace(xml.find(from), from.size(), from[1] == '/' ? "</a>" : "<a>");
    xml.insert(xml.find("<SECTION-II>"), "<nts><a>1</a><b>2</b></nts>");
    EXPECT_EQ(reading.sections(xml), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "one");
    EXPECT_EQ(reading.text(sheet, "txtRmk2"), "two");
}

TEST(ForeignFile, aRenamedElementOfAnnexureBLosesItsValueWithoutAWord) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().append("ANNEXUREB", "Whynots", "lost")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtWhyNot"), "");
}

TEST(ForeignFile, aFileWithoutLandRecordsReadsItsSections) {
    Reading reading;
    EXPECT_EQ(reading.open(ProposalFile().set("TITLE", "t").removeSection("NTS").removeSection("PLOT-REL")), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtTitle"), "t");
}

TEST(ForeignFile, layoutCommentsAndCharacterDataMakeNoDifference) {
    std::string xml = ProposalFile().set("TITLE", "<![CDATA[a & b]]><!-- c --> c").set("REMARK1", "r<?p?>1").xml();
    for (std::size_t at = 0; (at = xml.find("><", at)) != std::string::npos; at += 5)
        if (xml[at + 2] != '/' && xml[at + 2] != '!')
            xml.insert(at + 1, "\r\n  ");
    Reading reading;
    EXPECT_EQ(reading.sections(xml), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtTitle"), "a & b c");
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "r1");
}

TEST(ForeignFile, aSectionThatLacksItsLastFieldReadsItAsEmpty) {
    Reading reading;
    reading.world.box(sheet, "txtTikaNo").setText("5");
    EXPECT_EQ(reading.sections(ProposalFile().set("REMARK1", "r").shorten("SECTION-I", 1)), Boxes());
    EXPECT_EQ(reading.text(sheet, "txtTikaNo"), "");
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "r");
}

TEST(ForeignFile, aShorterSectionIsABoxForEachFieldBeyondTheFirstMissing) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("REMARK1", "r").set("REMARK2", "s").shorten("SECTION-I", 4)),
              Boxes(3, outOfRange));
    EXPECT_EQ(reading.text(sheet, "txtRmk1"), "r");
    EXPECT_EQ(reading.text(sheet, "txtRmk2"), "s");
    // REMARK2 is empty, the tenements are the parts of an empty list.
    EXPECT_EQ(reading.sections(ProposalFile().shorten("SECTION-II", 2)), Boxes(3, outOfRange));
    EXPECT_EQ(reading.sections(ProposalFile().shorten("SECTION-III", 2)), Boxes(5, outOfRange));
    EXPECT_EQ(reading.sections(ProposalFile().shorten("SECTION-III", 3)), Boxes(6, outOfRange));
}

TEST(ForeignFile, anOlderPaymentWithoutTheSecondScrutinyIsABoxForEachFeeBeyondTheFirst) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("TOTALAMOUNT", "9.00").shorten("PAYMENTDETAIL", 9)),
              Boxes(8, outOfRange));
    EXPECT_EQ(reading.text(payment, "txtGrandTotal"), "9.00");
}

TEST(ForeignFile, listsInTheirDoubledEmptyFormAreABoxForEachPart) {
    Reading reading;
    EXPECT_EQ(reading.sections(ProposalFile().set("ONESIX-TEXT", "").set("THREEZERO-TEXT", "").set("TWOFIVE-RAD", "")),
              Boxes(2 + 4 + 6, outOfRange));
    EXPECT_EQ(reading.sections(ProposalFile().set("ONETHREE-RAD", "")), Boxes{mismatch});
}

TEST(ForeignFile, aFileWithoutSectionsIsABoxForEachStatement) {
    Reading reading;
    for (const std::string_view bytes : {"<INWARDINFO/>", "<x>text</x>", "<r><NTS><a/></NTS></r>"}) {
        const Boxes told = reading.sections(std::string(bytes));
        // 28 + 33 + 6 + 19 + 36 values of the sections, the checklist and its 14 rows, 35 statements of the fees.
        EXPECT_EQ(told, Boxes(122 + 15 + 35, outOfRange)) << bytes;
    }
}

TEST(ForeignFile, groupsBeyondThePaymentAreNotCounted) {
    Reading reading;
    std::string xml = ProposalFile().set("REMARK5", "r").xml();
    xml.insert(xml.find("</INWARDINFO>"), "<MORE><a>x@y||z</a></MORE><EVEN-MORE/>");
    EXPECT_EQ(reading.sections(xml), Boxes());
    EXPECT_EQ(reading.text(continuation, "txtRmk5"), "r");
}

}  // namespace plandesk::test
