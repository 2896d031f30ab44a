#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "reports/ReportCatalogue.h"

namespace plandesk::test {
namespace {

struct Blank {
    std::string_view report;
    std::string_view field;
    std::string_view words;  ///< the text that the blank stands behind

    bool operator==(const Blank&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Blank& blank) {
    return out << blank.report << " " << blank.field << " behind \"" << blank.words << '"';
}

// Every blank of the application and the letters, from the beginning of each to its end.
constexpr std::array blanks = std::to_array<Blank>({
    {"rptReciept", "BldgNo", "No."},
    {"rptReciept", "vilage", "in village"},
    {"rptReciept", "Sector", "Sector No"},
    {"rptReciept", "wardNO", "Ward No"},
    {"rptReciept", "CTSNO", "CTS NO."},
    {"rptReciept", "plotno", "S.No./Plot No."},
    {"rptReciept", "FinalPlotNo", "F.P.No."},
    {"rptReciept", "archName",
     "I forward here with the following plans and statments (items 1 to 6) Wherever applicable, in quadruplicate "
     "signed by me and"},
    {"rptReciept", "LicNo",
     " the licenced to registered Architect / Engineer / Structural Engineer / Supervisor Licence No"},
    {"rptReciept", "NameOfApplcant", "Name of Owner :"},
    {"rptReciept", "AddOfApplcant", "Address of Owner :"},
    {"rptFormofSupervision", "Officername", "The "},
    {"rptFormofSupervision", "Building", "alteration of building"},
    {"rptFormofSupervision", "FPNo", "on S.No./C.T.S. No./FPNo."},
    {"rptFormofSupervision", "Scheme", "village/ Town planning scheme No."},
    {"rptFormofSupervision", "Road", " situated at road/street"},
    {"rptFormofSupervision", "Ward", "  Ward"},
    {"rptFormofSupervision", "Sector", "Sector No."},
    {"rptFormofSupervision", "EngineerName", "(in block letters)"},
    {"rptFormofSupervision", "Licenceno", "Licence No/C.A.No :"},
    {"rptFormofSupervision", "AddressEngineer", "Address :"},
    {"rptFormofSupervision", "DTPicker", "Date :"},
    {"rptNoticeforcommencementofwork", "FLD1", " in/of building "},
    {"rptNoticeforcommencementofwork", "FLD2", "village"},
    {"rptNoticeforcommencementofwork", "FLD3", "Sector No."},
    {"rptNoticeforcommencementofwork", "FLD4", "Ward No."},
    {"rptNoticeforcommencementofwork", "FLD5", "situated at"},
    {"rptNoticeforcommencementofwork", "FLD6", "Road/Street,S.No./C.S.No./F.P.No."},
    {"rptNoticeforcommencementofwork", "FLD7", "will be commenced on"},
    {"rptNoticeforcommencementofwork", "FLD8", "No."},
    {"rptNoticeforcommencementofwork", "FLD9", "dt."},
    {"rptNoticeforcommencementofwork", "FLD10", "under the supervision of"},
    {"rptNoticeforcommencementofwork", "FLD11",
     "licenced architect/engineer/structural engineer/supervisor-license No."},
    {"rptNoticeforcommencementofwork", "FLD13", "(In block letters)"},
    {"rptNoticeforcommencementofwork", "FLD14", "Address of Owner :"},
    {"rptNoticeforcommencementofwork", "FLD15", "Declaration and possession receipt of plot is surrendered to SMC :"},
    {"rptNoticeforcommencementofwork", "FLD16", "page number : "},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD1", "in Building No."},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD2", "S.No./C.T.S.No./F.P.No."},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD3", "Village No."},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD4", "Town planning scheme No"},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD5", "Sector No."},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD6", "Street"},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD7", "No."},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD8", "No."},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD9", "dated"},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD10", "(In block Letters)"},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD11", "Address: "},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD12", "Date :"},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD13",
     "Whether record of right is transferred on time name(7/12 extract\\P.R.Card) :"},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", "FLD14", "Remarks  :"},
    {"forbldgcompletion", "FLD1", "building No."},
    {"forbldgcompletion", "FLD2", "on in Plot No."},
    {"forbldgcompletion", "FLD3", "S.No./City S.No./F.P.No."},
    {"forbldgcompletion", "FLD4", "Village/T.P.S.No."},
    {"forbldgcompletion", "FLD5", "Sector No."},
    {"forbldgcompletion", "FLD6", "Road/Street/Ward No."},
    {"forbldgcompletion", "FLD7", "has been supervised by me and has been completed on"},
    {"forbldgcompletion", "FLD8", "in accordance with the plans(V.P."},
    {"forbldgcompletion", "FLD9", "sactioned wide your office communication No."},
    {"forbldgcompletion", "FLD10", "Dated"},
    {"forbldgcompletion", "FLD11", "(In block Letters)"},
    {"forbldgcompletion", "FLD12", "Address: "},
    {"forbldgcompletion", "FLD13", "Licence No"},
    {"forbldgcompletion", "FLD14", "Date :"},
    {"rptforpartoccupancycertificate", "FLD1", "appreoved under communicarion No."},
    {"rptforpartoccupancycertificate", "FLD2", "dated"},
    {"rptforpartoccupancycertificate", "FLD3", "(in block letters)"},
    {"rptforpartoccupancycertificate", "FLD4", "Address :"},
    {"rptforpartoccupancycertificate", "FLD5", "Witness :"},
    {"rptforpartoccupancycertificate", "FLD6", "Date :"},
    {"rptTDRfortransferringownership", "FLD1", "I/WE,"},
    {"rptTDRfortransferringownership", "FLD2", "aged"},
    {"rptTDRfortransferringownership", "FLD3", "of Indian inhabitant residing at "},
    {"rptTDRfortransferringownership", "FLD4", "I/We am/are the properietor(s) of the firm"},
    {"rptTDRfortransferringownership", "FLD5", "Having it's registered office at "},
    {"rptTDRfortransferringownership", "FLD6", "is/am the owner(s) of the land bearing S.No./H.No./C.S.No."},
    {"rptTDRfortransferringownership", "FLD7", " situated at"},
    {"rptTDRfortransferringownership", "FLD8", "of village"},
    {"rptTDRfortransferringownership", "FLD9", "The aforesaid land is partly/fully reseved for the pupose of"},
    {"rptTDRfortransferringownership", "FLD10", "as per the sactioned/draft development plan of"},
    {"rptTDRfortransferringownership", "FLD11", "Dated this"},
    {"rptTDRfortransferringownership", "FLD12", "day of"},
    {"rptTDRfortransferringownership", "FLD13", "the year"},
    {"rptTDRfortransferringownership", "FLD14", "Deponent"},
    {"rptTDRfortransferringownership", "FLD15", "Identified by me:"},
    {"rptTDRfortransferringownership", "FLD16", "Advocate"},
    {"rptTDRfortransferringownership", "FLD17", "Name &"},
    {"rptTDRfortransferringownership", "FLD18", "address"},
    {"rptTDRfortransferringownership", "FLD19", "Before Me:"},
    {"rptTDRfortransferringownership", "FLD20", "Notary/Metropolitan Magistrate:"},
    {"rptTDRfortransferringownership", "FLD21", "Name :"},
    {"rptTDRfortransferringownership", "FLD22", "Address :"},
});

