#include "document/ReadXML.h"

#include <algorithm>
#include <optional>
#include <span>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Answers.h"
#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/Meaning.h"
#include "document/AnnexureB.h"
#include "document/Pieces.h"
#include "document/SectionTables.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "fees/frmPayDetail.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

constexpr std::size_t checklistGroup = 5;
constexpr std::size_t feesGroup = 6;

constexpr std::size_t readGroups = 7;  // what lies behind is read by name or by other procedures
constexpr std::size_t mostFields = 35;

/// The rows of a checklist that the document's list fills, each from the entry of its own number.
struct ChecklistRows {
    DocCheckList& (*form)(Proposal& proposal);
    int first;
    int last;
};

constexpr ChecklistRows checklists[] = {
    {[](Proposal& proposal) -> DocCheckList& { return proposal.forms.get<frmDocCheckList>(); }, 0, 8},
    // The writer lists the rows of this form from 0 behind those of the other.
    {[](Proposal& proposal) -> DocCheckList& { return proposal.forms.get<frmDocCheckList1>(); }, 9, 13},
};

/// The parts of one entry of the checklists.
struct EntryPart {
    enum : int { Enclosed, From, To };
};

/// The fields of a group; none when there is no such group.
Pieces fieldsOf(const Pieces& groups, std::size_t number) {
    return number < groups.size() ? firstPieces(groups[number], "@", mostFields) : Pieces();
}

void appendDoubled(std::string& groups, std::string_view text) {
    for (std::size_t backslash; (backslash = text.find('\\')) != std::string_view::npos;) {
        groups.append(text.substr(0, backslash + 1)).append("\\");
        text.remove_prefix(backslash + 1);
    }
    groups += text;
}

void answerQuestion(const YesNoOptions& question, double number, bool strict) {
    if (!strict && number != 0 && number != 1 && number != 2)
        return;
    question.yes.setValue(number == 1);
    question.no.setValue(number == 0);
}

void assign(Form& form, std::string_view name, std::string_view text) {
    Control* control = form.find(name);
    if (auto* box = dynamic_cast<TextBox*>(control))
        box->setText(text);
    else if (auto* picker = dynamic_cast<DatePicker*>(control))
        picker->setDate(toDate(text));
    else
        answerQuestion(question(form, name), toDouble(text), false);
}

std::string_view part(const Pieces& fields, int field, int number) {
    const std::string_view value = at(fields, static_cast<std::size_t>(field));
    return number == FieldRow::whole ? value : piece(value, "#", static_cast<std::size_t>(number));
}

const Control* controlOf(const FieldRow& row, const Form& form) {
    const Control* control = form.find(row.control);
    const Control* yes = control ? control : form.find(std::string(row.control) + "Y");
    return yes ? yes : form.find(row.control, 1);
}

void readRow(const FieldRow& row, Form& form, const Pieces& fields) {
    if (row.onlyIf.field >= 0 && toDouble(part(fields, row.onlyIf.field, row.onlyIf.part)) != 1)
        return;
    const std::string_view value = part(fields, row.field, row.part);
    switch (row.decode) {
    case Decode::Plain:
        return assign(form, row.control, value);
    case Decode::YesNoStrict:
        return answerQuestion(question(form, row.control), toDouble(value), true);
    case Decode::Special:
        return row.special(form, value);
    }
}

}  // namespace

void ReadXML::copyFrom(const ReadXML& original) {
    proposalDom = original.proposalDom;
    unreadText = original.unreadText;
    optionNumber = original.optionNumber;
}

void ReadXML::LoadDocument(const std::string& path) {
    // Nobody looks at the result: a document without a root tells its own tale below.
    const auto document = std::make_shared<XmlDocument>();
    const bool loaded = document->load(path);
    proposalDom = document;
    unreadText = loaded ? "" : path + " cannot be read, or is no well-formed XML file.";
}

bool ReadXML::LoadBytes(std::string_view bytes) {
    const auto document = std::make_shared<XmlDocument>();
    const bool loaded = document->loadBytes(bytes);
    proposalDom = document;
    unreadText = loaded ? "" : "The document is no well-formed XML file.";
    return loaded;
}

