#include <map>
#include <set>

#include "unit/ParticularsFixture.h"
#include "unit/ParticularsPapers.h"

// The six pages of the Particulars of Development against the screen that they are filled in on: which answer stands
// beside which question, and in which order.

namespace plandesk::test {
namespace {

constexpr std::string_view pages[] = {"rptAnnexutreA",  "rptAnnexutreA1", "rptAnnexutreA2",
                                      "rptAnnexutreA3", "rptAnnexutreA4", "rptAnnexutreA5"};

/// Where a control stands on the nine pages of the screen, and what it is asked by.
struct Place {
    std::size_t position = 0;
    std::string question;
};

class ParticularsPapersScreenTest : public ParticularsTest {
protected:
    ParticularsPapersScreenTest() {
        take(first());
        take(second());
    }

    void take(const Form& form) {
        for (const LayoutPage& page : form.layout().pages)
            for (const LayoutGroup& group : page.groups)
                for (const LayoutRow& row : group.rows)
                    for (const std::string& key : split(row.controls, " "))
                        places[key] = {places.size(), std::string(row.question)};
    }

    /// Null for what is not on the screen.
    const Place* placeOf(const std::string& field) const {
        static const std::map<std::string, std::string, std::less<>> otherNames = {
            {"NameOfApplcant", "txtApplicantNm"},      {"AddOfApplcant", "txtApplicantAddr"},
            {"txtHeightOfBuilding", "txtBuildingHgt"}, {"txtRightWay", "opt21bi(1)"},
            {"txtAttachDoc", "opt21bii(1)"},
        };
        const auto other = otherNames.find(field);
        std::string key = other == otherNames.end() ? field : other->second;
        if (key.ends_with("NEW"))
            key.resize(key.size() - 3);
        for (const std::string& control : {key, key + "(1)"})
            if (const auto found = places.find(control); found != places.end())
                return &found->second;
        return nullptr;
    }

    std::map<std::string, Place, std::less<>> places;
};

TEST_F(ParticularsPapersScreenTest, TheAnswersStandInTheOrderOfTheScreen) {
    std::set<std::string> notOnScreen;
    std::set<std::string> shownAgain;
    std::set<std::string> seen;
    std::size_t last = 0;
    for (const std::string_view page : pages) {
        if (page == pages[5])
            continue;  // asks again
        for (const Asked& question : questionsOf(pageOf(page)))
            for (const std::string& field : question.fields) {
                const Place* const place = placeOf(field);
                if (!place) {
                    notOnScreen.insert(field);
                } else if (!seen.insert(field).second) {
                    shownAgain.insert(field);
                } else {
                    EXPECT_GT(place->position, last) << page << " " << field;
                    last = place->position;
                }
            }
    }
    EXPECT_EQ(notOnScreen,
              (std::set<std::string>{"ValidUpto", "txtStreet1", "txtStreet2", "\"No Details tobe filled\""}));
    EXPECT_EQ(shownAgain, std::set<std::string>{"IsComplyWithRegul75"});
}

// What the paper asks in other words than the screen, or asks alone. A question that stands more than once: each.
const std::map<std::string, std::string, std::less<>> otherWords = {
    {"txtTikaNo", "Proposed F.A.R(In Sq.Mtrs)"},
    {"NameOfApplcant", "Full Name Of Applicant"},
    {"AddOfApplcant", "Address Of Applicant "},
    {"txtArchNm", "Name of licensed Architect / Engineer / Structural Engineer / Supervisor "},
    {"txtRegNm", "Address"},
    {"ValidUpto", "Number & Date of issue of the license|Valid upto"},
    {"txtNetArea", "Net area"},
    {"txtAreaAllowed",
     "If so, what is the area allowed for development? (Permission will be based on the minimum of areas in (a),(c) or "
     "(f) above)"},
    {"Opt3Y", "Area all plans as required under Rull No. 16.2 enclosed?"},
    {"DTPicker2", "Please State Sub-Division layout Date"},
    {"txtAverage", "What is the Average?"},
    {"txtStreet1", "Pescribed width|Existing width of the street"},
    {"txtStreet2", "Pescribed width|Existing width of the street"},
    {"txtFstExistingWidth", "Existing width of the street"},
    {"txtExistingWidthStreet", "Existing width of the street"},
    {"txtHeightOfBuilding", "What is the height of building?"},
    {"Opt18Y", "Is Development rights proposed? "},
    {"txtDevRights", "Is Development rights proposed? "},
    {"txtOverAllFloorArea", "Please State Overall floor space"},
    {"txtTotalNoOfTenements", "What is the total number of tenements?(item 10(a) plus item 10(c))"},
    {"IsAbutsTwoMoreStreets", "If the building abuts two or more streets ?"},
    {"txtWidthOfSideOpenSpace", "the Width of side open space(s)?"},
    {"txtWidthOfRearOpenSpace", "the Width of rear open space(s)?"},
    {"txtDistanceBetweenBldg", "the Distance between buildings?"},
    {"IsPlotNarrow", "Is the plot is narrow?"},
    {"IsComplyWithRegul75", "Are there two or more wings to the building?"},
    {"txtAttachDoc", "Attach necessary plans and documents in support of right of way."},
    {"\"No Details tobe filled\"",
     "Does the proposal fall under the category of tower like structure vide Regulation 79?"},
    {"IsSetbackProvideRegula43", "Is the necessary set-back provided as per Rule No.9.1?"},
    {"txtNotComply",
     "Please explain in detail in what respect the proposal does not comply with D.C Rules and the reasons, thereof, "
     "attaching a separate sheet if necessary."},
};

TEST_F(ParticularsPapersScreenTest, EachAnswerStandsBesideItsQuestion) {
    std::map<std::string, std::string, std::less<>> differing;
    for (const std::string_view page : pages)
        for (const Asked& question : questionsOf(pageOf(page)))
            for (const std::string& field : question.fields) {
                const Place* const place = placeOf(field);
                if (place && trim(place->question) == trim(question.words))
                    continue;
                std::string& words = differing[field];
                words += (words.empty() ? "" : "|") + question.words;
            }
    EXPECT_EQ(differing, otherWords);
}

}  // namespace
}  // namespace plandesk::test
