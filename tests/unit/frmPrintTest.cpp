#include "reports/frmPrint.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "controls/User.h"
#include "reports/ReportDesk.h"
#include "reports/frmReportNav.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

using Names = std::vector<std::string>;

const Names pages = {"rptAnnexutreA",  "rptAnnexutreA1", "rptAnnexutreA2",
                     "rptAnnexutreA3", "rptAnnexutreA4", "rptAnnexutreA5"};
const Names others = {
    "rptPaymentDetails",    "rptDiscretionNewCase",           "rptDiscretionRevCase",
    "rptFormofSupervision", "rptNoticeforcommencementofwork", "rptformforintimationofcompletionofworkuptoplinthlevel",
    "forbldgcompletion",    "rptTDRfortransferringownership"};

struct frmPrintTest : testing::Test, World {
    frmPrintTest() { list.show(); }

    void tick(std::initializer_list<int> places) {
        for (CheckBox& document : list.PrintDoc)
            document.setValue(0);
        for (const int place : places)
            user::click(list.PrintDoc[static_cast<std::size_t>(place)]);
    }

    frmPrint& list = proposal.forms.get<frmPrint>();
    RecordingPrinter& printer = ports.printer;
};

TEST_F(frmPrintTest, TheListHasItsTwelveDocumentsAllTickedAtFirst) {
    Names captions;
    for (const CheckBox& document : list.PrintDoc) {
        captions.push_back(document.caption());
        EXPECT_EQ(document.value(), 1);
    }
    EXPECT_EQ(captions, (Names{"Application Form", "Chalan Payment  ", "Discretion New", "Discretion Revised",
                               "Form of supervision", "Notice for commencement of work",
                               "Completion up to plinth level", "Building completion certificate", "DRC transfer form",
                               "Transferring ownership", "DRC utilization form", "Issue of DRC"}));
    EXPECT_EQ(list.SelectAllDoc.caption(), "All Documents");
    EXPECT_EQ(list.SelectAllDoc.value(), 1);
    EXPECT_EQ(list.cmdNavPrev.caption(), "&Print");
    EXPECT_EQ(list.cmdCancel.caption(), "Cancel");
    user::click(list.SelectAllDoc);
    for (const CheckBox& document : list.PrintDoc)
        EXPECT_EQ(document.value(), 0);
}

TEST_F(frmPrintTest, AllDocumentsArePrintedInTheirOrder) {
    user::click(list.cmdNavPrev);
    Names expected = pages;
    expected.insert(expected.end(), others.begin(), others.end());
    EXPECT_EQ(printer.printed, expected);
    EXPECT_TRUE(printer.files.empty());
    EXPECT_TRUE(ports.dialogs.take().empty());
    EXPECT_TRUE(shell.reports().previews().empty());
    EXPECT_EQ(proposal.forms.loaded(frmReportNav::formName), nullptr);
    EXPECT_FALSE(proposal.isDirectPrint);
}

TEST_F(frmPrintTest, EachDocumentHidesItsForms) {
    const Names forms = {"frmAnnexureA",
                         "AnnexureACont",
                         "frmPayDetail",
                         "frmDiscretionNewCase",
                         "frmDiscretionrevisedCase",
                         "frmofsupervision",
                         "frmnoticeofcommencementofwork",
                         "frmcompletionuptoplinthlevel",
                         "frmbuildingcompletioncertificate",
                         "frmtdrfortransferringownership"};
    const std::vector<int> documents = {0, 0, 1, 2, 3, 4, 5, 6, 7, 9};
    for (std::size_t i = 0; i < forms.size(); ++i) {
        for (const std::string& form : forms)
            proposal.forms.touch(form)->show();
        list.show();
        tick({documents[i]});
        user::click(list.cmdNavPrev);
        for (std::size_t other = 0; other < forms.size(); ++other)
            EXPECT_EQ(proposal.forms.touch(forms[other])->visible(), documents[other] != documents[i]) << forms[other];
    }
    EXPECT_TRUE(list.visible());
}

TEST_F(frmPrintTest, NothingTickedAndDocumentsWithoutAReportPrintNothing) {
    printer.isReady = false;
    tick({});
    user::click(list.cmdNavPrev);
    tick({8, 10, 11});
    user::click(list.cmdNavPrev);
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_TRUE(ports.dialogs.take().empty());
    EXPECT_EQ(proposal.tables.rsReportPayment, nullptr);
}

TEST_F(frmPrintTest, ThePaymentAloneDecidesWhereTheReportsLeadBackTo) {
    tick({0, 4});
    user::click(list.cmdNavPrev);
    EXPECT_FALSE(proposal.noReportReturn);
    tick({1});
    user::click(list.cmdNavPrev);
    EXPECT_TRUE(proposal.noReportReturn);
}

TEST_F(frmPrintTest, APrinterThatFailsInBetweenIsToldOnceAndTheRestGoesOn) {
    printer.failures.emplace("rptAnnexutreA2", RuntimeError(ErrorNumber::PrinterError));
    printer.failures.emplace("rptFormofSupervision", RuntimeError(ErrorNumber::PrinterError));
    proposal.forms.touch("frmAnnexureA")->show();
    tick({0, 1, 4, 5});
    user::click(list.cmdNavPrev);
    EXPECT_EQ(printer.printed,
              (Names{"rptAnnexutreA", "rptAnnexutreA1", "rptPaymentDetails", "rptNoticeforcommencementofwork"}));
    EXPECT_EQ(ports.dialogs.take(),
              (std::vector<Message>{{"Print",
                                     "These documents could not be printed:\nApplication Form: Printer error\n"
                                     "Form of supervision: Printer error",
                                     Icon::Critical}}));
    EXPECT_FALSE(proposal.isDirectPrint);
    EXPECT_TRUE(proposal.forms.touch("frmAnnexureA")->visible());
    EXPECT_EQ(list.PrintDoc[0].value(), 1) << "what is ticked stays for another try";
}

