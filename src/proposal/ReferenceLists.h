#pragma once

#include <array>
#include <string>
#include <string_view>

// The fixed vocabulary of the Particulars of Development, and the codes under which the document carries it.

namespace plandesk {

struct CodedText {
    std::string_view text;
    std::string_view code;
};

/// Villages with their three-letter codes. The running list comes from VILLAGENAMES.txt, and the document carries the
/// number that stands there.
inline constexpr std::array villages = std::to_array<CodedText>({
    {"Tervale", "TRV"},        {"Balundi", "BLN"},     {"Hosavel", "HSV"},       {"Goravad", "GRV"},
    {"Sovan", "SVN"},          {"Odhal Nagar", "ODN"}, {"Elpuri", "ELP"},        {"Jamdi", "JMD"},
    {"Sarwade Mokhli", "SMK"}, {"Lokad", "LKD"},       {"Khandri", "KND"},       {"Ruvhi", "RVH"},
    {"Mehalgaon", "MHL"},      {"Tiroli", "TRL"},      {"Beldarwadi", "BDW"},    {"Neshi", "NSH"},
    {"Velodi", "VLD"},         {"Umarwadi", "UMW"},    {"Toghewadi", "TGW"},     {"Harkhel", "HRK"},
    {"Ondel Malekh", "OML"},   {"Javle Surav", "JSV"}, {"Dehatani", "DHT"},      {"Odhal Gaon", "ODG"},
    {"Murgaon", "MRG"},        {"Bendvi", "BDV"},      {"Ondle Koragar", "OKG"}, {"Odhal", "ODL"},
});

/// Zones in the order of their list; two of the texts end with a blank.
inline constexpr std::array zones = std::to_array<CodedText>({
    {"R1(purely residential)", "R1"},
    {"R2(Residential with shop line) ", "R2"},
    {"C1(Commercial zone) ", "C1"},
    {"C2(District commercial)", "C2"},
    {"G1(Not Hills)", "G1"},
    {"G2(Green belt)", "G2"},
    {"I(Industrial)", "I"},
    {"I1(Service Industrial Zone)", "G3"},  // a code of the G zones, not an industrial one
});

struct CaseType {
    std::string_view text;
    std::string_view code;
    bool offered;      ///< in the list
    int readPosition;  ///< position in the list that the code is read back to, also where the list has none
    std::string_view
        revisionCaption{};  ///< of the revision number; empty: neither file nor revision number is asked for
};

inline constexpr std::array caseTypes = std::to_array<CaseType>({
    {"New", "NEW", true, 0},
    {"Change of use", "CHG", false, 1},  // the position of "Revised"
    {"Revised", "REV", true, 1, "Revision No."},
    {"Resubmitted", "RES", false, 3, "Resubmittion No."},
    {"Revalidation", "RVA", false, 4, "Revalidation No."},
});

/// Proposed projects in the order of their list.
inline constexpr std::array projects = std::to_array<CodedText>({
    {"Building Development", "Development"},
    {"Amalgamation", "AMLG"},
    {"Sub Division", "SD"},
    {"Sub Division + Amalgamation", "SD + AMLG"},
    {"Amalgamation + Sub Division", "AMLG + SD"},
    {"Amalgamation + Proposed Development", "AMLG + Development"},
    {"Sub Division + Proposed Development", "SD + Development"},
    {"Sub Division + Amalgamation + Proposed Development", "SD + AMLG + Dev"},
    {"Amalgamation + Sub Division + Proposed Development", "AMLG + SD + Dev"},
});

/// Major uses of a plot in the order of their list; two of the texts end with a blank, which the document keeps.
inline constexpr std::array plotUses = std::to_array<std::string_view>(
    {"Residential", "Resi+Comm ", "Industrial", "Educational ", "Assembly/Public", "Institutional",
     "Merchantile/Commercial", "Business", "Utility/services", "Storage"});

/// Three-letter code of the village, its name in any case; empty for an unknown one.
std::string_view GetSectorNm(std::string_view name);

/// Code of the zone whose list text this is, in any case, blanks around it ignored; empty for an unknown one.
std::string_view GetZoneNm(std::string_view text);
/// List text of the zone code without trailing blanks, the code in any case; empty for an unknown one.
std::string_view zoneCaption(std::string_view code);

/// Code of the case type; "NEW" for an unknown one.
std::string_view caseTypeCode(std::string_view text);

/// Code of the proposed project; an unknown text is its own code.
std::string projectCode(std::string_view text);
/// Position in its list of a major use, in any case and without the blanks around it; -1 for an unknown one.
int plotUsePosition(std::string_view text);
/// The older mapping from a project, in any case, to its code; empty for an unknown one.
std::string_view GetProposedProj(std::string_view text);

/// Position in its list of a stored code, compared exactly: of a case type with kind 0, of a project with kind 1.
/// 0 for an unknown code. A position may lie beyond the end of the list of case types.
int ReadComboValues(std::string_view code, int kind);

}  // namespace plandesk
