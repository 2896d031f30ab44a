// The fifteen tests of the first page, each of which also holds the focus in its field.

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "controls/Meaning.h"
#include "controls/Naming.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

/// Fails when `field`, and `other` where there is one, are empty or have no item chosen.
struct FirstPageTest {
    std::string_view field;
    std::string_view message;
    std::string_view other{};
    std::string_view leaving{};    ///< control that it holds the focus from leaving, where that is not `field`
    std::string_view captionOf{};  ///< label whose caption and a blank stand before the message
    std::string_view title{};
};

// The order of the tests is not that of the screen.
constexpr auto firstPageTests = std::to_array<FirstPageTest>({
    {"txtTitle", "Proposal Title Can not be blank !"},
    {"cboCaseType", "Case Type Can not be blank !"},
    {"cboProposalTyp", "Major use of plot Can not be blank !"},
    {"cboProposProj", "Proposed Project Can not be blank !"},
    {"cboSector", "Village Name Can not be blank !"},
    {"txtpltno", "Survey No.Can not be blank !"},
    {"txtFPNo", "Plot No. / CTS No. can't blank !", "txtCTSNo", "txtGutNo"},
    {"txtTikaNo", "Proposed F.A.R Can not be blank !"},
    {"txtApplicantNm", "Applicant Name Can not be blank !"},
    {"txtApplicantAddr", "Applicant Address Can not be blank !"},
    {"txtArchNm", "Last Name Can not be blank !"},
    {"txtArchFirstName", " Can not be blank !", "", "", "lblfName", "Particulars of development ! "},
    {"txtRegNm", "Registration No. Can not be blank !"},
    {"txtPltArea", "Plot Area Can not be blank !"},
    {"txtActualArea", "Actual Area Can not be blank !"},
});

bool isEmpty(const Control& control) {
    if (const auto* list = dynamic_cast<const ComboBox*>(&control))
        return list->listIndex() < 0;
    return trim(dynamic_cast<const TextBox&>(control).text()).empty();
}

bool fails(const FirstPageTest& test, const Form& form) {
    return isEmpty(form.at(test.field)) && (test.other.empty() || isEmpty(form.at(test.other)));
}

std::string messageOf(const FirstPageTest& test, const Form& form) {
    std::string text(test.message);
    if (!test.captionOf.empty())
        text = form.at<Label>(test.captionOf).caption() + " " + text;
    return text;
}

/// What the message calls its field.
std::string nameOf(const FirstPageTest& test, const Form& form) {
    const std::string text = messageOf(test, form);
    const std::size_t end = std::min(text.find("Can not"), text.find("can't"));
    return std::string(trim(std::string_view(text).substr(0, end)));
}

/// The second line of the message: the field with its page, then `held`, what the failure keeps from happening, and
/// which further answers would.
std::string meaningOf(const FirstPageTest& test, const Form& form, std::string_view held) {
    const std::string_view caption = trim(form.caption());
    std::string meaning = std::string(caption) + ", page 1" + placeOf(form.at(test.field)).substr(caption.size());
    if (held.empty())
        return meaning;
    meaning.append("\n").append(held);
    std::string further;
    for (const FirstPageTest& other : firstPageTests)
        if (&other != &test && fails(other, form))
            further += (further.empty() ? "" : ", ") + nameOf(other, form);
    return further.empty() ? meaning : meaning + "\nPage 1 still lacks too: " + further + ".";
}

/// Whether the test passes. A failure is told in a message and gives its field the focus, on the first tab.
bool passes(const FirstPageTest& test, frmAnnexureA& form, std::string_view held) {
    if (!fails(test, form))
        return true;
    Control& field = form.at(test.field);
    {
        const Meaning meant(form.screen(), field, meaningOf(test, form, held));
        form.screen().message(messageOf(test, form), test.title);
    }
    form.goToTab(0);
    form.show();
    field.setFocus();
    return false;
}

}  // namespace

void frmAnnexureA::wireFirstPageTests() {
    for (const FirstPageTest& test : firstPageTests)
        at(test.leaving.empty() ? test.field : test.leaving).leaveCheck = [this, &test] {
            return passes(test, *this, "");
        };
    txtArchMiddName.leaveCheck = [] { return true; };
}

bool frmAnnexureA::validateAnnexureFirstPage(std::string_view held) {
    return std::ranges::all_of(firstPageTests, [&](const FirstPageTest& test) { return passes(test, *this, held); });
}

std::vector<frmAnnexureA::FirstPageFault> frmAnnexureA::firstPageFaults() const {
    std::vector<FirstPageFault> faults;
    for (const FirstPageTest& test : firstPageTests)
        if (fails(test, *this))
            faults.push_back({&at(test.field), messageOf(test, *this)});
    return faults;
}

}  // namespace plandesk
