// The tree of the document, from the tables of the writer.

#include <algorithm>
#include <functional>
#include <map>

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
        finish(document, words);
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
                 return parent("NAOrder", std::move(children), Times::AtMostOnce);
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
                 Element element = leaf("DISC-NEW", false, list(std::move(values)));
                 element.times = Times::AtMostOnce;
                 return element;
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
        Value extracts = counted("how many extracts the plots have");
        extracts.open = block.form.family.is712;                     // as the box holds it
        Value remark = words.of(frmMain712::formName, "txtRemark");  // in both blocks
        remark.question = words.of(block.form.formName, "txtRemark").question;
        return parent(block.element,
                      {leaf(block.count, false, {std::move(extracts)}),
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
        number.open = total.open = true;
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
        return parent("DISC-REV", std::move(children), Times::AtMostOnce);
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
            if (source.text) {
                value = words.ofText(source.text);
                value.mayBeEmpty = value.kind != Kind::Text;  // until the continuation is closed
            } else if (source.control.empty())
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

    Words words;
    int page = 0;
};

}  // namespace

Element collect() {
    return Collector().run();
}

}  // namespace plandesk::contract