template <class Body>
void ReadXML::statement(const Body& body) {
    statement(nullptr, body);
}

template <class Body>
void ReadXML::statement(const Control* control, const Body& body) {
    try {
        std::optional<Meaning> meant;
        if (control)
            meant.emplace(proposal.screen, *control);
        body();
    } catch (const RuntimeError& error) {
        tell(error);
    }
}

void ReadXML::tell(const RuntimeError& error) {
    std::optional<Meaning> file;
    if (!unreadText.empty())
        file.emplace(proposal.screen, unreadText);
    proposal.screen.message(std::to_string(error.number) + " : " + error.description,
                            "Particular of Development (Read XML) ", Icon::Critical);
}

void ReadXML::readSections() {
    const std::string flattened = flatten();
    const Pieces groups = firstPieces(flattened, "||", readGroups);
    for (std::size_t number = 0; number < sectionTables().size(); ++number) {
        const SectionTable& table = sectionTables()[number];
        Form& form = *proposal.forms.touch(table.form);
        const Pieces fields = fieldsOf(groups, number);
        for (const FieldRow& row : table.rows)
            statement(controlOf(row, form), [&] { readRow(row, form, fields); });
    }
    readChecklists(groups);
    readFees(fieldsOf(groups, feesGroup));
    readAnnexureB();
}

// Nothing escapes the separators: an "@" or "||" typed in a value shifts or cuts what follows, and a backslash comes
// back doubled.
std::string ReadXML::flatten() const {
    std::string groups;
    if (proposalDom->root() == XmlDocument::none)
        return groups;
    for (auto child = proposalDom->firstChild(proposalDom->root()); child != XmlDocument::none;
         child = proposalDom->nextSibling(child)) {
        if (equalsIgnoringCase(proposalDom->name(child), "NTS"))
            continue;
        for (auto field = proposalDom->firstChild(child); field != XmlDocument::none;
             field = proposalDom->nextSibling(field)) {
            appendDoubled(groups, proposalDom->text(field));
            groups += "@";
        }
        groups += "||";
    }
    return groups;
}

void ReadXML::readChecklists(const Pieces& groups) {
    std::string_view entries;
    statement([&] {
        entries = at(groups, checklistGroup);
        if (entries.empty())
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        entries.remove_suffix(1);
    });
    for (const ChecklistRows& rows : checklists)
        readChecklist(rows.form(proposal), rows.first, rows.last, entries);
}

void ReadXML::readChecklist(DocCheckList& form, int first, int last, std::string_view entries) {
    for (int number = first; number <= last; ++number) {
        std::optional<std::string_view> entry;
        DocumentRow& row = form.rows.at(static_cast<std::size_t>(number));
        statement(&row.enclosed, [&] { entry = piece(entries, "#", static_cast<std::size_t>(number)); });
        statement(&row.enclosed, [&] { row.enclosed.setValue(0); });
        statement(&row.pageFrom, [&] { row.pageFrom.setText(""); });
        statement(&row.pageTo, [&] { row.pageTo.setText(""); });
        if (!entry)
            continue;
        statement(&row.enclosed, [&] {
            if (toDouble(piece(*entry, "-", EntryPart::Enclosed)) == 1)
                row.enclosed.setValue(1);
        });
        const auto readPage = [&](std::size_t part, TextBox& page) {
            statement(&page, [&] {
                if (const std::string_view number = piece(*entry, "-", part); toDouble(number) != 0)
                    page.setText(number);
            });
        };
        readPage(EntryPart::From, row.pageFrom);
        if (std::ranges::count(*entry, '-') >= EntryPart::To)  // no page to is no failure
            readPage(EntryPart::To, row.pageTo);
    }
}

