// The fifteen tests of the first page, each of which also holds the focus in its field.

#include <algorithm>
#include <string>

#include "base/Text.h"
#include "controls/Meaning.h"
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

/// Whether the test passes. A failure is told in a message and gives its field the focus, on the first tab.
bool passes(const FirstPageTest& test, frmAnnexureA& form) {
    if (!fails(test, form))
        return true;
    Control& field = form.at(test.field);
    {
        const Meaning meant(form.screen(), field);
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
        at(test.leaving.empty() ? test.field : test.leaving).leaveCheck = [this, &test] { return passes(test, *this); };
    txtArchMiddName.leaveCheck = [] { return true; };
}

bool frmAnnexureA::validateAnnexureFirstPage() {
    return std::ranges::all_of(firstPageTests, [this](const FirstPageTest& test) { return passes(test, *this); });
}

std::vector<frmAnnexureA::FirstPageFault> frmAnnexureA::firstPageFaults() const {
    std::vector<FirstPageFault> faults;
    for (const FirstPageTest& test : firstPageTests)
        if (fails(test, *this))
            faults.push_back({&at(test.field), messageOf(test, *this)});
    return faults;
}

}  // namespace plandesk
