// The tree of the document, from the tables of the writer.

#include <algorithm>
#include <functional>
#include <map>
#include <set>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "contract/Notes.h"
#include "contract/Words.h"
#include "document/AnnexureB.h"
#include "document/DocumentBlocks.h"
#include "document/LandRecordBlocks.h"
#include "document/SectionRows.h"
#include "document/ULCScrutinyBlock.h"
#include "drc/DRCTable.h"
#include "drc/frmDRCTransfer.h"
#include "drc/frmDRCUtilisationForm.h"
#include "drc/frmIssuOfDRc.h"
#include "fees/PackedFees.h"
#include "fees/frmDiscretionNewCase.h"
#include "fees/frmDiscretionrevisedCase.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "fees/frmPayDetail.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "particulars/AnnexureACont.h"
#include "particulars/PackedSections.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk::contract {

namespace {

using Row = std::string_view;

Element leaf(std::string_view name, bool escaped, std::vector<Value> values) {
    Element element;
    element.name = name;
    element.escaped = escaped;
    element.values = std::move(values);
    return element;
}

Element parent(std::string_view name, std::vector<Element> children, Times times = Times::Once) {
    Element element;
    element.name = name;
    element.children = std::move(children);
    element.times = times;
    return element;
}

/// A list has its values behind one another; a single value is the whole text.
std::vector<Value> list(std::vector<Value> values, const std::string& separator = "#") {
    for (std::size_t i = 0; values.size() > 1 && i < values.size(); ++i)
        values[i].place.push_back({separator, static_cast<int>(i) + 1});
    return values;
}

Value counted(std::string_view question) {
    Value value;
    value.question = question;
    value.kind = Kind::Count;
    return value;
}

class Collector {
public:
    Element run() {
        std::vector<Element> root;
        for (const WrittenSection& section : writtenSections()) {
            std::vector<Element> children;
            for (const auto& [row, escape] : section.rows)
                children.push_back(ofRow(row, frmAnnexureA::formName, escape == Escape::Yes));
            root.push_back(parent(section.element, std::move(children)));
        }
        root.push_back(parent("SECTION-IV", packed(sectionFourRows, AnnexureACont::formName, true)));
        root.push_back(parent("SECTION-V", packed(sectionFiveRows, AnnexureACont::formName, true)));
        root.push_back(leaf("DOCCHKLIST", true, checklists()));
        root.push_back(payment());
        appendBlocks(root, BlockPlace::BehindSections);
        std::vector<Element> records;
        appendBlocks(records, BlockPlace::LandRecords);
        root.push_back(parent("NTS", std::move(records)));
        appendBlocks(root, BlockPlace::BehindLandRecords);
        Element document = parent("INWARDINFO", std::move(root));
        document.attribute = "DEPARTMENT";
        document.attributes = {"BP"};
        for (Element& child : document.children)
            setPaths(child, "");
        takeNotes(document);
        std::map<std::string, std::set<std::string>> asked;
        findAlike(document, asked);
        finish(document, asked);
        return document;
    }

private:
    Element ofRow(const PackedRow& row, std::string_view form, bool escaped) {
        std::vector<Value> values;
        for (const std::string& control : split(row.controls, " ")) {
            if (control.empty())
                continue;
            Value value = words.of(form, control);
            // The options of one group are one value.
            if (values.empty() || values.back().kind != Kind::Code || values.back().controls != value.controls)
                values.push_back(std::move(value));
        }
        return leaf(row.element, escaped, list(std::move(values)));
    }

    std::vector<Element> packed(std::span<const PackedRow> rows, std::string_view form, bool escaped) {
        std::vector<Element> elements;
        for (const PackedRow& row : rows) {
            elements.push_back(ofRow(row, form, escaped));
            elements.back().packed = true;
        }
        return elements;
    }

