#pragma once

#include <QApplication>
#include <QTest>
#include <array>
#include <functional>
#include <map>
#include <memory>

#include "gui/Orders.h"
#include "gui/Session.h"

// Every form with something in it, page by page, for tests that look at all of them.

namespace plandesk::test {

inline constexpr std::array formNames = {"frmAnnexureA",
                                         "AnnexureACont",
                                         "frmPayDetail",
                                         "frmDocCheckList",
                                         "frmDocCheckList1",
                                         "frmPlotExtractRelation",
                                         "frmMain712",
                                         "frmPRCEXT",
                                         "frmNaOrder",
                                         "frmHelp",
                                         "frmAbout",
                                         "frmScrutinyULC",
                                         "frmUS84",
                                         "frmULC20aDetails",
                                         "frmUS22",
                                         "frmDiscretionNewCase",
                                         "frmDiscretionrevisedCase",
                                         "frmIssuOfDRc",
                                         "frmDRCTransfer",
                                         "frmDRCTransferCont",
                                         "frmDRCUtilisationForm",
                                         "frmofsupervision",
                                         "frmnoticeofcommencementofwork",
                                         "frmcompletionuptoplinthlevel",
                                         "frmbuildingcompletioncertificate",
                                         "frmforpartoccupancycertificate",
                                         "frmtdrfortransferringownership",
                                         "frmPrint",
                                         "frmReportNav"};

/// The form with something in it, where it has grids.
inline Form& filledForm(Session& session, const QString& name) {
    static const std::map<QString, void (*)(Session&)> fillers = {{"frmPlotExtractRelation", enterPlots},
                                                                  {"frmMain712", enterExtracts},
                                                                  {"frmPRCEXT", enterCards},
                                                                  {"frmNaOrder", enterNaOrder},
                                                                  {"frmScrutinyULC", enterOrders},
                                                                  {"frmUS84", enterOrders},
                                                                  {"frmULC20aDetails", enterOrders},
                                                                  {"frmUS22", enterOrders},
                                                                  {"frmDiscretionNewCase", enterDiscretionNew},
                                                                  {"frmDiscretionrevisedCase", enterDiscretionRevised}};
    if (const auto fill = fillers.find(name); fill != fillers.end()) {
        session.press("mnuNew");
        enterPlots(session);
        fill->second(session);
    }
    return *session.proposal.forms.touch(name.toStdString());
}

inline void addForms() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("fontScale");
    for (const char* name : formNames)
        for (const int scale : {1, 2})
            QTest::addRow("%s at font size x%d", name, scale) << QString(name) << scale;
}

/// Opens everything that the form's rules may hide, so that all of it is looked at.
inline void showEverything(Form& form) {
    for (Control* control : form.controls())
        control->setVisible(true);
}

/// A session in a font of another size.
struct ScaledSession {
    QFont before = QApplication::font();
    std::unique_ptr<Session> session;

    explicit ScaledSession(int scale) {
        QFont font = before;
        font.setPointSizeF(scale * font.pointSizeF());
        QApplication::setFont(font);
        session = std::make_unique<Session>();
    }
    ~ScaledSession() {
        session.reset();
        QApplication::setFont(before);
    }
};

inline void forEachPage(Session& session, Form& form, const std::function<void()>& look) {
    auto* strip = dynamic_cast<TabStrip*>(form.findKey(form.layout().tabs));
    for (int tab = 0; tab < (strip ? strip->count() : 1); ++tab) {
        if (strip)
            strip->setTab(tab);
        session.settle();
        look();
    }
}

}  // namespace plandesk::test
