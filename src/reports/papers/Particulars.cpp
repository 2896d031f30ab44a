#include "reports/papers/Particulars.h"

namespace plandesk {

Report particularsReport(std::string_view name, Paper (*layout)(), std::string_view procedure) {
    return {
        .name = name,
        .feed = &feedParticulars,
        .procedure = procedure,
        .shownBy = ShownBy::Procedure,
        .window = pageWindow,
        .layout = layout,
    };
}

namespace layouts {

Paper particularsPage(std::string_view title, std::vector<PaperSection> body) {
    return {
        .title = title,
        .body = std::move(body),
        .footer = {{SectionKind::Letter,
                    {line({text("Dimensions will be considered as per drawing attached.")}, RowStyle::Centred)}}},
    };
}

PaperSection questions(const std::vector<Questions>& groups) {
    PaperSection section{.kind = SectionKind::Questions, .rows = {}};
    for (const Questions& group : groups)
        section.rows.insert(section.rows.end(), group.begin(), group.end());
    return section;
}

Questions lastQuestions(const LastNumbers& numbers, std::string_view materials) {
    return {
        question(numbers.materials, "", "", materials, {}),
        further("Roofs", {field("txtRoofs")}),
        further("Floors", {field("txtFloor")}),
        further("Walls", {field("txtWall")}),
        further("Columns", {field("txtColumns")}),
        further("Beams", {field("txtBeam")}),
        further("Any other item", {field("txtOtherItem")}),
        // Of the small numbers the paper has the first and the third only.
        question(numbers.closets, "", "i.", "Number of Water Closet Existing", {field("txtWaterCloset")}),
        further("Number of Baths Existing", {field("txtNoBath")}),
        question("", "", "iii.", "Number of Urinals Existing", {field("txtNoUrinal")}),
        further("Number of Kitchen Existing", {field("txtNoKitchen")}),
        question("", "", "i.", "Number of Water Closet Proposed", {field("txtNoOfWaterClosetProposed")}),
        further("Number of Baths Proposed", {field("txtNoOfBathsClosetProposed")}),
        question("", "", "iii.", "Number of Urinals Proposed", {field("txtNoOfUrinalsClosetProposed")}),
        further("Number of Kitchen Proposed", {field("txtNoOfKitchenClosetProposed")}),
        question(numbers.water, "", "", "The source of water to be used in the construction",
                 {field("txtWaterSource")}),
        question(numbers.sewer, "", "", "Distance from the sewer", {field("txtDistSwer")}),
        question(numbers.stacking, "", "", "How much Municipal land will be used for stacking building material?",
                 {field("txtMuncipalLand")}),
        question("35.", "", "", "How many trees on the site ?", {field("txtHowManyTrees")}),
        question("36.", "", "", "No of trees affected by proposed structure", {field("txtNoOfTreesAffected")}),
    };
}

PaperSection declaration() {
    return {SectionKind::Letter,
            {line({text("I hereby declare that I am the owner/leasse / mortagagee in possession of the plot on which "
                        "the work is proposed and that the statement made in this form are true and correct to the "
                        "best of my knowledge.")})}};
}

PaperSection signature() {
    return {SectionKind::Pairs,
            {
                pair("Signature of Applicant "),
                {{{}, {field("NameOfApplcant")}}},
                pair("Address", {field("AddOfApplcant")}),
            }};
}

}  // namespace layouts
}  // namespace plandesk