    Element payment() {
        std::vector<Element> elements = packed(paymentRows, frmPayDetail::formName, true);
        std::ranges::move(packed(secondScrutinyRows, frmPayDetail::formName, false), std::back_inserter(elements));
        return parent("PAYMENTDETAIL", std::move(elements));
    }

    /// Three values a row. Nothing stands between the last row of the one list and the first of the other.
    std::vector<Value> checklists() {
        std::vector<Value> values;
        int piece = 0;
        for (const auto& [form, kind] : {std::pair(frmDocCheckList::formName, &mandatoryDocuments),
                                         std::pair(frmDocCheckList1::formName, &conditionalDocuments)}) {
            for (int row = 0; row < kind->savedRows; ++row) {
                const bool glued = row == 0 && piece > 0;
                if (!glued)
                    ++piece;
                const auto& control =
                    dynamic_cast<const DocCheckList&>(words.form(form)).rows.at(static_cast<std::size_t>(row));
                int part = glued ? 3 : 1;
                for (const Control* each :
                     {static_cast<const Control*>(&control.enclosed), static_cast<const Control*>(&control.pageFrom),
                      static_cast<const Control*>(&control.pageTo)}) {
                    Value value = words.of(form, each->key());
                    value.place = {{"#", piece}, {"-", part++}};
                    if (each == &control.enclosed) {
                        value.codes = {{"1", "enclosed"}, {"0", "not enclosed"}};
                        value.kind = Kind::Code;
                        value.example = "1";
                    } else {
                        value.typed = "digits; 0 while the document is not enclosed";
                        value.example = std::to_string(++page);
                    }
                    if (glued && each == &control.enclosed) {
                        values.back().cut = Cut::BeforeLast;
                        value.cut = Cut::Last;
                    }
                    values.push_back(std::move(value));
                }
            }
        }
        return values;
    }

    void appendBlocks(std::vector<Element>& elements, BlockPlace place) {
        const std::map<std::string_view, std::function<Element()>> makers = {
            {"ANNEXUREB", [&] { return annexure(); }},
            {"a712Extract", [&] { return extracts(writtenExtracts()[0]); }},
            {"PRC", [&] { return extracts(writtenExtracts()[1]); }},
            {"NAOrder",
             [&] {
                 std::vector<Element> children;
                 for (const PackedRow& row : naOrderRows())
                     children.push_back(ofRow(row, frmNaOrder::formName, false));
                 return parent("NAOrder", std::move(children));
             }},
            {"ULCORDER-SCRUTINY", [&] { return orders(); }},
            {"PLOT-REL", [&] { return plots("PLOT-REL", &Tables::rsPlot712, "txtNoOfPlot712", "txtNoOfExtract712"); }},
            {"PLOT-PRCDETAILS",
             [&] { return plots("PLOT-PRCDETAILS", &Tables::rsPlotPRC, "txtNoOfPlot", "txtNoOfPrc"); }},
            {"DISC-REV", [&] { return revised(); }},
            {"DISC-NEW",
             [&] {
                 std::vector<Value> values;
                 for (const TextBox& box :
                      dynamic_cast<const frmDiscretionNewCase&>(words.form(frmDiscretionNewCase::formName)).txtRule)
                     values.push_back(words.of(frmDiscretionNewCase::formName, box.key()));
                 return leaf("DISC-NEW", false, list(std::move(values)));
             }},
            {"ISSUEOFDRC", [&] { return rights(frmIssuOfDRc::table, frmIssuOfDRc::formName); }},
            {"TRANSFERDRC", [&] { return rights(frmDRCTransfer::table, frmDRCTransfer::formName); }},
            {"UTILIZATIONDRC", [&] { return rights(frmDRCUtilisationForm::table, frmDRCUtilisationForm::formName); }},
        };
        for (const DocumentBlock& block : documentBlocks())
            if (block.place == place)
                elements.push_back(makers.at(block.element)());
    }