void ReadXML::readFees(const Pieces& fields) {
    const FeeTables& tables = feeTables();
    auto& form = proposal.forms.get<frmPayDetail>();
    const auto read = [&](std::span<const FieldRow> rows) {
        for (const FieldRow& row : rows)
            statement(controlOf(row, form), [&] { readRow(row, form, fields); });
    };
    read(tables.fees);
    bool cash = false;
    statement(&form.OptCash, [&] {
        cash = part(fields, tables.modeField, FieldRow::whole) == "CASH";
        (cash ? form.OptCash : form.OptCheque).setValue(true);
    });
    if (!cash)  // with cash, what the file holds of date, number, bank and branch is dropped
        read(tables.bankDetails);
    read(tables.secondScrutiny);
}

std::vector<ReadXML::Named> ReadXML::namedControls() {
    constexpr std::string_view prefix = "txt";
    std::vector<Named> named;
    const std::array<const Form*, 2> forms = {&proposal.forms.get<frmAnnexureA>(),
                                              &proposal.forms.get<AnnexureACont>()};
    for (const Form* form : forms) {
        for (Control* control : form->controls()) {
            const std::string_view name = control->name();
            if (control->kind() == ControlKind::OptionButton)
                named.push_back({name, control});
            else if (control->kind() == ControlKind::TextBox &&
                     equalsIgnoringCase(name.substr(0, prefix.size()), prefix))
                named.push_back({name.substr(prefix.size()), control});
        }
    }
    return named;
}

void ReadXML::readAnnexureB() {
    if (proposalDom->root() == XmlDocument::none)
        return;
    const std::vector<Named> controls = namedControls();
    optionNumber = 0;
    for (auto child = proposalDom->firstChild(proposalDom->root()); child != XmlDocument::none;
         child = proposalDom->nextSibling(child)) {
        if (!equalsIgnoringCase(proposalDom->name(child), "ANNEXUREB"))
            continue;
        for (auto element = proposalDom->firstChild(child); element != XmlDocument::none;
             element = proposalDom->nextSibling(element))
            readNamed(element, controls);
    }
}

void ReadXML::readNamed(XmlDocument::Node element, std::span<const Named> controls) {
    const std::string_view name = proposalDom->name(element);
    const std::string_view text = proposalDom->text(element);
    if (name == streetsAndTrees)
        readStreetsAndTrees(text);
    for (const Named& named : controls) {
        if (named.element.size() != name.size() || !equalsIgnoringCase(named.element, name))
            continue;
        Control* const control = named.control;
        if (control->kind() == ControlKind::TextBox) {
            statement(control, [&] { static_cast<TextBox*>(control)->setText(text); });
        } else {
            // A text that is no number leaves the number of the element before it in force.
            statement(control, [&] { optionNumber = toInteger16(text); });
            statement(control, [&] { setOptionFromText(*static_cast<OptionButton*>(control), optionNumber); });
        }
    }
}

void ReadXML::readStreetsAndTrees(std::string_view text) {
    auto& first = proposal.forms.get<frmAnnexureA>();
    auto& second = proposal.forms.get<AnnexureACont>();
    const auto read = [&](std::size_t part, TextBox& box) {
        statement(&box, [&] { box.setText(piece(text, "#", part)); });
    };
    double abutting = 2;
    statement(&first.Opt77.yes, [&] { abutting = toDouble(piece(text, "#", StreetsAndTrees::Abutting)); });
    if (abutting == 1) {
        statement(&first.Opt77.yes, [&] { first.Opt77.yes.setValue(true); });
        statement(&first.Opt77.no, [&] { first.Opt77.no.setValue(false); });
        read(StreetsAndTrees::ExistingWidth, first.txtFstExistingWidth);
        read(StreetsAndTrees::StreetWidth, first.txtFstStreetWidth);
    } else if (abutting == 0) {
        statement(&first.Opt77.no, [&] { first.Opt77.no.setValue(true); });
        statement(&first.Opt77.yes, [&] { first.Opt77.yes.setValue(false); });
    }
    read(StreetsAndTrees::Trees, second.txtHowManyTrees);
    read(StreetsAndTrees::TreesAffected, second.txtNoOfTreesAffected);
}

void setOptionFromText(OptionButton& option, int number) {
    if (option.index() == 1)
        option.setValue(number == 1);
    else if (option.index() == 0)
        option.setValue(number == 0);
}

}  // namespace plandesk