std::vector<Blank> blanksOf(const Paper& paper) {
    std::vector<Blank> found;
    std::string_view words;
    for (const PaperSection& section : paper.body)
        for (const PaperRow& row : section.rows)
            for (const PaperCell& cell : row.cells)
                for (const PaperItem& item : cell) {
                    if (item.isField())
                        found.push_back({paper.name, item.field, words});
                    words = item.text;
                }
    return found;
}

TEST(LetterPapers, EachBlankStandsBehindItsWords) {
    std::vector<Blank> found;
    for (const std::string_view report : {"rptReciept", "rptFormofSupervision", "rptNoticeforcommencementofwork",
                                          "rptformforintimationofcompletionofworkuptoplinthlevel", "forbldgcompletion",
                                          "rptforpartoccupancycertificate", "rptTDRfortransferringownership"}) {
        const std::vector<Blank> each = blanksOf(*findLayout(report));
        found.insert(found.end(), each.begin(), each.end());
    }
    EXPECT_EQ(found, std::vector<Blank>(blanks.begin(), blanks.end()));
}

TEST(LetterPapers, TheChalansDifferInTheFeesOfSubdivisionAndTheLettersBehindThem) {
    const auto linesOf = [](std::string_view report) {
        std::vector<std::string> lines;
        for (const PaperRow& row : findLayout(report)->body.front().rows) {
            std::string& line = lines.emplace_back();
            for (const PaperCell& cell : row.cells)
                for (const PaperItem& item : cell)
                    line.append(item.isField() ? item.field : item.text).append("|");
        }
        return lines;
    };
    const std::vector<std::string> head = {
        "      Description |Total Area |Rate|Amount|",     "A.|Development Permission Fees|",
        "Residential|AreaDevResi|RateDevResi|AmtDevResi|", "Commercial|AreaDevComm|RateDevComm|AmtDevComm|",
        "Industrial|AreaDevInd|RateDevInd|AmtDevInd|",     "B.|Scrutiny Fees  |",
        "Residential|AreaScuResi|RateScuResi|AmtScuResi|", "Commercial|AreaScuComm|RateScuComm|AmtScuComm|",
        "Industrial|AreaScuInd|RateScuInd|AmtScuInd|",
    };
    const std::vector<std::string> subdivision = {
        "C.|Scrutiny Fees  (Subdivision/Amalgamation)|",
        "Residential|AreaScuResi2|RateScuResi2|AmtScuResi2|",
        "Commercial|AreaScuComm2|RateScuComm2|AmtScuComm2|",
        "Industrial|AreaScuInd2|RateScuInd2|AmtScuInd2|",
    };
    std::vector<std::string> present = head;
    present.insert(present.end(), subdivision.begin(), subdivision.end());
    for (const std::string_view line : {"D.|Compound Fees|CompoundFees|", "E.|Other|other|"})
        present.emplace_back(line);
    std::vector<std::string> older = head;
    for (const std::string_view line : {"C.|Compound Fees|CompoundFees|", "D.|Other|other|"})
        older.emplace_back(line);
    present.emplace_back("TOTAL AMOUNT :|TotalAmount|");
    older.emplace_back("TOTAL AMOUNT :|TotalAmount|");
    EXPECT_EQ(linesOf("rptPaymentDetails"), present);
    EXPECT_EQ(linesOf("rptPaymentDetails123"), older);
}

TEST(LetterPapers, EachDocumentOfTheChecklistHasThePagesOfItsNumber) {
    const Paper& paper = *findLayout("rptDocChecklist");
    const auto check = [](const PaperSection& section, const std::string& prefix, std::size_t count) {
        ASSERT_EQ(section.rows.size(), count + 1);
        EXPECT_EQ(section.rows[0].style, RowStyle::Head);
        for (std::size_t number = 1; number <= count; ++number) {
            EXPECT_EQ(section.rows[number].cells[1][0].field, prefix + "txtpagefrom" + std::to_string(number));
            EXPECT_EQ(section.rows[number].cells[2][0].field, prefix + "txtpageto" + std::to_string(number));
        }
    };
    check(paper.body.front(), "", 9);
    check(paper.body.back(), "m", 35);
}

}  // namespace
}  // namespace plandesk::test