const Message noPrinter{"Print", "There is no printer. Write PDF files instead?", Icon::Question};

TEST_F(frmPrintTest, WithoutAPrinterPdfFilesGoIntoAFolderOfTheUsersChoice) {
    printer.isReady = false;
    ports.dialogs.answers = {"yes", "/papers"};
    tick({1, 4});
    user::click(list.cmdNavPrev);
    EXPECT_EQ(printer.files, (std::vector<std::filesystem::path>{"/papers/rptPaymentDetails.pdf",
                                                                 "/papers/rptFormofSupervision.pdf"}));
    EXPECT_TRUE(printer.printed.empty());
    EXPECT_EQ(ports.dialogs.take(),
              (std::vector<Message>{noPrinter, {"Print", "The PDF files are in /papers", Icon::Information}}));
}

TEST_F(frmPrintTest, WithoutAPrinterNothingHappensOnNoOrWithoutAFolder) {
    printer.isReady = false;
    proposal.forms.touch("frmPayDetail")->show();
    tick({1});
    for (const std::deque<std::string>& answers : {std::deque<std::string>{"no"}, {"yes", "cancel"}}) {
        ports.dialogs.answers = answers;
        user::click(list.cmdNavPrev);
        EXPECT_EQ(ports.dialogs.take(), std::vector<Message>{noPrinter});
    }
    EXPECT_TRUE(printer.papers.empty());
    EXPECT_TRUE(proposal.forms.touch("frmPayDetail")->visible());
    EXPECT_FALSE(proposal.noReportReturn);
}

TEST_F(frmPrintTest, AFileThatCannotBeWrittenIsToldAndTheOthersAreWritten) {
    printer.isReady = false;
    printer.failures.emplace("rptPaymentDetails", RuntimeError(ErrorNumber::DiskFull));
    ports.dialogs.answers = {"yes", "/papers"};
    tick({1, 4});
    user::click(list.cmdNavPrev);
    EXPECT_EQ(printer.files.size(), 1U);
    EXPECT_EQ(ports.dialogs.take().back(),
              (Message{"Print", "These documents could not be printed:\nChalan Payment  : Disk full", Icon::Critical}));
}

TEST_F(frmPrintTest, CancelUnloadsTheList) {
    user::click(list.cmdCancel);
    EXPECT_EQ(proposal.forms.loaded(frmPrint::formName), nullptr);
}

// The navigator

struct frmReportNavTest : testing::Test, World {
    std::string front() const {
        const auto previews = shell.reports().previews();
        return previews.empty() ? "" : std::string(previews.back()->name);
    }
};

TEST_F(frmReportNavTest, EachButtonShowsItsPageInWhiteAndLastTheFifth) {
    auto& navigator = proposal.forms.get<frmReportNav>();
    navigator.show();
    const Colour face{0xF0, 0xF0, 0xF0};
    for (std::size_t page = 0; page < pages.size(); ++page) {
        EXPECT_EQ(navigator.cmdFormNo[page].caption(), std::to_string(page + 1));
        user::click(navigator.cmdFormNo[page]);
        EXPECT_EQ(front(), pages[page]);
        for (std::size_t other = 0; other < pages.size(); ++other)
            EXPECT_EQ(navigator.cmdFormNo[other].backColor(), other == page ? white : face);
    }
    EXPECT_EQ(navigator.cmdNavPrev.caption(), "First");
    EXPECT_EQ(navigator.cmdNavNext.caption(), "Last");
    user::click(navigator.cmdNavPrev);
    EXPECT_EQ(front(), pages[0]);
    user::click(navigator.cmdNavNext);
    EXPECT_EQ(front(), pages[4]);
    EXPECT_EQ(navigator.cmdFormNo[4].backColor(), white);
}

TEST_F(frmReportNavTest, ComingUpItShowsTheFirstPage) {
    proposal.commands.open(frmReportNav::formName);
    EXPECT_EQ(front(), pages[0]);
    EXPECT_TRUE(proposal.forms.loaded(frmReportNav::formName)->front());
    EXPECT_EQ(proposal.forms.loaded(frmReportNav::formName)->backColor(), proposal.formBackColor);
    shell.reports().show(pages[3]);
    EXPECT_TRUE(proposal.forms.loaded(frmReportNav::formName)->run("Form_Activate"));
    EXPECT_EQ(front(), pages[0]);
}

TEST_F(frmReportNavTest, ClosingAnyPageUnloadsItAndNoOtherReportDoes) {
    for (const std::string& page : pages) {
        proposal.commands.open(frmReportNav::formName);
        shell.reports().show(page);
        shell.reports().show("rptReciept");
        EXPECT_TRUE(shell.reports().pressClose("rptReciept"));
        EXPECT_NE(proposal.forms.loaded(frmReportNav::formName), nullptr);
        EXPECT_TRUE(shell.reports().pressClose(page));
        EXPECT_EQ(proposal.forms.loaded(frmReportNav::formName), nullptr) << page;
    }
}

TEST_F(frmReportNavTest, ClosingAllReportsLeadsToTheParticularsOrToTheChecklist) {
    proposal.commands.print(pages[0]);
    shell.closeReports();
    EXPECT_EQ(front(), "");
    EXPECT_EQ(proposal.forms.loaded(frmReportNav::formName), nullptr);
    EXPECT_TRUE(proposal.forms.loaded("frmAnnexureA")->front());
    proposal.noReportReturn = true;
    shell.closeReports();
    EXPECT_TRUE(proposal.forms.loaded("frmDocCheckList")->front());
}

}  // namespace
}  // namespace plandesk::test
