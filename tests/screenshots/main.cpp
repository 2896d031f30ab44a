// Takes a picture of every page of every form at 1024 x 700, once with the system's font and once with one of twice the
// size, and of some in other sizes of the window, into the folder given as the first argument. A second one takes one
// set of them alone, or the pictures of docs/guide.md, which go with none of the sets.

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <filesystem>
#include <iostream>
#include <map>

#include "controls/User.h"
#include "desktop/ChildWindow.h"
#include "desktop/Theme.h"
#include "gui/Orders.h"
#include "gui/Session.h"
#include "particulars/frmAnnexureA.h"
#include "reports/ReportDesk.h"
#include "reports/frmReportNav.h"
#include "screenshots/GuidePictures.h"

namespace {

using namespace plandesk;
using namespace plandesk::test;

class Camera {
public:
    Camera(Session& session, std::filesystem::path folder, std::string suffix)
        : session(session), folder(std::move(folder)), suffix(std::move(suffix)) {}

    /// One picture, and one more for each further screenful of the page.
    void take(const std::string& name) {
        session.settle();
        QScrollArea* page = nullptr;
        for (QScrollArea* area : session.window.findChildren<QScrollArea*>())
            if (area->isVisible() && area->window() == &session.window && frontHolds(*area))
                page = area;
        QScrollBar* bar = page ? page->verticalScrollBar() : nullptr;
        if (bar)
            bar->setValue(0);
        for (int part = 1;; ++part) {
            session.settle();
            const std::string file = name + (part > 1 ? "-" + std::to_string(part) : "") + suffix + ".png";
            session.window.grab().save(QString::fromStdString((folder / file).string()));
            if (!bar || bar->value() == bar->maximum())
                break;
            bar->setValue(bar->value() + bar->pageStep() * 9 / 10);
        }
    }

    void takePages(Form& form) {
        form.show();
        const auto strip = [&]() -> TabStrip* { return dynamic_cast<TabStrip*>(form.findKey(form.layout().tabs)); }();
        for (int tab = 0; tab < (strip ? strip->count() : 1); ++tab) {
            if (strip)
                strip->setTab(tab);
            take(form.name() + (strip ? "-page" + std::to_string(form.layout().firstTabNumber + tab) : ""));
        }
        form.hide();
    }

private:
    bool frontHolds(const QWidget& widget) const {
        const Form* front = session.proposal.screen.frontForm();
        const QWidget* view = front ? session.window.forms().viewOf(*front) : nullptr;
        return view && view->isAncestorOf(&widget);
    }

