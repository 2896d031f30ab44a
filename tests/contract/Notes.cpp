#include "contract/Notes.h"

#include <array>

#include "base/Text.h"
#include "landrecords/Encumbrances.h"
#include "proposal/ReferenceLists.h"
#include "ulc/Schemes.h"

namespace plandesk::contract {

namespace {

const std::vector<ElementNote>& allElementNotes() {
    static const std::vector<ElementNote> notes = {
        {"SECTION-I/TIKANO", "always empty, and never read; the proposed F.A.R stands in `TOTALFSI`."},
        {"SECTION-I/THREE-TEXT", "has its third piece only when the second piece of `THREE-RAD` is 1.", {"{t}#{t}"}},
        {"SECTION-II/SEVEN-RAD", "the second to the fourth are 2 unless the first is 1."},
        {"SECTION-II/EIGHT-RAD",
         "all behind the first are 2 unless it is 1; the fifth is 2 unless the fourth is 1, the eighth and the ninth "
         "are 2 unless the seventh is 1."},
        {"SECTION-IV/ONEFOUR-RAD", "the second is 2 unless the first is 1."},
        {"SECTION-IV/ONESIX-RAD",
         "after a Yes to the first question the third is 2; after a No the second is 2; without an answer all are 2. A "
         "Yes to the first with no Yes to the second lacks one separator: `1#01#2` is No to the second, `1#21#2` no "
         "answer to it.",
         {"1#[02]1#2"}},
        {"SECTION-IV/ONESEVEN-RAD", "the second is 2 unless the first is 1."},
        {"SECTION-IV/ONEEIGHT-RAD", "the second is 2 unless the first is 1."},
        {"SECTION-V/TWOONE-RAD", "the answer of `TWOZERO` once more; that of the question itself is in no file."},
        {"SECTION-V/TWOONE-TEXT", "the second and the third are digits of yes/no questions."},
        {"SECTION-V/TWOFIVE-RAD", "the second is 2 unless the first is 1."},
        {.path = "DOCCHKLIST",
         .sentence =
             "an entry a document, `1-FROM-TO`, or `0-0-0` for one that is not enclosed. Nothing stands between the "
             "entry of the last mandatory document and that of the first conditional one: `1-7-91-11-12` is `1-7-9` "
             "and `1-11-12`. Whoever saves one checklist and then the first page alone leaves that one list, of 9 "
             "entries or of 14.",
         .text = "[^#]*",
         .looser = {"[01]-{t}-{t}(#[01]-{t}-{t}){8}", "[01]-{t}-{t}(#[01]-{t}-{t}){13}"}},
        {"PAYMENTDETAIL/PAYMODE",
         "a payment by draft has no mode: the four values behind it then stand one element earlier, beginning here, "
         "and `BRANCHNM` is empty."},
        {"NTS/a712Extract/NoOfExtract", "of the plots; how many extracts stand here may be another number."},
        {"NTS/a712Extract/Extract<n>/OWNER<n>",
         "no separator stands between the number of the encumbrance, which is one digit, and the owner type."},
        {"NTS/PRC/PRC<n>/Static", "without the ferfar number that `Static` of a 7/12 extract has."},
        {"NTS/PRC/PRC<n>/OWNER<n>", "the name is escaped, the owner type is not."},
        {"NTS/PRC/RemarkPRC", "holds the remark of the 7/12 extracts."},
        {"NTS/ULCORDER-SCRUTINY/EXTRACT-<n>",
         "the 7/12 extracts come first and have `712`, the property cards behind them `PRC`; the number runs on."},
        {"NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULC-US-84", "empty for an extract without such an order.", {""}},
        {.path = "NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULC-US-20a1",
         .sentence = "empty for an extract without such an order. An order whose scheme was never opened ends behind "
                     "its 17th `#`, without pairs.",
         .alternatives = {"", "({t}#){17}"},
         .fewest = 18},
        {"PLOT-REL",
         "the part for a plot comes once for each; the last one ends in `@->` too. After a save that ended in an error "
         "it may lack the plots, or be empty. The two numbers are as somebody typed them.",
         {""}},
        {"PLOT-PRCDETAILS", "as `PLOT-REL`, for the property cards.", {""}},
        {"NTS/NAOrder", "as `DISC-REV`."},
        {"DISC-REV", "always there but after a save that ended in an error."},
        {"DISC-NEW", "as `DISC-REV`."},
        {"ISSUEOFDRC", "stands only in files of the run of the program in which the form was saved.", {}, "lost"},
        {"TRANSFERDRC", "as `ISSUEOFDRC`.", {}, "lost"},
        {"UTILIZATIONDRC", "as `ISSUEOFDRC`.", {}, "lost"},
    };
    return notes;
}

std::vector<Code> caseTypeCodes() {
    std::vector<Code> codes;
    for (const CaseType& type : caseTypes)
        if (type.offered)
            codes.push_back({std::string(type.code), std::string(type.text)});
    return codes;
}

template <class Texts>
std::vector<Code> coded(const Texts& texts) {
    std::vector<Code> codes;
    for (const CodedText& each : texts)
        codes.push_back({std::string(each.code), std::string(trim(each.text))});
    return codes;
}

std::vector<Code> plotUseCodes() {
    std::vector<Code> codes;
    for (const std::string_view use : plotUses)
        codes.push_back({std::string(use), std::string(use)});
    return codes;
}

std::vector<Code> encumbranceCodes() {
    std::vector<Code> codes = {{"0", "none"}};
    for (const std::string_view each : encumbrances)
        codes.push_back({std::to_string(codes.size()), std::string(trim(each))});
    return codes;
}

std::vector<Code> schemeCodes() {
    std::vector<Code> codes = {{"-1", "none"}};
    for (std::size_t scheme = 0; scheme < schemeNames.size(); ++scheme)
        codes.push_back({std::to_string(scheme), scheme == 0 ? "none" : std::string(schemeNames[scheme])});
    return codes;
}

const std::vector<Code>& signing() {
    static const std::vector<Code> codes = {{"Sign", "Signed"}, {"PAH", "PAH Given"}};
    return codes;
}

const std::vector<Code>& ticked() {
    static const std::vector<Code> codes = {{"1", "Yes"}, {"0", "No"}};
    return codes;
}

constexpr std::string_view ownersHere =
    "comes back; the holders are looked for behind so many owners, whatever `NoOfOwner` says";
constexpr std::string_view holdersHere = "comes back; so many holders are read, whatever `NoOfPAH` says";
constexpr std::string_view bankDetail = "comes back; lost in a payment in cash";

constexpr std::array orders = std::to_array<OrderControls>({
    {"NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULC-US-84", "frmUS84", "loadUS84Order",
     "txtCaseNumber dtpResultDate txtApplicantName txtApplicantAddress txtTotAreaOwnerShip txtAreaDeduction "
     "txtGreenBelt txtSurplusArea txtSurveyNo"},
    {"NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULC-US-20a1", "frmULC20aDetails", "loadUS20a1Order",
     "cmbSchemaType IsUlCUS84Submitted txtDetails txtCommonScheme(0) txtCommonScheme(1) txtCommonScheme(2) "
     "txtCommonScheme(3) txtCommonScheme(4) txtCommonScheme(5) txtCommonScheme(6) txtCommonScheme(7) "
     "txtCommonScheme(8) txtCommonScheme(9) txtCommonScheme(10) txtCommonScheme(11) IsReservationCondition "
     "txtSpeDisScheme"},
    {"NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULC-US-22", "frmUS22", "loadUS22Order",
     "txtAreaExistingStruct txtLandAppurantArea"},
});

}  // namespace

std::span<const ElementNote> elementNotes() {
    return allElementNotes();
}

std::span<const OrderControls> orderControls() {
    return orders;
}

std::vector<ValueNote> valueNotes(Words& words) {
    return {
        {.path = "SECTION-I/CASETYPE",
         .value = 1,
         .reading = "comes back; lost without a major use of the plot",
         .codes = caseTypeCodes()},
        {.path = "SECTION-I/PROPOSALTYPE", .value = 1, .codes = plotUseCodes(), .mayBeEmpty = true},
        {.path = "SECTION-I/PROPOSEDPROJECT",
         .value = 1,
         .reading = "comes back; an empty one as the first of the list",
         .codes = coded(projects),
         .mayBeEmpty = true},
        {.path = "SECTION-I/SECTOR", .value = 1, .kind = Kind::Count, .mayBeEmpty = true, .example = "11"},
        {.path = "SECTION-I/APPLICANTNM", .value = 1, .reading = "comes back up to the first `~`"},
        {.path = "SECTION-I/ARCHINFO",
         .value = 1,
         .codes = {{"ARCH", "Architect"}, {"LE", "Licensed Engineer"}, {"SE", "Structural Engineer"}}},
        {.path = "SECTION-I/THREE-TEXT", .value = 3, .reading = "worked out anew: the smaller of the two areas"},
        {.path = "SECTION-I/TOTALFSI", .value = 1, .kind = Kind::Number, .example = "1.5"},
        {.path = "SECTION-II/SIX-A", .value = 1, .codes = coded(zones), .mayBeEmpty = true},
        {.path = "SECTION-II/NINE-TEXT", .value = 1, .example = "12.50"},  // one box in two elements
        {.path = "ANNEXUREB/Average", .value = 1, .example = "12.50"},
        {.path = "ANNEXUREB/IsAnyAccessoryBldgProposed",
         .value = 1,
         .reading = "comes back; a No clears the answer of `TWOTHREE-RAD`, read before it"},
        {.path = "DOCCHKLIST",
         .value = 27,
         .reading = "grows by the digit of the next value: `9` becomes `91` or `90`"},
        {.path = "DOCCHKLIST", .value = 28, .last = 30, .reading = "lost"},
        {.path = "DOCCHKLIST", .value = 31, .last = 45, .reading = "moves eight documents further on"},
        {.path = "DOCCHKLIST", .value = 46, .last = 54, .reading = "lost"},
        {.path = "DOCCHKLIST", .value = 55, .last = 69, .reading = "lost", .example = "0"},
        {.path = "SECTION-IV/ONESIX-RAD",
         .value = 2,
         .reading = "comes back; of `01` a Yes comes back, of `21` what the program starts with"},
        {.path = "SECTION-IV/ONESIX-RAD", .value = 3, .example = "2"},
        {.path = "SECTION-V/TWOONE-RAD", .value = 1, .reading = "comes back as the answer to this question"},
        {.path = "SECTION-V/TWOONE-TEXT",
         .value = 2,
         .reading = "the digit comes back and is written again; the question shows no answer",
         .kind = Kind::YesNo,
         .question = words.of("AnnexureACont", "opt21bi").question},
        {.path = "SECTION-V/TWOONE-TEXT",
         .value = 3,
         .kind = Kind::YesNo,
         .question = words.of("AnnexureACont", "opt21bii").question},
        {.path = "PAYMENTDETAIL/TOTALAMOUNT", .value = 1, .reading = "worked out anew"},
        {.path = "PAYMENTDETAIL/PAYMODE",
         .value = 1,
         .codes = {{"CASH", "Cash"}, {"PAYORDER", "Pay order"}},
         .example = "PAYORDER"},
        {.path = "PAYMENTDETAIL/PAYDATE", .value = 1, .reading = bankDetail},
        {.path = "PAYMENTDETAIL/DRAFTCHQNO", .value = 1, .reading = bankDetail},
        {.path = "PAYMENTDETAIL/BANKNAME", .value = 1, .reading = bankDetail},
        {.path = "PAYMENTDETAIL/BRANCHNM", .value = 1, .reading = bankDetail},
        {.path = "NTS/a712Extract/Extract<n>/OWNER<n>", .value = 2, .codes = signing(), .mayBeEmpty = true},
        {.path = "NTS/a712Extract/Extract<n>/OWNER<n>", .value = 3, .codes = encumbranceCodes()},
        {.path = "NTS/a712Extract/Extract<n>/OWNER<n>",
         .value = 4,
         .reading = "lost; with one, the encumbrance is no number, and all extracts behind this owner are not read",
         .example = ""},
        {.path = "NTS/a712Extract/Extract<n>/PAH<n>", .value = 2, .codes = ticked()},
        {.path = "NTS/PRC/PRC<n>/OWNER<n>", .value = 2, .codes = signing(), .mayBeEmpty = true},
        {.path = "NTS/PRC/PRC<n>/OWNER<n>", .value = 3, .codes = encumbranceCodes()},
        {.path = "NTS/PRC/PRC<n>/PAH<n>", .value = 2, .codes = ticked()},
        {.path = "ISSUEOFDRC", .value = 9, .question = "Licence architect or Surveyor"},
        {.path = "NTS/a712Extract/NoOfExtract", .value = 1, .reading = "not read: the plots tell it"},
        {.path = "NTS/PRC/NoOfPRC", .value = 1, .reading = "not read: the plots tell it"},
        {.path = "ANNEXUREB/Section9a3536", .value = 2, .last = 3, .reading = "comes back after a Yes to the first"},
        {.path = "NTS/a712Extract/Extract<n>/Static",
         .value = 3,
         .reading = "comes back; an empty one as today's date"},
        {.path = "NTS/PRC/PRC<n>/Static",
         .value = 3,
         .reading = "comes back; an empty one ends the reading of the block"},
        {.path = "NTS/a712Extract/Extract<n>/Static", .value = 6, .reading = "comes back; an empty one as 0"},
        {.path = "NTS/PRC/PRC<n>/Static", .value = 5, .reading = "comes back; an empty one as 0"},
        {.path = "NTS/a712Extract/Extract<n>/Static", .value = 5, .reading = ownersHere},
        {.path = "NTS/PRC/PRC<n>/Static", .value = 4, .reading = ownersHere},
        {.path = "NTS/a712Extract/Extract<n>/Static", .value = 7, .reading = holdersHere},
        {.path = "NTS/PRC/PRC<n>/Static", .value = 6, .reading = holdersHere},
        {.path = "NTS/a712Extract/Extract<n>/NoOfPAH", .value = 1, .reading = "not read: `Static` tells it"},
        {.path = "NTS/PRC/PRC<n>/NoOfPAH", .value = 1, .reading = "not read: `Static` tells it"},
        {.path = "PLOT-REL", .value = 3, .reading = "not read: the place tells it"},
        {.path = "PLOT-PRCDETAILS", .value = 3, .reading = "not read: the place tells it"},
        {.path = "NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULC-US-20a1",
         .value = 5,
         .reading = "comes back; the next save of the order's form puts today's date"},
        {.path = "NTS/PRC/RemarkPRC",
         .value = 1,
         .reading = "lost: the next file has the remark of the 7/12 extracts here too"},
        {.path = "NTS/ULCORDER-SCRUTINY/NOOFEXTRACT",
         .value = 1,
         .reading = "how many extracts are read here; counted anew"},
        {.path = "NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/AREADIVISION",
         .value = 1,
         .last = 2,
         .reading = "worked out anew from the extract"},
        {.path = "NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULCORDER",
         .value = 1,
         .reading = "worked out anew from the extract"},
        {.path = "NTS/ULCORDER-SCRUTINY/DOCCONTROLLINGOWNERSHIP",
         .value = 1,
         .codes = {{"1", "7/12 Utara(Extract)"}, {"2", "Property Card"}},
         .mayBeEmpty = true},
        {.path = "NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/AREADIVISION",
         .value = 3,
         .codes = words.itemsOf("frmScrutinyULC", "cmbDocStatus"),
         .open = true,
         .mayBeEmpty = true},
        {.path = "NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULCORDER",
         .value = 2,
         .codes = words.itemsOf("frmScrutinyULC", "cmbULCORDERDetails"),
         .open = true,
         .mayBeEmpty = true},
        {.path = "NTS/ULCORDER-SCRUTINY/EXTRACT-<n>/ULC-US-20a1",
         .value = 1,
         .codes = schemeCodes(),
         .open = true,
         .mayBeEmpty = true},
    };
}

}  // namespace plandesk::contract
