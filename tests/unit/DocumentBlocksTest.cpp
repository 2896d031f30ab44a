#include "document/DocumentBlocks.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "document/ProposalDocument.h"
#include "document/SaveProposal.h"
#include "document/XmlDocument.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "shell/FormCatalogue.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

TEST(DocumentBlocks, EachTextOfTheProposalIsInOneBlockOrTravelsInTheSections) {
    std::set<std::string_view> elements;
    for (const DocumentBlock& block : documentBlocks())
        elements.insert(block.element);
    EXPECT_EQ(elements.size(), documentBlocks().size());
    const std::set<std::string_view> inSections = {"secondScrutinyFees", "mandatoryDocList", "conditionalDocList"};
    for (const auto& [name, text] : Proposal::fragments)
        EXPECT_EQ(std::ranges::count(documentBlocks(), text, &DocumentBlock::fragment),
                  inSections.contains(name) ? 0 : 1)
            << name;
}

TEST(DocumentBlocks, TheDocumentHasTheTextsInTheOrderThatTheApprovalSystemReads) {
    World world;
    for (const auto& [name, text] : Proposal::fragments)
        world.proposal.*text = "[" + std::string(name) + "]";
    const std::string document = joinDocument(world.proposal);
    EXPECT_EQ(document.substr(document.find("</PAYMENTDETAIL>")),
              "</PAYMENTDETAIL>[annexureBXML]<NTS>[extractOwnerXML][prcOwnerXML][naOrderXML][ULCScrutinyXML]</NTS>"
              "<PLOT-REL>[plotRelXML]</PLOT-REL><PLOT-PRCDETAILS>[plotPrcDetailsXML]</PLOT-PRCDETAILS>"
              "[discretionRevisedXML][discretionNewXML][drcIssueXML][drcTransferXML][drcUtilisationXML]</INWARDINFO>");
}

TEST(DocumentBlocks, TheOpeningReadsThemInItsOwnOrder) {
    std::vector<std::string_view> readers;
    for (const DocumentBlock& block : documentBlocks()) {
        EXPECT_EQ(block.reader.empty(), block.read == nullptr) << block.element;
        if (block.read)
            readers.push_back(block.reader);
    }
    EXPECT_EQ(readers, (std::vector<std::string_view>{"readPlotRelations", "readExtracts712", "readExtractsPRC",
                                                      "readNAOrder", "readULCScrutiny", "readDiscretion"}));
}

TEST(DocumentBlocks, ABuiltBlockStandsInItsElement) {
    for (const DocumentBlock& block : documentBlocks()) {
        if (!block.build)
            continue;
        World world;
        for (Recordset* extracts :
             {world.proposal.tables.rsExtract712.get(), world.proposal.tables.rsExtractPRC.get()}) {
            extracts->addNew();
            extracts->set("ExtNo", 1);
            extracts->update();
        }
        world.proposal.forms.get<frmPlotExtractRelation>().Save712ExtractRaltionShip();  // counts into its empty boxes
        (world.proposal.*block.fragment).clear();
        world.proposal.commands.buildBlock(block.fragment);
        const std::string text = world.proposal.*block.fragment;
        const std::string tag = std::string(block.element) + ">";
        if (block.bare)
            EXPECT_EQ(text.find('<'), std::string::npos) << text;
        else
            EXPECT_TRUE(text.starts_with("<" + tag) && text.ends_with("</" + tag)) << text;
    }
}

TEST(DocumentBlocks, ATextThatNothingBuildsOrReadsIsRefused) {
    World world;
    const XmlDocument none;
    EXPECT_THROW(buildBlock(world.proposal, &Proposal::proposalText), RuntimeError);
    EXPECT_THROW(buildBlock(world.proposal, &Proposal::drcIssueXML), RuntimeError);
    EXPECT_THROW(readBlock(world.proposal, &Proposal::annexureBXML, none), RuntimeError);
}

TEST(SaveSteps, EachFormIsInTheCatalogueAndHasItsProcedure) {
    World world;
    world.shell.press("mnuNew");
    int forms = 0;
    for (const SaveStep& step : saveSteps()) {
        EXPECT_EQ(step.form.empty(), step.procedure.empty());
        EXPECT_EQ((step.form.empty() ? 0 : 1) + (step.block ? 1 : 0) + (step.action ? 1 : 0), 1);
        if (step.form.empty())
            continue;
        EXPECT_EQ(std::ranges::count(formCatalogue(), step.form, &FormRow::name), 1) << step.form;
        Form* form = world.proposal.forms.touch(step.form);
        ASSERT_NE(form, nullptr) << step.form;
        ++forms;
        EXPECT_TRUE(form->run(step.procedure)) << step.form << "." << step.procedure;
    }
    EXPECT_GE(forms, 9);
}

}  // namespace
}  // namespace plandesk::test