    Session& session;
    std::filesystem::path folder;
    std::string suffix;
};

void takeAll(const std::filesystem::path& folder, const std::string& suffix) {
    Session session;
    QTest::qWait(250);
    Camera camera(session, folder, suffix);
    camera.take("mdiInterface");
    session.press("mnuNew");
    for (const std::string_view name :
         {"frmAnnexureA", "AnnexureACont", "frmPayDetail", "frmDocCheckList", "frmDocCheckList1", "frmHelp", "frmAbout",
          "frmIssuOfDRc", "frmDRCTransfer", "frmDRCTransferCont", "frmDRCUtilisationForm", "frmofsupervision",
          "frmnoticeofcommencementofwork", "frmcompletionuptoplinthlevel", "frmbuildingcompletioncertificate",
          "frmforpartoccupancycertificate", "frmtdrfortransferringownership", "frmPrint", "frmReportNav"})
        if (Form* form = session.proposal.forms.touch(name))
            camera.takePages(*form);
}

/// The forms of the land records and of their orders with data in them.
void takeLandRecords(const std::filesystem::path& folder, const std::string& suffix) {
    Session session;
    Camera camera(session, folder, suffix);
    session.press("mnuNew");
    const auto take = [&](const std::string& name, void (*enter)(Session&)) {
        enter(session);
        camera.take(name);
    };
    take("frmPlotExtractRelation", enterPlots);
    session.form<frmPlotExtractRelation>().SSTab1.setTab(1);
    camera.take("frmPlotExtractRelation-prc");
    take("frmMain712", enterExtracts);
    take("frmPRCEXT", enterCards);
    take("frmNaOrder", enterNaOrder);
    session.form<frmNaOrder>().hide();
    take("frmScrutinyULC", enterScrutiny);
    take("frmUS84", enterUS84);
    take("frmULC20aDetails", enterUS20a1);
    take("frmUS22", enterUS22);
    take("frmDiscretionNewCase", enterDiscretionNew);
    take("frmDiscretionrevisedCase", enterDiscretionRevised);
}

/// Reports as previews, one over the other.
void takeReports(const std::filesystem::path& folder, const std::string& suffix) {
    Session session;
    Camera camera(session, folder, suffix);
    session.press("mnuNew");
    session.form<frmAnnexureA>().txtApplicantNm.setText("Sunil Vasant Karkhanis");
    const auto act = [&](const std::string& name, const std::function<void()>& what) {
        session.window.forms().act(Qt::OtherFocusReason, what);
        camera.take("report-" + name);
    };
    act("particulars", [&] { session.proposal.commands.print("rptAnnexutreA"); });
    if (auto* navigator = dynamic_cast<frmReportNav*>(session.proposal.forms.loaded("frmReportNav")))
        act("page-5", [&] { user::click(navigator->cmdNavNext); });
    act("closed", [&] { session.shell.reports().close("rptAnnexutreA4"); });
    act("receipt", [&] { session.proposal.commands.print("rptReciept"); });
    act("checklist", [&] { session.proposal.commands.print("rptDocChecklist"); });
    act("printing", [&] { session.proposal.commands.open("frmPrint"); });
}

/// Three pages in the windows of common screens, maximised in the widest.
void takeSizes(const std::filesystem::path& folder, const std::string& suffix) {
    if (!suffix.empty())
        return;
    for (const QSize size : {QSize(1024, 700), QSize(1366, 768), QSize(1920, 1080)}) {
        Session session(size);
        Camera camera(session, folder, "-" + std::to_string(size.width()) + "x" + std::to_string(size.height()));
        session.press("mnuNew");
        for (Form* form : {session.proposal.forms.touch("frmAnnexureA"), session.proposal.forms.touch("frmPayDetail"),
                           session.proposal.forms.touch("frmDocCheckList")}) {
            form->show();
            session.settle();
            session.window.forms().fillDesk(size.width() == 1920);
            camera.take(form->name());
        }
    }
}

/// The review's panel beside a proposal that is half filled in, in the windows of common screens.
void takeReview(const std::filesystem::path& folder, const std::string& suffix) {
    for (const QSize size : {QSize(1366, 768), QSize(1920, 1080)}) {
        Session session(size);
        Camera camera(session, folder,
                      "-" + std::to_string(size.width()) + "x" + std::to_string(size.height()) + suffix);
        session.press("mnuNew");
        session.proposal.forms.touch("frmPayDetail");
        session.proposal.forms.touch("frmDocCheckList");
        auto& form = session.form<frmAnnexureA>();
        form.txtTitle.setText("Residential building at Tervale & Balundi");
        form.txtApplicantNm.setText("Sunil Vasant Karkhanis");
        form.txtApplicantAddr.setText("8, Tilak Path, Vedhapur");
        form.txtArchNm.setText("Lim@ye");
        form.txtArchFirstName.setText("Gauri");
        form.txtPltArea.setText("850");
        form.txtpltno.setText("12/3");
        form.txtTikaNo.setText("1.5");
        for (ComboBox* list : {&form.cboCaseType, &form.cboProposalTyp, &form.cboSector})
            list->setListIndex(0);
        const auto key = [&](Qt::Key pressed) {
            QTest::keyClick(&session.window, pressed);
            QTest::qWait(500);
        };
        key(Qt::Key_F9);
        camera.take("review-list");
        key(Qt::Key_F8);
        key(Qt::Key_F8);
        camera.take("review-finding");
        QTest::keyClick(&session.window, Qt::Key_F, Qt::ControlModifier);
        session.settle();
        QTest::keyClicks(QApplication::focusWidget(), "area");
        QTest::qWait(100);
        camera.take("review-search");
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    using Take = void (*)(const std::filesystem::path& folder, const std::string& suffix);
    const std::map<std::string, Take> sets = {{"forms", takeAll},
                                              {"land-records", takeLandRecords},
                                              {"reports", takeReports},
                                              {"review", takeReview},
                                              {"sizes", takeSizes}};
    const std::string wanted = argc == 3 ? argv[2] : "";
    const bool guide = wanted == "guide";
    if (argc < 2 || argc > 3 || (argc == 3 && !guide && !sets.contains(wanted))) {
        std::cerr << "usage: plandesk-screenshots FOLDER [forms|guide|land-records|reports|review|sizes]\n";
        return 2;
    }
    QApplication application(argc, argv);
    desktop::useTheme();
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    if (guide) {
        takeGuidePictures(folder);
        return 0;
    }
    for (const std::string suffix : {"", "-large"}) {
        for (const auto& [name, take] : sets)
            if (wanted.empty() || wanted == name)
                take(folder, suffix);
        QFont large = QApplication::font();
        large.setPointSizeF(2 * large.pointSizeF());
        QApplication::setFont(large);
    }
    return 0;
}