    Element annexure() {
        const auto formOf = [](AnnexureRow::Sheet sheet) {
            return sheet == AnnexureRow::Sheet::First ? frmAnnexureA::formName : AnnexureACont::formName;
        };
        std::vector<Element> children;
        for (const AnnexureRow& row : annexureRows()) {
            const bool question = row.form == AnnexureRow::ValueForm::YesNo;
            const std::string control = (question ? "" : "txt") + std::string(row.element);
            children.push_back(leaf(row.element, row.form == AnnexureRow::ValueForm::EscapedText,
                                    {words.of(formOf(row.sheet), control)}));
        }
        std::vector<Value> values;
        for (const StreetsAndTrees::Part& part : StreetsAndTrees::parts())
            values.push_back(words.of(formOf(part.sheet), part.control));
        children.push_back(leaf(streetsAndTrees, false, list(std::move(values))));
        return parent("ANNEXUREB", std::move(children));
    }

    /// A glued piece is the rest of the piece before it.
    Element joined(const JoinedRow& row, bool escaped, Times times = Times::Once) {
        std::vector<Value> values;
        int piece = 0;
        for (const JoinedPiece& each : row.pieces) {
            Value value = words.ofColumn(row.table, each.column);
            value.place = {{"#", each.glued ? piece : ++piece}};
            if (each.glued) {
                values.back().cut = Cut::First;
                value.cut = Cut::BehindFirst;
            }
            values.push_back(std::move(value));
        }
        Element element = leaf(row.element, escaped, std::move(values));
        element.times = times;
        return element;
    }

    static bool escapes(const JoinedRow& row) { return row.pieces.front().append == appendEscaped; }

    Element extracts(const WrittenExtracts& block) {
        std::vector<Element> children = {joined(block.statics, escapes(block.statics))};
        for (const auto& [count, row] : block.members) {
            children.push_back(
                leaf(count, false, {counted("how many elements " + std::string(row.element) + " follow")}));
            children.push_back(joined(row, escapes(row), Times::Numbered));
        }
        Value remark = words.of(frmMain712::formName, "txtRemark");  // in both blocks
        remark.question = words.of(block.form.formName, "txtRemark").question;
        return parent(block.element,
                      {leaf(block.count, false, {counted("how many extracts the plots have")}),
                       parent(block.extract, std::move(children), Times::Numbered),
                       leaf(block.remark, true, {std::move(remark)})},
                      Times::AtMostOnce);
    }

    Element orders() {
        std::vector<Element> children;
        for (const JoinedRow& row : orderRows()) {
            const bool plot = row.table == &Tables::rsUS84Plots;
            if (plot)
                children.push_back(
                    leaf("NO-OF-PLOT", false, {counted("how many elements " + std::string(row.element) + " follow")}));
            children.push_back(joined(row, escapes(row), plot ? Times::Numbered : Times::Once));
            if (row.table == &Tables::rsULCOrderUS20a1)
                appendPairs(children.back().values);
        }
        Element extract = parent("EXTRACT-", std::move(children), Times::Numbered);
        extract.attribute = "DOCTYPE";
        extract.attributes = {"712", "PRC"};
        Value controlling = words.of("frmScrutinyULC", "optDocCtrlOwn(0)");
        return parent(
            "ULCORDER-SCRUTINY",
            {leaf("DOCCONTROLLINGOWNERSHIP", false, {std::move(controlling)}),
             leaf("NOOFEXTRACT", false, {counted("how many extracts of both kinds there are")}), std::move(extract)},
            Times::AtMostOnce);
    }

    void appendPairs(std::vector<Value>& values) {
        const int before = static_cast<int>(values.size());
        for (int pair = 1; pair <= static_cast<int>(schemePairs()); ++pair) {
            for (const auto& [part, table, head] : {std::tuple(1, &Tables::rsSchemeBuilt, "first figure"),
                                                    std::tuple(2, &Tables::rsSchemeSold, "second figure")}) {
                Value value = words.ofColumn(table, pair - 1);
                value.question = "Row " + std::to_string(pair) + " of the scheme's table, " + head;
                value.form = "frmULC20aDetails";
                value.controls = {"dgdSchemeDetails"};
                value.place = {{"#", before + pair}, {"^", part}};
                values.push_back(std::move(value));
            }
        }
    }

