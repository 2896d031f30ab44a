#include "document/ReadXML.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "document/Answers.h"
#include "document/SectionTables.h"
#include "fees/frmPayDetail.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

constexpr std::size_t checklistGroup = 5;
constexpr std::size_t feesGroup = 6;
constexpr std::size_t payMode = 21;

/// A field of the payment detail and the box or picker of frmPayDetail that takes it.
struct FeeRow {
    std::size_t field;
    std::string_view element;
    std::string_view control;
};

constexpr std::array fees = std::to_array<FeeRow>({
    {0, "AREADEVRESI", "txtArea"},
    {1, "RATEDEVRESI", "txtRate"},
    {2, "AMTDEVRESI", "txtTotal"},
    {3, "AREADEVCOM", "txtDevAreaC"},
    {4, "RATEDEVCOM", "txtDevRateC"},
    {5, "AMTDEVCOM", "txtDevAmtC"},
    {6, "AREADEVIND", "txtDevAreaI"},
    {7, "RATEDEVIND", "txtDevRateI"},
    {8, "AMTDEVIND", "txtDevAmtI"},
    {9, "AREASCRUTINYRESI", "txtScrutinyRArea"},
    {10, "RATESCRUTINYRESI", "txtScrutinyRRate"},
    {11, "AMTSCRUTINYRESI", "txtScrutinyRAmount"},
    {12, "AREASCRUTINYCOM", "txtScrutinyCArea"},
    {13, "RATESCRUTINYCOM", "txtScrutinyCRate"},
    {14, "AMTSCRUTINYCOM", "txtScrutinyCAmount"},
    {15, "AREASCRUTINYIND", "txtScrutinyIndArea"},
    {16, "RATESCRUTINYIND", "txtScrutinyINDRate"},
    {17, "AMTSCRUTINYIND", "txtScrutinyINDAmount"},
    {18, "COMPUNDFEES", "txtCompoundFees"},
    {19, "OTHER", "txtOther"},
    {20, "TOTALAMOUNT", "txtGrandTotal"},
});

constexpr std::array bankDetails = std::to_array<FeeRow>({
    {22, "PAYDATE", "DTPicker1"},
    {23, "DRAFTCHQNO", "txtChqDraftNo"},
    {24, "BANKNAME", "txtBankNm"},
    {25, "BRANCHNM", "txtBranchNm"},
});

constexpr std::array secondScrutiny = std::to_array<FeeRow>({
    {26, "AREA-SCRUT-RESI-2", "txtScrutinyRArea2"},
    {27, "RATE-SCRUT-RESI-2", "txtScrutinyRRate2"},
    {28, "AMOUNT-SCRUT-RESI-2", "txtScrutinyRAmount2"},
    {29, "AREA-SCRUT-COMM-2", "txtScrutinyCArea2"},
    {30, "RATE-SCRUT-COMM-2", "txtScrutinyCRate2"},
    {31, "AMOUNT-SCRUT-COMM-2", "txtScrutinyCAmount2"},
    {32, "AREA-SCRUT-IND-2", "txtScrutinyIndArea2"},
    {33, "RATE-SCRUT-IND-2", "txtScrutinyINDRate2"},
    {34, "AMOUNT-SCRUT-IND-2", "txtScrutinyINDAmount2"},
});

const std::string& piece(const std::vector<std::string>& pieces, std::size_t number) {
    if (number >= pieces.size())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return pieces[number];
}

void answerQuestion(const YesNoOptions& question, double number, bool strict) {
    if (!strict && number != 0 && number != 1 && number != 2)
        return;
    question.yes->setValue(number == 1);
    question.no->setValue(number == 0);
}

void assign(Form& form, std::string_view name, const std::string& text) {
    Control* control = form.find(name);
    if (auto* box = dynamic_cast<TextBox*>(control))
        box->setText(text);
    else if (auto* picker = dynamic_cast<DatePicker*>(control))
        picker->setDate(toDate(text));
    else
        throw RuntimeError(ErrorNumber::ObjectNotSet);
}

std::string valueOf(const FieldRow& row, const std::vector<std::string>& fields) {
    const std::string& field = piece(fields, static_cast<std::size_t>(row.field));
    return row.part == FieldRow::whole ? field : piece(split(field, "#"), static_cast<std::size_t>(row.part));
}

