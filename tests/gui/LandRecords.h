#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "controls/User.h"
#include "desktop/GridTable.h"
#include "gui/Session.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk::test {

namespace land {

inline constexpr int infoOwners = 5;
inline constexpr int infoHolders = 7;
inline constexpr int name = 2;

struct Owner {
    std::string_view name;
    int status = -1;       ///< place in its list; -1: not chosen
    int encumbrance = -1;  ///< the same
    int type = -1;         ///< the same, of PRCs alone
};

struct Extract {
    std::vector<std::string_view> details;  ///< the cells from the survey number on, but for date and counts
    std::vector<Owner> owners;
    std::vector<std::string_view> holders;
    int signedHolder = 0;
};

inline void choose(Grid& owners, ComboBox& list, int row, int column, int item) {
    if (item < 0)
        return;
    user::clickCell(owners, row, column);
    user::pick(list, item);
}

inline void enter(ExtractForm& form, int place, const Extract& extract) {
    user::pick(form.cmbExtract, place);
    Grid& info = form.dgdInfoOfExtract;
    constexpr std::array detailColumns = {1, 2, 4, 6};
    for (std::size_t cell = 0; cell < extract.details.size(); ++cell)
        user::editCell(info, 0, detailColumns.at(cell), extract.details[cell]);
    user::editCell(info, 0, infoOwners, std::to_string(extract.owners.size()));
    user::editCell(info, 0, infoHolders, std::to_string(extract.holders.size()));
    int row = 0;
    for (const Owner& owner : extract.owners) {
        user::editCell(form.dgdOwner, row, name, owner.name);
        choose(form.dgdOwner, form.cmbOwnSingingStatus, row, 3, owner.status);
        choose(form.dgdOwner, form.cmbEncumber, row, 4, owner.encumbrance);
        choose(form.dgdOwner, form.cmbOwnType, row, 5, owner.type);
        ++row;
    }
    row = 0;
    for (const std::string_view holder : extract.holders)
        user::editCell(form.dgdPAH, row++, name, holder);
    user::pressCellButton(form.dgdPAH, extract.signedHolder, HolderColumn::PAHSing);
}

}  // namespace land

/// Two plots with three 7/12 extracts, and one with two PRCs; the relation form is left in front.
inline void enterPlots(Session& session) {
    session.press("mnuPlotExtRelationShip");
    auto& form = session.form<frmPlotExtractRelation>();
    user::type(form.txtNoOfPlot712, "2");
    Grid& plots = form.dgd712ExtractRelation;
    user::editCell(plots, 0, PlotColumn::PlotName, "Khandri North");
    user::editCell(plots, 0, PlotColumn::NoOfPRC, "2");
    user::editCell(plots, 1, PlotColumn::PlotName, "Khandri South, behind the temple");
    user::editCell(plots, 1, PlotColumn::NoOfPRC, "1");
    user::click(form.cmdSave712Relation);
    user::showTab(form.SSTab1, 1);
    user::type(form.txtNoOfPlot, "1");
    user::editCell(form.dgdPRCPlotRel, 0, PlotColumn::PlotName, "Ward 7");
    user::editCell(form.dgdPRCPlotRel, 0, PlotColumn::NoOfPRC, "2");
    user::click(form.cmdSave);
    user::showTab(form.SSTab1, 0);
}

/// Owners and holders of the first two 7/12 extracts; the form of the extracts is left in front, at the first of them.
inline void enterExtracts(Session& session) {
    session.press("mnu712Ext");
    auto& form = session.form<frmMain712>();
    land::enter(form, 1,
                {{"118", "2B", "4471", "1250.5"},
                 {{"Suresh Narayan Patil", 1, 2}, {"Meena Suresh Patil", 2, 6}},
                 {"Anil Deshmukh"}});
    land::enter(form, 0,
                {{"117/3", "1A", "4470", "3480.75"},
                 {{"Ramesh Vishnu Kulkarni", 1, 1},
                  {"Lata Ramesh Kulkarni", 2, 4},
                  {"Shri Ganesh Co-operative Housing Society Ltd.", 0, 5},
                  {"Vasant Gopal Joshi", -1, -1}},
                 {"Anil Deshmukh", "Prakash Bhave"},
                 1});
}

/// The same for the first PRC.
inline void enterCards(Session& session) {
    session.press("mnuPrc");
    auto& form = session.form<frmPRCEXT>();
    land::enter(form, 0,
                {{"CTS 2204", "18", "", "612.25"},
                 {{"Ahmed Karim Shaikh", 1, 1, 1}, {"Fatima Shaikh", 2, 9, 2}, {"Trustees of the Wada", 1, -1, 3}},
                 {"Salim Attar", "R. K. Menon"}});
}

/// A mixed NA order; its form is left in front.
inline void enterNaOrder(Session& session) {
    session.press("mnuNaOrder");
    auto& form = session.form<frmNaOrder>();
    user::type(form.txtNaOrderNo, "NA/SR/214/2024");
    user::type(form.txtLandArea, "3480.75");
    user::pick(form.cmbAreaForNA, 4);
    user::type(form.txtArea1, "2980.75");
    user::type(form.txtArea2, "500");
    user::type(form.txtNARemark, "Issued for housing with shops on the ground floor.");
}

}  // namespace plandesk::test