    Element plots(std::string_view element, Tables::Member table, std::string_view plotBox,
                  std::string_view extractBox) {
        Value number = words.of(frmPlotExtractRelation::formName, plotBox);
        Value total = words.of(frmPlotExtractRelation::formName, extractBox);
        number.kind = total.kind = Kind::Count;
        number.place = {{"^#^", 1}};
        total.place = {{"^#^", 2}};
        std::vector<Value> values = {std::move(number), std::move(total)};
        int part = 0;
        for (const int column : {PlotColumn::SrNo, PlotColumn::PlotName, PlotColumn::NoOfPRC}) {
            Value value = words.ofColumn(table, column);
            value.place = {{"^#^", 3}, {"@->", 0}, {"$-$", ++part}};
            if (value.kind == Kind::Number)
                value.kind = Kind::Count;
            values.push_back(std::move(value));
        }
        return leaf(element, false, std::move(values));
    }

    Element revised() {
        const auto& form =
            dynamic_cast<const frmDiscretionrevisedCase&>(words.form(frmDiscretionrevisedCase::formName));
        std::vector<Element> children;
        for (std::size_t i = 0; i < form.txtRule.size(); ++i) {
            std::vector<Value> values;
            for (const Series<TextBox>* boxes : {&form.txtRule, &form.txtRuleC, &form.txtRuleD})
                values.push_back(words.of(form.name(), (*boxes)[i].key()));
            children.push_back(leaf("RULE-" + std::to_string(i + 1), false, list(std::move(values))));
        }
        return parent("DISC-REV", std::move(children));
    }

    Element rights(const DRCTable& table, std::string_view form) {
        std::vector<Value> values;
        for (std::size_t column = 0; column < table.sources.size(); ++column) {
            const DRCSource& source = table.sources[column];
            Value value;
            const std::string first = std::string(source.control) + "(0)";
            if (!source.control.empty()) {
                const bool array = !words.form(form).findKey(source.control);
                value = words.of(form, array && !source.chosen.empty() ? first : std::string(source.control));
            }
            if (!source.chosen.empty()) {
                value.kind = Kind::Code;
                value.codes = {{std::string(source.chosen), meaning(form, source, true)},
                               {std::string(source.otherwise), meaning(form, source, false)}};
            }
            if (source.control.empty() && !source.text)
                value.kind = Kind::Empty;
            const Value cell = words.ofColumn(table.table, static_cast<int>(column));
            value.table = cell.table;
            value.column = cell.column;
            values.push_back(std::move(value));
        }
        Element element = leaf(table.element, false, list(std::move(values)));
        element.times = Times::AtMostOnce;
        return element;
    }

    std::string meaning(std::string_view form, const DRCSource& source, bool chosen) {
        const Form& owner = words.form(form);
        if (owner.findKey(source.control))
            return chosen ? "ticked" : "not ticked";
        const std::string key = std::string(source.control) + (chosen ? "(0)" : "(1)");
        return std::string(trim(owner.at<OptionButton>(key).caption()));
    }

    static void setPaths(Element& element, const std::string& above) {
        element.path = above + element.name + (element.times == Times::Numbered ? "<n>" : "");
        for (Element& child : element.children)
            setPaths(child, element.path + "/");
    }

    static void index(Element& element, std::map<std::string, Element*, std::less<>>& byPath) {
        byPath[element.path] = &element;
        for (Element& child : element.children)
            index(child, byPath);
    }

