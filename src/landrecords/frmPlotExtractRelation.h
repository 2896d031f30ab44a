#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/Controls.h"
#include "landrecords/PlotNumbering.h"
#include "proposal/DataForm.h"
#include "proposal/ExtractFamily.h"
#include "proposal/Grid.h"

namespace plandesk {

/// How many plots the proposal has, and how many 7/12 extracts and PRCs belong to each: the master of all numbering. A
/// plot owns a run of consecutive extract numbers, so that saving a changed count renumbers every table keyed by
/// `ExtNo`.
class frmPlotExtractRelation : public DataForm {
public:
    static constexpr std::string_view formName = "frmPlotExtractRelation";

    explicit frmPlotExtractRelation(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void functionKey(std::string_view key) override;

    /// Shows the form on its first tab and takes the snapshot of the 7/12 plots that saves compare with.
    void open();
    /// Puts 0 into empty boxes and asks for a new `plotRelXML`, then a new `plotPrcDetailsXML`. RuntimeError 6 or 13
    /// for a total or count that is no 16-bit number; what was set by then stays.
    void Save712ExtractRaltionShip();
    void dgd712ExtractRelationColSetting();
    void dgdPRCPlotRelColSetting();

    Label lblHead{*this, "lblHead", " Plot Extract Relationship"};
    TabStrip SSTab1{*this, "SSTab1", 2};

    // Tab 0: 7/12
    Frame fra712{*this, "fra712", "Plot 7/12 Extract Relationship"};
    TextBox txtNoOfPlot712{*this, "txtNoOfPlot712"};
    Button cmdAddPlot{*this, "cmdAddPlot", "Add"};
    Grid dgd712ExtractRelation{*this, "dgd712ExtractRelation"};
    TextBox txtNoOfExtract712{*this, "txtNoOfExtract712"};
    Button cmdSave712Relation{*this, "cmdSave712Relation", "Save  Plot Relationship Information "};
    Button cmdRefereshExtract{*this, "cmdRefereshExtract", "Reset Plot Extract Relationship"};
    Button close712Extract{*this, "close712Extract", "Close"};
    Label Label5{*this, "Label5", keysCaption};

    // Tab 1: PRC
    Frame Frame1{*this, "Frame1", "Plot PRC Relationship"};
    TextBox txtNoOfPlot{*this, "txtNoOfPlot"};
    Button cmdAddPlotPRC{*this, "cmdAddPlotPRC", "Add"};
    Grid dgdPRCPlotRel{*this, "dgdPRCPlotRel"};
    TextBox txtNoOfPrc{*this, "txtNoOfPrc"};
    Button cmdSave{*this, "cmdSave", "Save  Plot Relationship Information "};
    Button cmdRefereshPRC{*this, "cmdRefereshPRC", "Reset Plot Extract Relationship"};
    Button cmdClose{*this, "cmdClose", "Close"};
    Label Label6{*this, "Label6", keysCaption};

private:
    static constexpr std::string_view keysCaption = "Press  {F3}  - Toggle      {F2} - Save     {Esc}  - Close";

    /// What the two tabs work on alike.
    struct Tab {
        const ExtractFamily& family;
        TextBox& plots;
        TextBox& total;
        Grid& grid;
        std::span<const GridColumn> columns;
        bool shrinks;               ///< a lower number of plots deletes the last ones
        bool keepsRow;              ///< a recount after a deletion comes back to the current row
        std::string_view enterKey;  ///< key that Enter on a count sends to the next row
        std::string_view unloads;   ///< form that a save unloads, so that it is built afresh
        std::string_view message;
    };

    void wire(const Tab& tab);
    void rebind(const Tab& tab);
    void SSTab1_Click();
    void plotsChanged(const Tab& tab);
    void recount(const Tab& tab);
    bool enterOnGrid(const Tab& tab);
    void saveRelation(const Tab& tab);
    std::string savedMeaning(const Tab& tab);
    void applyNumbers(const ExtractFamily& family, const NumberChanges& changes);
    void reset(const Tab& tab);
    bool confirmDelete();
    void plotDeleted();
    void leaveRelation(const Tab& tab);

    Fixed<Tab> tab712;
    Fixed<Tab> tabPRC;
    bool rowBeingDeleted = false;
};

}  // namespace plandesk
