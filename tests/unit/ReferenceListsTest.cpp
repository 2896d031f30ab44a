#include "proposal/ReferenceLists.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/Text.h"

namespace plandesk {
namespace {

using Rows = std::vector<std::pair<std::string_view, std::string_view>>;

TEST(ReferenceLists, EachVillageInCapitalsHasItsThreeLetterCode) {
    const Rows rows = {
        {"TERVALE", "TRV"},        {"BALUNDI", "BLN"},     {"HOSAVEL", "HSV"},       {"GORAVAD", "GRV"},
        {"SOVAN", "SVN"},          {"ODHAL NAGAR", "ODN"}, {"ELPURI", "ELP"},        {"JAMDI", "JMD"},
        {"SARWADE MOKHLI", "SMK"}, {"LOKAD", "LKD"},       {"KHANDRI", "KND"},       {"RUVHI", "RVH"},
        {"MEHALGAON", "MHL"},      {"TIROLI", "TRL"},      {"BELDARWADI", "BDW"},    {"NESHI", "NSH"},
        {"VELODI", "VLD"},         {"UMARWADI", "UMW"},    {"TOGHEWADI", "TGW"},     {"HARKHEL", "HRK"},
        {"ONDEL MALEKH", "OML"},   {"JAVLE SURAV", "JSV"}, {"DEHATANI", "DHT"},      {"ODHAL GAON", "ODG"},
        {"MURGAON", "MRG"},        {"BENDVI", "BDV"},      {"ONDLE KORAGAR", "OKG"}, {"ODHAL", "ODL"},
    };
    ASSERT_EQ(rows.size(), villages.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(GetSectorNm(rows[i].first), rows[i].second);
        EXPECT_EQ(upperCase(villages[i].text), rows[i].first);
    }
}

TEST(ReferenceLists, AVillageIsFoundInAnyCaseAndAnUnknownOneHasNoCode) {
    EXPECT_EQ(GetSectorNm("Odhal Nagar"), "ODN");
    EXPECT_EQ(GetSectorNm("Odhal Nagars"), "");
    EXPECT_EQ(GetSectorNm(""), "");
}

TEST(ReferenceLists, EachZoneTextHasItsCodeAndServiceIndustryIsG3) {
    const Rows rows = {
        {"R1(PURELY RESIDENTIAL)", "R1"}, {"R2(RESIDENTIAL WITH SHOP LINE)", "R2"},
        {"C1(COMMERCIAL ZONE)", "C1"},    {"C2(DISTRICT COMMERCIAL)", "C2"},
        {"G1(NOT HILLS)", "G1"},          {"G2(GREEN BELT)", "G2"},
        {"I(INDUSTRIAL)", "I"},           {"I1(SERVICE INDUSTRIAL ZONE)", "G3"},
    };
    ASSERT_EQ(rows.size(), zones.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(GetZoneNm(rows[i].first), rows[i].second);
        EXPECT_EQ(GetZoneNm(zones[i].text), rows[i].second);
    }
}

TEST(ReferenceLists, AZoneTextIsTrimmedAndAnUnknownOneHasNoCode) {
    EXPECT_EQ(GetZoneNm("  g2(green BELT)  "), "G2");
    EXPECT_EQ(GetZoneNm("G4"), "");
    EXPECT_EQ(GetZoneNm(""), "");
}

TEST(ReferenceLists, AZoneCodeInAnyCaseHasItsCaptionWithoutTrailingBlanks) {
    const Rows rows = {
        {"R1", "R1(purely residential)"},
        {"R2", "R2(Residential with shop line)"},
        {"C1", "C1(Commercial zone)"},
        {"C2", "C2(District commercial)"},
        {"G1", "G1(Not Hills)"},
        {"G2", "G2(Green belt)"},
        {"I", "I(Industrial)"},
        {"G3", "I1(Service Industrial Zone)"},
        {"r1", "R1(purely residential)"},
        {" c2 ", "C2(District commercial)"},
        {"I1", ""},
        {"", ""},
    };
    for (const auto& [code, caption] : rows)
        EXPECT_EQ(zoneCaption(code), caption) << code;
}

TEST(ReferenceLists, EachCaseTypeHasItsCodeAndAnUnknownOneCountsAsNew) {
    const Rows rows = {
        {"New", "NEW"},          {"Change of use", "CHG"}, {"Revised", "REV"},   {"Resubmitted", "RES"},
        {"Revalidation", "RVA"}, {"Withdrawn", "NEW"},     {" Revised ", "REV"}, {"", "NEW"},
    };
    for (const auto& [text, code] : rows)
        EXPECT_EQ(caseTypeCode(text), code) << text;
}

TEST(ReferenceLists, EachProjectHasItsCodeAndAnUnknownOneStaysAsItIs) {
    const Rows rows = {
        {"Building Development", "Development"},
        {"Amalgamation", "AMLG"},
        {"Sub Division", "SD"},
        {"Sub Division + Amalgamation", "SD + AMLG"},
        {"Amalgamation + Sub Division", "AMLG + SD"},
        {"Amalgamation + Proposed Development", "AMLG + Development"},
        {"Sub Division + Proposed Development", "SD + Development"},
        {"Sub Division + Amalgamation + Proposed Development", "SD + AMLG + Dev"},
        {"Amalgamation + Sub Division + Proposed Development", "AMLG + SD + Dev"},
        {"Some other project ", "Some other project "},
        {"", ""},
    };
    for (const auto& [text, code] : rows)
        EXPECT_EQ(projectCode(text), code) << text;
}

TEST(ReferenceLists, TheOlderProjectMappingKnowsFiveTexts) {
    const Rows rows = {
        {"AMALGAMATION", "AMLG"},
        {"LAND DIVISION", "SD"},
        {"LAND DIVISION + AMALGAMATION", "SD + AMLG"},
        {"AMALGAMATION + LAND DIVISION", "AMLG + SD"},
        {"DEVELOPMENT", "Development"},
        {"Land Division", "SD"},
        {"BUILDING DEVELOPMENT", ""},
        {"", ""},
    };
    for (const auto& [text, code] : rows)
        EXPECT_EQ(GetProposedProj(text), code) << text;
}

TEST(ReferenceLists, AStoredCaseCodeHasAListPositionAndRevisedSharesThatOfChangeOfUse) {
    EXPECT_EQ(ReadComboValues("NEW", 0), 0);
    EXPECT_EQ(ReadComboValues("CHG", 0), 1);
    EXPECT_EQ(ReadComboValues("REV", 0), 1);
    EXPECT_EQ(ReadComboValues("RES", 0), 3);
    EXPECT_EQ(ReadComboValues("RVA", 0), 4);
    EXPECT_EQ(ReadComboValues("rev", 0), 0);
    EXPECT_EQ(ReadComboValues("SD", 0), 0);
}

TEST(ReferenceLists, AStoredProjectCodeHasAListPosition) {
    const std::vector<std::string_view> codes = {
        "Development",     "AMLG",           "SD", "SD + AMLG", "AMLG + SD", "AMLG + Development", "SD + Development",
        "SD + AMLG + Dev", "AMLG + SD + Dev"};
    for (std::size_t i = 0; i < codes.size(); ++i)
        EXPECT_EQ(ReadComboValues(codes[i], 1), static_cast<int>(i));
    EXPECT_EQ(ReadComboValues("development", 1), 0);
    EXPECT_EQ(ReadComboValues("REV", 1), 0);
    EXPECT_EQ(ReadComboValues("SD", 2), 0);
}

TEST(ReferenceLists, AMajorUseIsFoundInAnyCaseAndWithoutItsBlanks) {
    for (std::size_t i = 0; i < plotUses.size(); ++i)
        EXPECT_EQ(plotUsePosition(plotUses[i]), static_cast<int>(i));
    EXPECT_EQ(plotUsePosition(" RESI+comm"), 1);
    EXPECT_EQ(plotUsePosition("Resi"), -1);
    EXPECT_EQ(plotUsePosition(""), -1);
}

TEST(ReferenceLists, TheListTextsKeepTheirTrailingBlanks) {
    const std::vector<std::string_view> uses(plotUses.begin(), plotUses.end());
    EXPECT_EQ(uses, (std::vector<std::string_view>{"Residential", "Resi+Comm ", "Industrial", "Educational ",
                                                   "Assembly/Public", "Institutional", "Merchantile/Commercial",
                                                   "Business", "Utility/services", "Storage"}));
    EXPECT_EQ(zones[1].text, "R2(Residential with shop line) ");
    EXPECT_EQ(zones[2].text, "C1(Commercial zone) ");
}

}  // namespace
}  // namespace plandesk