    void takeNotes(Element& root) {
        std::map<std::string, Element*, std::less<>> byPath;
        index(root, byPath);
        const auto at = [&](std::string_view path) -> Element& {
            const auto found = byPath.find(path);
            if (found == byPath.end())
                throw RuntimeError(ErrorNumber::ItemNotFound, "a note tells of no element: " + std::string(path));
            return *found->second;
        };
        for (const OrderControls& order : orderControls()) {
            const std::vector<std::string> controls = split(order.controls, " ");
            for (std::size_t i = 0; i < controls.size(); ++i) {
                Value& value = at(order.path).values.at(i + static_cast<std::size_t>(order.first) - 1);
                const Value asked = words.of(order.form, controls[i]);
                value.form = asked.form;
                value.controls = asked.controls;
                value.question = asked.question;
                value.group = asked.group;
                value.unit = asked.unit;
                value.typed = asked.typed;
                if (asked.kind == Kind::YesNo || asked.kind == Kind::Date) {
                    value.kind = asked.kind;
                    value.mayBeEmpty = value.open = true;
                }
            }
        }
        for (const ElementNote& note : elementNotes()) {
            Element& element = at(note.path);
            element.note = note.sentence;
            element.alternatives = note.alternatives;
            element.text = note.text;
            for (Value& value : element.values)
                value.reading = note.reading;
        }
        for (const ValueNote& note : valueNotes(words)) {
            for (int number = note.value; number <= std::max(note.value, note.last); ++number)
                takeNote(at(note.path).values.at(static_cast<std::size_t>(number) - 1), note);
        }
    }

    static void takeNote(Value& value, const ValueNote& note) {
        if (!note.reading.empty())
            value.reading = note.reading;
        if (!note.codes.empty() || note.kind) {
            value.codes = note.codes;
            value.kind = note.kind.value_or(Kind::Code);
            value.mayBeEmpty = note.mayBeEmpty;
            value.open = note.open;
        }
        if (!note.question.empty())
            value.question = note.question;
        if (note.example)
            value.example = *note.example;
    }

    using Asked = std::map<std::string, std::set<std::string>>;

    static std::string askedBy(const Value& value) { return value.form + ": " + value.question; }

    /// Which controls of a form the same words ask for.
    static void findAlike(const Element& element, Asked& asked) {
        for (const Element& child : element.children)
            findAlike(child, asked);
        for (const Value& value : element.values)
            if (!value.controls.empty())
                asked[askedBy(value)].insert(value.controls.front());
    }

    /// Tells alike questions by their groups, gives each value an example of its own, and sees that each is told.
    void finish(Element& element, const Asked& asked) {
        for (Element& child : element.children)
            finish(child, asked);
        for (Value& value : element.values) {
            const auto alike = asked.find(askedBy(value));
            if (alike != asked.end() && alike->second.size() > 1 && !value.group.empty())
                value.question = value.group + ": " + value.question;
            if (value.question.empty())
                value.question = value.controls.empty() ? value.column : value.controls.front();
            if (value.kind == Kind::Code && value.codes.empty())
                throw RuntimeError(ErrorNumber::ItemNotFound, "nobody tells the codes of " + element.path);
            if (!value.example)
                value.example = exampleOf(value);
        }
    }

    std::string exampleOf(const Value& value) {
        ++next;
        switch (value.kind) {
        case Kind::YesNo:
            return "1";
        case Kind::Count:
            return "1";
        case Kind::Date:
            return (next % 28 < 9 ? "0" : "") + std::to_string(next % 28 + 1) + "/02/2003";
        case Kind::Code:
            return value.codes.front().code;
        case Kind::Number:
            return std::to_string(next) + ".5";
        case Kind::Empty:
            return "";
        default:
            return value.typed.empty()       ? "Text " + std::to_string(next)
                   : value.typed == "digits" ? std::to_string(next)
                                             : std::to_string(next) + ".50";
        }
    }

    Words words;
    int next = 0;
    int page = 0;
};

}  // namespace

Element collect() {
    return Collector().run();
}

}  // namespace plandesk::contract
