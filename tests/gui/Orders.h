#pragma once

#include "fees/frmDiscretionNewCase.h"
#include "fees/frmDiscretionrevisedCase.h"
#include "gui/LandRecords.h"
#include "proposal/OrderColumns.h"
#include "ulc/frmScrutinyULC.h"
#include "ulc/frmULC20aDetails.h"
#include "ulc/frmUS22.h"
#include "ulc/frmUS84.h"

namespace plandesk::test {

/// The extracts of enterExtracts and enterCards saved and scrutinised; the form of the scrutiny is left in front.
inline void enterScrutiny(Session& session) {
    user::click(session.form<frmMain712>().cmdSave);
    user::click(session.form<frmPRCEXT>().cmdSave);
    session.press("mnuUlcOrder");
    auto& form = session.form<frmScrutinyULC>();
    user::click(form.optDocCtrlOwn[0]);
    user::pick(form.cmbExtract, 0);
    user::pick(form.cmbDocStatus, 1);
    user::editCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::OrderNo, "ULC/84/112");
    user::editCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::Remarks, "Seen in original");
    user::pick(form.cmbULCORDERDetails, 1);
}

inline void enterUS84(Session& session) {
    user::click(session.form<frmScrutinyULC>().cmdDetails);
    auto& form = session.form<frmUS84>();
    user::type(form.txtCaseNumber, "ULC/84/112");
    user::type(form.txtApplicantName, "Ramchandra Keshav Patil");
    user::type(form.txtApplicantAddress, "Station Road, Khandri");
    user::type(form.txtNoOfPlotOwnedByApplicant, "2");
    user::leave(form.txtNoOfPlotOwnedByApplicant);
    user::editCell(form.dgdTableAB, 0, US84PlotColumn::Village, "Khandri");
    user::editCell(form.dgdTableAB, 0, US84PlotColumn::TotalArea, "1000.5");
    user::editCell(form.dgdTableAB, 1, US84PlotColumn::Village, "Tervale");
    user::editCell(form.dgdTableAB, 1, US84PlotColumn::TotalArea, "250");
    user::type(form.txtAreaDeduction, "100");
    user::click(form.cmdSave);
}

inline void enterUS20a1(Session& session) {
    auto& scrutiny = session.form<frmScrutinyULC>();
    scrutiny.show();
    user::pick(scrutiny.cmbULCORDERDetails, 2);
    user::click(scrutiny.cmdDetails);
    auto& form = session.form<frmULC20aDetails>();
    user::pick(form.cmbSchemaType, 2);
    user::click(form.IsUlCUS84Submitted.yes);
    user::click(form.IsReservationCondition.yes);
    user::editCell(form.dgdSchemeDetails, 0, SchemeGridColumn::FLD2, "12");
    user::editCell(form.dgdSchemeDetails, 0, SchemeGridColumn::FLD3, "3");
}

inline void enterUS22(Session& session) {
    auto& scrutiny = session.form<frmScrutinyULC>();
    scrutiny.show();
    user::pick(scrutiny.cmbULCORDERDetails, 3);
    user::click(scrutiny.cmdDetails);
    user::type(session.form<frmUS22>().txtAreaExistingStruct, "120.5");
}

/// Rows of the discretion forms, which nothing but code shows.
inline void enterDiscretionNew(Session& session) {
    auto& form = session.form<frmDiscretionNewCase>();
    form.show();
    user::type(form.txtRule[0], "Side margins of 3.00 m instead of 4.50 m, since the plot is narrow");
    user::type(form.txtRule[14], "Lobby as per plan");
}

inline void enterDiscretionRevised(Session& session) {
    auto& form = session.form<frmDiscretionrevisedCase>();
    form.show();
    user::type(form.txtRule[0], "1250.75");
    user::type(form.txtRuleC[0], "1200.50");
    user::type(form.txtRuleD[0], "Area as per the latest measurement");
    user::type(form.txtRule[18], "24");
    user::leave(form.txtRule[18]);
}

/// The land records and an order of each kind for the first extract.
inline void enterOrders(Session& session) {
    for (void (*enter)(Session&) : {enterExtracts, enterCards, enterScrutiny, enterUS84, enterUS20a1, enterUS22})
        enter(session);
}

}  // namespace plandesk::test
