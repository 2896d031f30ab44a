// Figures that contradict each other within the proposal.

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/ExtractFamily.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "review/Checks.h"

namespace plandesk {

namespace {

/// The number that a text is, 0 for a blank one; nothing for any other.
std::optional<double> figure(std::string_view text) {
    if (trim(text).empty())
        return 0;
    if (!isNumeric(text))
        return std::nullopt;
    try {
        return toDouble(text);
    } catch (const RuntimeError&) {  // beyond the range of a double
        return std::nullopt;
    }
}

bool differ(double a, double b) {
    return std::isfinite(a) && std::isfinite(b) && formatAmount(a) != formatAmount(b);
}

std::string contradiction(std::string_view what, double worked, std::string_view stands) {
    return std::string(what) + " " + formatAmount(worked) + ", and not " + std::string(trim(stands)) + ".";
}

void considerBox(const Control& control, const std::string& sentence, Findings& findings) {
    for (const Question& question : questionsOf(control.form()))
        if (&question.control() == &control)
            findings.push_back(
                {FindingKind::Consider, control.form().name(), control.key(), -1, -1, wordsOf(question), sentence});
}

/// A box whose figure is the sum of others less others, wherever it is shown and filled in.
struct Sum {
    std::string_view form;
    std::string_view box;
    std::string_view added;
    std::string_view taken;
    std::string_view what;
};
constexpr std::array sums = std::to_array<Sum>({
    {"frmAnnexureA", "txtNetArea", "txtPltArea", "txtTotalAreaRoadDeduction", "The plot area less its deductions is"},
    {"frmAnnexureA", "txtTotalNoOfTenements", "txtNoTeneExist txtTenePropose", "",
     "The existing and the proposed tenements are"},
    {"frmPayDetail", "txtGrandTotal",
     "txtScrutinyRAmount txtScrutinyCAmount txtScrutinyINDAmount txtScrutinyRAmount2 txtScrutinyCAmount2 "
     "txtScrutinyINDAmount2 txtTotal txtDevAmtC txtDevAmtI txtCompoundFees txtOther",
     "", "All amounts together are"},
});

std::optional<double> total(const Form& form, std::string_view boxes) {
    double sum = 0;
    for (const std::string& key : split(boxes, " "))
        if (!key.empty()) {
            const std::optional<double> one = figure(form.at<TextBox>(key).text());
            if (!one)
                return std::nullopt;
            sum += *one;
        }
    return sum;
}

void tellSums(const Proposal& proposal, Findings& findings) {
    for (const Sum& sum : sums) {
        const Form* form = proposal.forms.loaded(sum.form);
        if (!form)
            continue;
        const auto& box = form->at<TextBox>(sum.box);
        const auto stands = figure(box.text());
        const auto added = total(*form, sum.added);
        const auto taken = total(*form, sum.taken);
        if (box.visible() && !trim(box.text()).empty() && stands && added && taken && differ(*stands, *added - *taken))
            considerBox(box, contradiction(sum.what, *added - *taken, box.text()), findings);
    }
}

/// A fee is its area times its rate.
struct Fee {
    std::string_view area;
    std::string_view rate;
    std::string_view amount;
};
constexpr std::array fees = std::to_array<Fee>({
    {"txtScrutinyRArea", "txtScrutinyRRate", "txtScrutinyRAmount"},
    {"txtScrutinyCArea", "txtScrutinyCRate", "txtScrutinyCAmount"},
    {"txtScrutinyIndArea", "txtScrutinyINDRate", "txtScrutinyINDAmount"},
    {"txtScrutinyRArea2", "txtScrutinyRRate2", "txtScrutinyRAmount2"},
    {"txtScrutinyCArea2", "txtScrutinyCRate2", "txtScrutinyCAmount2"},
    {"txtScrutinyIndArea2", "txtScrutinyINDRate2", "txtScrutinyINDAmount2"},
    {"txtArea", "txtRate", "txtTotal"},
    {"txtDevAreaC", "txtDevRateC", "txtDevAmtC"},
    {"txtDevAreaI", "txtDevRateI", "txtDevAmtI"},
});

void tellFees(const Proposal& proposal, Findings& findings) {
    const Form* form = proposal.forms.loaded("frmPayDetail");
    if (!form)
        return;
    for (const Fee& fee : fees) {
        const auto& amount = form->at<TextBox>(fee.amount);
        const auto area = figure(form->at<TextBox>(fee.area).text());
        const auto rate = figure(form->at<TextBox>(fee.rate).text());
        const auto stands = figure(amount.text());
        if (area && rate && stands && differ(*stands, *area * *rate))
            considerBox(amount, contradiction("The area times its rate is", *area * *rate, amount.text()), findings);
    }
}

/// The permission goes by the least of the areas of the plot, of the site and net.
void tellAreaAllowed(const frmAnnexureA& form, Findings& findings) {
    const auto allowed = figure(form.txtAreaAllowed.text());
    if (!form.Opt2.yes.value() || !allowed || trim(form.txtAreaAllowed.text()).empty())
        return;
    std::optional<double> least;
    for (const TextBox* box : {&form.txtPltArea, &form.txtActualArea, &form.txtNetArea})
        if (const auto area = figure(box->text()); area && box->visible() && !trim(box->text()).empty())
            least = std::min(least.value_or(*area), *area);
    if (least && differ(*least, *allowed))
        considerBox(form.txtAreaAllowed,
                    contradiction("The least of plot, actual and net area is", *least, form.txtAreaAllowed.text()),
                    findings);
}

/// Overall floor space divided by the actual area.
void tellOverallRatio(const frmAnnexureA& form, Findings& findings) {
    constexpr double unlike = 0.01;
    const auto ratio = figure(form.txtTotTene.text());
    const auto space = figure(form.txtOverAllFloorArea.text());
    const auto area = figure(form.txtActualArea.text());
    if (!ratio || !space || !area || *ratio == 0 || *space == 0 || *area == 0)
        return;
    if (std::abs(*ratio - *space / *area) >= unlike)
        considerBox(form.txtTotTene,
                    contradiction("The overall floor space divided by the actual area is", *space / *area,
                                  form.txtTotTene.text()),
                    findings);
}

void tellPages(DocCheckList& list, Findings& findings) {
    for (DocumentRow& row : list.rows) {
        const auto from = figure(row.pageFrom.text());
        const auto to = figure(row.pageTo.text());
        if (row.enclosed.value() == 1 && from && to && *to > 0 && *to < *from)
            considerBox(
                row.pageTo,
                "The last page, " + row.pageTo.text() + ", stands before the first, " + row.pageFrom.text() + ".",
                findings);
    }
}

void tellChecklists(const Proposal& proposal, Findings& findings) {
    for (const std::string_view name : {frmDocCheckList::formName, frmDocCheckList1::formName})
        if (Form* form = proposal.forms.loaded(name))
            tellPages(*static_cast<DocCheckList*>(form), findings);
}

double valueAt(std::span<const Value> row, int column) {
    return valueNumber(row[static_cast<std::size_t>(column)]);
}

/// Numbers of plots and extracts beside what is listed.
struct Counts {
    const ExtractFamily& family;
    std::string_view plots;
    std::string_view extracts;
    std::string_view words;
};

void tellPlots(const Proposal& proposal, Findings& findings) {
    const Form* form = proposal.forms.loaded("frmPlotExtractRelation");
    if (!form)
        return;
    for (const Counts& counts : {Counts{family712, "txtNoOfPlot712", "txtNoOfExtract712", "7/12 extracts"},
                                 Counts{familyPRC, "txtNoOfPlot", "txtNoOfPrc", "property cards"}}) {
        const Recordset* plots = (proposal.tables.*counts.family.plots).get();
        const Recordset* extracts = (proposal.tables.*counts.family.extracts).get();
        double sum = 0;
        for (const std::span<const Value> plot : plots ? plots->allRows() : std::vector<std::span<const Value>>())
            sum += valueAt(plot, PlotColumn::NoOfPRC);
        const auto tell = [&](std::string_view key, double listed, std::string_view what) {
            const auto& box = form->at<TextBox>(key);
            const auto stands = figure(box.text());
            if (stands && *stands != listed)
                considerBox(box,
                            std::string(what) + " " + numberText(listed) + ", and not " + numberText(*stands) + ".",
                            findings);
        };
        tell(counts.plots, plots ? plots->rowCount() : 0, "The plots that are listed are");
        tell(counts.extracts, sum, "The plots together have");
        const double listed = extracts ? extracts->rowCount() : 0;
        if (listed > 0 && listed != sum)
            considerBox(form->at<TextBox>(counts.extracts),
                        "There are " + numberText(listed) + " " + std::string(counts.words) +
                            ", and the plots together have " + numberText(sum) + ".",
                        findings);
    }
}

/// A number in a row beside the rows of another table that have the row's number.
struct RowCount {
    Tables::Member table;
    int column;
    Tables::Member counted;
    std::string_view what;
};
constexpr std::array rowCounts = std::to_array<RowCount>({
    {&Tables::rsExtract712, ExtractColumn::NoOfOwners, &Tables::rsOwner712, "owners"},
    {&Tables::rsExtract712, ExtractColumn::NoOfPAHs, &Tables::rsPAH712, "holders"},
    {&Tables::rsExtractPRC, ExtractColumn::NoOfOwners, &Tables::rsOwnerPRC, "owners"},
    {&Tables::rsExtractPRC, ExtractColumn::NoOfPAHs, &Tables::rsPAHPRC, "holders"},
    {&Tables::rsULCOrderUS84, US84OrderColumn::NoOfPlots, &Tables::rsUS84Plots, "plots"},
});

/// Calls `tell` with each row of the table, its place and its number.
template <class Tell>
void forEachRow(const Proposal& proposal, Tables::Member member, const Tell& tell) {
    const Recordset* table = (proposal.tables.*member).get();
    if (!table)
        return;
    const std::size_t key = keyColumnOf(*table);
    int place = 0;
    for (const std::span<const Value> row : table->allRows()) {
        if (const auto* number = std::get_if<std::int32_t>(&row[key]))
            tell(row, place, *number);
        ++place;
    }
}

void tellRowCounts(const Proposal& proposal, Words& words, Findings& findings) {
    for (const RowCount& count : rowCounts)
        forEachRow(proposal, count.table, [&](std::span<const Value> row, int place, std::int32_t number) {
            const Recordset* counted = (proposal.tables.*count.counted).get();
            const auto rows = counted ? counted->rowsOfKey(number) : std::vector<std::span<const Value>>();
            const auto listed = static_cast<double>(rows.size());
            const double said = valueAt(row, count.column);
            // A row without an answer, as each new extract gets, need not be counted.
            const auto carried = std::ranges::find(carriedTables(), count.counted, &CarriedTable::table);
            const auto filled = static_cast<double>(
                std::ranges::count_if(rows, [&](const auto& each) { return !carried->isNone(*counted, each); }));
            if (said != listed && said != filled)
                findings.push_back(words.finding(FindingKind::Consider, words.cell(count.table, place, count.column),
                                                 numberText(said) + " " + std::string(count.what) + " are told, and " +
                                                     numberText(listed) + " are listed."));
        });
}

/// Total and surplus of an order under section 8(4), and the surplus that a scheme takes from it.
void tellOrders(const Proposal& proposal, Words& words, Findings& findings) {
    using Order = US84OrderColumn;
    const auto tell = [&](Tables::Member table, int place, int column, std::string sentence) {
        findings.push_back(words.finding(FindingKind::Consider, words.cell(table, place, column), std::move(sentence)));
    };
    const auto text = [](std::span<const Value> row, int column) {
        return valueText(row[static_cast<std::size_t>(column)]);
    };
    forEachRow(proposal, &Tables::rsULCOrderUS84, [&](std::span<const Value> row, int place, std::int32_t number) {
        const std::string total = text(row, Order::TotalAreaUnderOwnerShip);
        const std::string surplus = text(row, Order::Surplus);
        double plots = 0;
        if (const Recordset* table = proposal.tables.rsUS84Plots.get())
            for (const std::span<const Value> plot : table->rowsOfKey(number))
                plots += valueAt(plot, US84PlotColumn::TotalArea);
        const auto owned = figure(total);
        const auto deduction = figure(text(row, Order::AreaDeduction));
        const auto belt = figure(text(row, Order::GreenBelt));
        const auto left = figure(surplus);
        if (owned && !trim(total).empty() && differ(*owned, plots))
            tell(&Tables::rsULCOrderUS84, place, Order::TotalAreaUnderOwnerShip,
                 contradiction("The plots together have", plots, total));
        if (owned && deduction && belt && left && !trim(surplus).empty() &&
            differ(*left, *owned - (*deduction + *belt)))
            tell(&Tables::rsULCOrderUS84, place, Order::Surplus,
                 contradiction("The total less deduction and green belt is", *owned - (*deduction + *belt), surplus));
    });
    forEachRow(proposal, &Tables::rsULCOrderUS20a1, [&](std::span<const Value> row, int place, std::int32_t number) {
        const Recordset* orders = proposal.tables.rsULCOrderUS84.get();
        const auto order = orders ? orders->rowsOfKey(number) : std::vector<std::span<const Value>>();
        const std::string stands = text(row, US20a1OrderColumn::v);
        const std::string other = order.empty() ? "" : text(order.front(), Order::Surplus);
        const auto surplus = figure(other);
        const auto taken = figure(stands);
        if (surplus && taken && !trim(other).empty() && !trim(stands).empty() && differ(*surplus, *taken))
            tell(&Tables::rsULCOrderUS20a1, place, US20a1OrderColumn::v,
                 contradiction("The surplus of the order under section 8(4) is", *surplus, stands));
    });
}

}  // namespace

void findFigures(const Proposal& copy, Words& words, Findings& findings) {
    tellSums(copy, findings);
    tellFees(copy, findings);
    if (const auto* first = static_cast<const frmAnnexureA*>(copy.forms.loaded(frmAnnexureA::formName))) {
        tellAreaAllowed(*first, findings);
        tellOverallRatio(*first, findings);
    }
    tellChecklists(copy, findings);
    tellPlots(copy, findings);
    tellRowCounts(copy, words, findings);
    tellOrders(copy, words, findings);
}

}  // namespace plandesk