void readRow(const FieldRow& row, Form& form, const std::vector<std::string>& fields) {
    if (row.onlyIf.field >= 0) {
        const std::string& flags = piece(fields, static_cast<std::size_t>(row.onlyIf.field));
        if (toDouble(piece(split(flags, "#"), static_cast<std::size_t>(row.onlyIf.part))) != 1)
            return;
    }
    const std::string value = valueOf(row, fields);
    switch (row.decode) {
    case Decode::Plain:
        return assign(form, row.control, value);
    case Decode::YesNo:
        return answerQuestion(findQuestion(form, row.control), toDouble(value), false);
    case Decode::YesNoStrict:
        return answerQuestion(findQuestion(form, row.control), toDouble(value), true);
    case Decode::Special:
        return row.special(form, value);
    }
}

}  // namespace

const std::array<ReadXML::Step, 6> ReadXML::steps = {{
    {"readPlotRelations", &ReadXML::readPlotRelations},
    {"readExtracts712", &ReadXML::readExtracts712},
    {"readExtractsPRC", &ReadXML::readExtractsPRC},
    {"readNAOrder", &ReadXML::readNAOrder},
    {"readULCScrutiny", &ReadXML::readULCScrutiny},
    {"readDiscretion", &ReadXML::readDiscretion},
}};

void ReadXML::LoadDocument(const std::string& path) {
    proposalDom.load(path);  // nobody looks at the result: a document without a root tells its own tale below
}

void ReadXML::statement(const std::function<void()>& body) {
    try {
        body();
    } catch (const RuntimeError& error) {
        proposal.screen.message(std::to_string(error.number) + " : " + error.description,
                                "Particular of Development (Read XML) ", Icon::Critical);
    }
}

void ReadXML::readSections() {
    flatten();
    for (std::size_t number = 0; number < sectionTables().size(); ++number)
        readSection(number);
    readChecklists();
    readFees();
    readAnnexureB();
}

// Nothing escapes the separators: an "@" or "||" typed in a value shifts or cuts what follows, and a backslash comes
// back doubled.
void ReadXML::flatten() {
    std::string all;
    if (proposalDom.root() != XmlDocument::none) {
        for (auto child = proposalDom.firstChild(proposalDom.root()); child != XmlDocument::none;
             child = proposalDom.nextSibling(child)) {
            if (equalsIgnoringCase(proposalDom.name(child), "NTS"))
                continue;
            for (auto field = proposalDom.firstChild(child); field != XmlDocument::none;
                 field = proposalDom.nextSibling(field))
                all.append(replaceAll(proposalDom.text(field), R"(\)", R"(\\)")).append("@");
            all += "||";
        }
    }
    groups = split(all, "||");
}

const std::string& ReadXML::group(std::size_t number) const {
    return piece(groups, number);
}

void ReadXML::readSection(std::size_t number) {
    const SectionTable& table = sectionTables()[number];
    Form& form = *proposal.forms.touch(table.form);
    const Fields fields = number < groups.size() ? split(groups[number], "@") : Fields();
    for (const FieldRow& row : table.rows)
        statement([&] { readRow(row, form, fields); });
}

void ReadXML::readChecklists() {
    Fields entries;
    statement([&] {
        std::string list = group(checklistGroup);
        if (list.empty())
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        list.pop_back();
        entries = split(list, "#");
    });
    readChecklist("frmDocCheckList", 0, 8, entries);
    // The conditional form's controls keep the numbers of the whole list.
    readChecklist("frmDocCheckList1", 9, 13, entries);
}

void ReadXML::readChecklist(std::string_view form, int first, int last, const Fields& entries) {
    Form& sheet = *proposal.forms.touch(form);
    const auto page = [&sheet](int number) { return static_cast<TextBox*>(sheet.find("txtDocPageNo", number)); };
    for (int i = first; i <= last; ++i) {
        Fields parts;
        statement([&] { parts = split(piece(entries, static_cast<std::size_t>(i)), "-"); });
        auto* check = static_cast<CheckBox*>(sheet.find("Check1", i));
        statement([&] { check->setValue(0); });
        statement([&] { page(2 * i)->setText(""); });
        statement([&] { page(2 * i + 1)->setText(""); });
        if (parts.empty())
            continue;
        statement([&] {
            if (toDouble(parts[0]) == 1)
                check->setValue(1);
        });
        statement([&] {
            if (toDouble(piece(parts, 1)) != 0)
                page(2 * i)->setText(parts[1]);
        });
        statement([&] {
            if (parts.size() > 2 && toDouble(parts[2]) != 0)
                page(2 * i + 1)->setText(parts[2]);
        });
    }
}

