#include "unit/roundtrip/RandomProposal.h"

#include "controls/Controls.h"

namespace plandesk::test {

void RandomProposal::fill() {
    for (const std::string_view form : {"frmAnnexureA", "AnnexureACont"})
        fillParticulars(*world.proposal.forms.touch(form));
    fillChecklist("frmDocCheckList", 9);
    fillChecklist("frmDocCheckList1", 14);
    fillPayment();
    if (!oneIn(5))
        fillRecords();
    fillDiscretion();
}

std::string RandomProposal::separator() {
    static constexpr std::string_view separators[] = {"@", "||", "|", "#", "~", "\\", "$$", "$", "-", "^#^", "||@"};
    return std::string(oneOf(separators));
}

std::string RandomProposal::odd() {
    static constexpr std::string_view texts[] = {"&",
                                                 "<",
                                                 ">",
                                                 "&amp;",
                                                 "<b/>",
                                                 "]]>",
                                                 "\"",
                                                 "'",
                                                 "  ",
                                                 "\n",
                                                 "\t",
                                                 "\xE0\xA4\x97\xE0\xA4\xBE\xE0\xA4\xB5",
                                                 "\xF0\x9F\x8F\xA0",
                                                 "%",
                                                 "1e3",
                                                 "1,5",
                                                 "-",
                                                 "+",
                                                 "."};
    return std::string(oneOf(texts));
}

std::string RandomProposal::text() {
    static constexpr std::string_view tame[] = {"", "1", "12.50", "Plot 7", "Sai Krupa", "0", "2", "1250.75", "x"};
    std::string result(oneOf(tame));
    if (oneIn(8))
        result = " " + result + "  ";
    while (spice > 0 && oneIn(8))
        result.append(separator()).append(oneOf(tame));
    while (spice > 1 && oneIn(spice == 2 ? 40 : 12))
        result.insert(0, odd());
    return result;
}

std::string RandomProposal::amount() {
    static constexpr std::string_view tame[] = {"", "0", "5", "12.5", "1000", "3.14159", "0.00", "-4"};
    static constexpr std::string_view odd[] = {"ten",
                                               "1..2",
                                               "5@x",
                                               "1\\2",
                                               "||",
                                               "1$$2",
                                               "'",
                                               "1,000",
                                               "&",
                                               " ",
                                               "\xC2\xA3"
                                               "5",
                                               "1e2"};
    return std::string(spice > 1 && oneIn(40) ? oneOf(odd) : oneOf(tame));
}

void RandomProposal::fillParticulars(Form& form) {
    for (Control* control : form.controls()) {
        const std::string& name = control->name();
        if (name.ends_with("Val") || name == "txtDocChkList" || name == "txtPayDetail" || name == "txtPathNm")
            continue;  // carriers
        if (auto* box = dynamic_cast<TextBox*>(control)) {
            if (!oneIn(4))
                box->setText(name.ends_with("Area") && !oneIn(6) ? std::to_string(below(40000)) : text());
        } else if (auto* option = dynamic_cast<OptionButton*>(control)) {
            if (oneIn(2))
                world.proposal.screen.event([&] { option->setValue(!oneIn(6)); });
        } else if (auto* list = dynamic_cast<ComboBox*>(control)) {
            if (!oneIn(8))
                list->setListIndex(static_cast<int>(below(static_cast<std::uint64_t>(list->listCount()))));
        } else if (auto* picker = dynamic_cast<DatePicker*>(control)) {
            picker->setDate({static_cast<int>(1900 + below(200)), static_cast<int>(1 + below(12)),
                             static_cast<int>(1 + below(28))});
        }
    }
}

void RandomProposal::fillChecklist(std::string_view form, int rows) {
    for (int row = 0; row < rows; ++row) {
        // The first row of the conditional list runs into the last mandatory one, which then lacks its first page.
        if (!oneIn(rows == 14 && row == 0 ? 20 : 3))
            continue;
        for (const int page : {2 * row, 2 * row + 1})
            world.box(form, "txtDocPageNo(" + std::to_string(page) + ")")
                .setText(spice > 1 && oneIn(20) ? " 7-8 " : std::to_string(1 + below(200)));
    }
}

void RandomProposal::fillPayment() {
    static constexpr std::string_view banks[] = {"Bank", " Sahakari Bank ", "77", "", "a~b", "C:\\bank", "a||b"};
    static constexpr std::string_view modes[] = {"OptCash", "OptCheque", "OptCheque", "OptDraft"};
    Form& form = *world.proposal.forms.touch("frmPayDetail");
    form.forEach<TextBox>([this](TextBox& box) {
        if (!oneIn(3))
            world.proposal.screen.event([&] { box.setText(amount()); });
    });
    for (const std::string_view box : {"txtChqDraftNo", "txtBankNm", "txtBranchNm"})
        world.box("frmPayDetail", box).setText(oneOf(banks));
    world.option("frmPayDetail", oneOf(modes)).setValue(true);
    world.control<DatePicker>("frmPayDetail", "DTPicker1").setDate({2024, 2, static_cast<int>(1 + below(29))});
}

}  // namespace plandesk::test
