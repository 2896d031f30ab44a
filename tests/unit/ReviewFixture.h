#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "review/CarriedAnswers.h"
#include "review/Review.h"
#include "unit/FormEvents.h"

namespace plandesk::test {

/// A system whose proposal is reviewed.
struct ReviewFixture : ::testing::Test {
    FormEvents world;

    /// A new proposal with the answers that a save needs.
    void begin() {
        world.shell.press("mnuNew");
        world.fillFirstPage();
        world.proposal.forms.touch("AnnexureACont");
    }

    /// The same with land records, named and dated, and an order of each kind for the first extract: as much as there
    /// can be, and without a finding but of what never comes back.
    void beginWhole() {
        begin();
        world.relatePlots();
        Tables& tables = world.proposal.tables;
        const auto fill = [&](Tables::Member table, int column, const Value& value) {
            for (int row = 0; row < (tables.*table)->rowCount(); ++row)
                (tables.*table)->replace(row, column, value);
        };
        for (const Tables::Member table : {&Tables::rsPlot712, &Tables::rsPlotPRC})
            fill(table, PlotColumn::PlotName, "A");
        for (const Tables::Member table : {&Tables::rsExtract712, &Tables::rsExtractPRC})
            fill(table, ExtractColumn::SurveyNo, "7");
        for (const Tables::Member table : {&Tables::rsOwner712, &Tables::rsOwnerPRC})
            fill(table, OwnerColumn::Name, "Sham");
        for (const Tables::Member table : {&Tables::rsPAH712, &Tables::rsPAHPRC})
            fill(table, HolderColumn::Name, "Gauri");
        world.orderExtracts();
        // Each extract but the first was given a row in every table.
        for (const Tables::Member table :
             {&Tables::rsOwner712, &Tables::rsOwnerPRC, &Tables::rsPAH712, &Tables::rsPAHPRC, &Tables::rsULCOrderUS84,
              &Tables::rsUS84Plots, &Tables::rsULCOrderUS20a1, &Tables::rsSchemeBuilt, &Tables::rsSchemeSold,
              &Tables::rsULCOrderUS22}) {
            (tables.*table)->setFilter("ExtNo > 1");
            (tables.*table)->deleteVisible();
            (tables.*table)->setFilter("ExtNo = 1");
        }
        user::editCell(world.grid("frmUS84", "dgdTableAB"), 0, US84PlotColumn::Village, "Tervale");
        for (const auto& [form, text] : std::initializer_list<std::pair<std::string_view, std::string_view>>{
                 {"frmUS84", "txtCaseNumber"}, {"frmULC20aDetails", "txtCommonScheme(0)"}})
            world.box(form, text).setText("7");
        world.box("frmUS22", "txtAreaExistingStruct").setText("70");
        for (const std::string_view form : {"frmUS84", "frmULC20aDetails", "frmUS22"})
            user::click(world.button(form, "cmdSave"));
        world.ports.dialogs.take();
    }

    std::vector<Finding> found(FindingKind kind) {
        std::vector<Finding> findings = review(world.shell);
        std::erase_if(findings, [kind](const Finding& finding) { return finding.kind != kind; });
        return findings;
    }
    static const Finding* at(const std::vector<Finding>& findings, std::string_view form, std::string_view control) {
        const auto finding = std::ranges::find_if(
            findings, [&](const Finding& each) { return each.form == form && each.control == control; });
        return finding == findings.end() ? nullptr : &*finding;
    }
    static std::string lines(const std::vector<Finding>& findings) {
        std::string text;
        for (const Finding& finding : findings)
            text += lineOf(finding) + '\n';
        return text;
    }
    static std::set<std::string> lineSet(const std::vector<Finding>& findings) {
        std::set<std::string> set;
        for (const Finding& finding : findings)
            set.insert(lineOf(finding));
        return set;
    }
    /// Those whose lines are not among `known`.
    static std::vector<Finding> further(std::vector<Finding> findings, const std::set<std::string>& known) {
        std::erase_if(findings, [&](const Finding& finding) { return known.contains(lineOf(finding)); });
        return findings;
    }
    template <class Kind>
    Kind& control(std::string_view form, std::string_view key) {
        return world.World::control<Kind>(form, key);
    }
    Recordset& table(Tables::Member member) { return world.proposal.tables.ensure(member); }
};

}  // namespace plandesk::test