void ReadXML::readFees() {
    auto& form = proposal.forms.get<frmPayDetail>();
    const Fields fields = feesGroup < groups.size() ? split(groups[feesGroup], "@") : Fields();
    const auto read = [&](std::span<const FeeRow> rows) {
        for (const FeeRow& row : rows)
            statement([&] { assign(form, row.control, piece(fields, row.field)); });
    };
    read(fees);
    bool cash = false;
    statement([&] {
        cash = piece(fields, payMode) == "CASH";
        (cash ? form.OptCash : form.OptCheque).setValue(true);
    });
    if (!cash)  // with cash, what the file holds of date, number, bank and branch is dropped
        read(bankDetails);
    read(secondScrutiny);
}

void ReadXML::readAnnexureB() {
    optionNumber = 0;
    if (proposalDom.root() == XmlDocument::none)
        return;
    for (auto child = proposalDom.firstChild(proposalDom.root()); child != XmlDocument::none;
         child = proposalDom.nextSibling(child)) {
        if (!equalsIgnoringCase(proposalDom.name(child), "ANNEXUREB"))
            continue;
        for (auto element = proposalDom.firstChild(child); element != XmlDocument::none;
             element = proposalDom.nextSibling(element))
            readNamed(element);
    }
}

void ReadXML::readNamed(XmlDocument::Node element) {
    const std::string& name = proposalDom.name(element);
    const std::string text(proposalDom.text(element));
    if (name == "Section9a3536")
        readStreetsAndTrees(text);
    const std::array<Form*, 2> sheets = {&proposal.forms.get<frmAnnexureA>(), &proposal.forms.get<AnnexureACont>()};
    for (Form* form : sheets) {
        if (auto* box = dynamic_cast<TextBox*>(form->find("txt" + name)))
            statement([&] { box->setText(text); });
        for (const int index : {1, 0}) {
            auto* option = dynamic_cast<OptionButton*>(form->find(name, index));
            if (!option)
                continue;
            // A text that is no number leaves the number of the element before it in force.
            statement([&] { optionNumber = toInteger16(text); });
            statement([&] { setOptionFromText(*option, optionNumber); });
        }
    }
}

void ReadXML::readStreetsAndTrees(std::string_view text) {
    auto& first = proposal.forms.get<frmAnnexureA>();
    auto& second = proposal.forms.get<AnnexureACont>();
    const Fields parts = split(text, "#");
    double abutting = 2;
    statement([&] { abutting = toDouble(piece(parts, 0)); });
    if (abutting == 1) {
        statement([&] { first.Opt77.yes.setValue(true); });
        statement([&] { first.Opt77.no.setValue(false); });
        statement([&] { first.txtFstExistingWidth.setText(piece(parts, 2)); });
        statement([&] { first.txtFstStreetWidth.setText(piece(parts, 1)); });
    } else if (abutting == 0) {
        statement([&] { first.Opt77.no.setValue(true); });
        statement([&] { first.Opt77.yes.setValue(false); });
    }
    statement([&] { second.txtHowManyTrees.setText(piece(parts, 3)); });
    statement([&] { second.txtNoOfTreesAffected.setText(piece(parts, 4)); });
}

void ReadXML::requireRoot() const {
    if (proposalDom.root() == XmlDocument::none)
        throw RuntimeError(ErrorNumber::ObjectNotSet);
}

void ReadXML::readPlotRelations() {
    requireRoot();
}

void ReadXML::readExtracts712() {
    requireRoot();
}

void ReadXML::readExtractsPRC() {
    requireRoot();
}

void ReadXML::readNAOrder() {
    requireRoot();
}

void ReadXML::readULCScrutiny() {
    requireRoot();
}

void ReadXML::readDiscretion() {
    requireRoot();
}

void setOptionFromText(OptionButton& option, int number) {
    option.setValue(option.index() == 1 ? number == 1 : number == 0);
}

}  // namespace plandesk
