#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "controls/User.h"
#include "fees/frmDocCheckList.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/LandRecordColumns.h"
#include "unit/World.h"

namespace plandesk::test {

/// Plots and their extracts, ready to open the forms of the extracts.
struct Extracts : testing::Test, World {
    Tables& tables = proposal.tables;

    /// Plots "A", "B", ... of these counts, saved, so that each has its empty extracts.
    void relate(const std::vector<int>& counts, bool prc = false) {
        auto& relation = proposal.forms.get<frmPlotExtractRelation>();
        relation.open();
        if (prc)
            relation.SSTab1.setTab(1);
        (prc ? relation.txtNoOfPlot : relation.txtNoOfPlot712).setText(std::to_string(counts.size()));
        Grid& grid = prc ? relation.dgdPRCPlotRel : relation.dgd712ExtractRelation;
        for (int row = 0; row < static_cast<int>(counts.size()); ++row) {
            user::editCell(grid, row, PlotColumn::PlotName, std::string(" Plot ") + static_cast<char>('A' + row) + " ");
            user::editCell(grid, row, PlotColumn::NoOfPRC, std::to_string(counts[static_cast<std::size_t>(row)]));
        }
        user::click(prc ? relation.cmdSave : relation.cmdSave712Relation);
        ports.dialogs.take();
    }
    frmMain712& open712() {
        proposal.forms.get<frmDocCheckList>().Image1_Click(0);
        return proposal.forms.get<frmMain712>();
    }
    frmPRCEXT& openPrc() {
        proposal.forms.get<frmDocCheckList>().Image1_Click(1);
        return proposal.forms.get<frmPRCEXT>();
    }
    static std::vector<std::string> rowTexts(const Recordset& table) {
        std::vector<std::string> texts;
        for (const auto& row : table.allRows()) {
            std::string text;
            for (const Value& value : row)
                text += (text.empty() ? "" : "|") + (isNull(value) ? "null" : valueText(value));
            texts.push_back(text);
        }
        return texts;
    }
    static std::vector<std::string> items(const ComboBox& list) {
        std::vector<std::string> texts;
        for (int item = 0; item < list.listCount(); ++item)
            texts.emplace_back(list.item(item));
        return texts;
    }
};

using Texts = std::vector<std::string>;

}  // namespace plandesk::test
