#include "shell/frmHelp.h"

#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "unit/LayoutCheck.h"
#include "unit/TestPorts.h"

namespace plandesk::test {
namespace {

class frmHelpTest : public ::testing::Test {
protected:
    frmHelpTest() { proposal.forms.declare<frmHelp>(); }

    frmHelp& help() { return proposal.forms.get<frmHelp>(); }

    /// The words without their marks; each element is a line.
    std::vector<std::string> lines() {
        std::vector<std::string> found;
        std::string line;
        bool inMark = false;
        for (const char character : help().rtfHelp.html) {
            if (character == '<' && !line.empty())
                found.push_back(std::exchange(line, ""));
            if (character == '<' || character == '>')
                inMark = character == '<';
            else if (!inMark && character != '\n')
                line += character;
        }
        return found;
    }

    TestPorts machine;
    Proposal proposal{machine};
};

TEST_F(frmHelpTest, TellsEveryEntryInItsOrder) {
    const std::vector<std::string> expected = {
        "File",
        "New",
        "To create a New Proposal",
        "Open",
        "To open an existing proposal",
        "Save",
        "To Save a Proposal.",
        "Save As",
        "To Save Proposal with a different Name.",
        "Exit",
        "To Exit the Application.",
        "Application Form",
        "Particulars of development",
        "To create a New proposal",
        "Proposal Title",
        "A short description about the proposal for e.g. \"A New case from KHANDRI\".",
        "Particulars of development",
        "Next",
        "To go to the next section.",
        "Document Checklist",
        "Mandatory Documents",
        "Hard copy of the documents submitted with the proposal and the page number on the proposal file.",
        "Optional Documents",
        "Conditional documents submitted with the proposal and the page number on the proposal file.",
        "Plot Area Details",
        "Plot details to be filled up.",
        "Plot Extract Relationship",
        "No of Plots and their names provided in the drawing.",
        "Number of extracts for each plot.",
        "This section establishes a relationship between Plots and their (7/12 Extract or PRC).",
    };
    EXPECT_EQ(lines(), expected);
}

TEST_F(frmHelpTest, StandsOnItsOwnColourUnderItsCaption) {
    EXPECT_EQ(help().caption(), "Help VDMA Architect Utility");
    // The number D3EBED is blue, green, red.
    EXPECT_EQ(help().rtfHelp.backColor().text(), "EDEBD3");
}

TEST_F(frmHelpTest, HasAPlaceForItsText) {
    EXPECT_EQ(layoutFaults(help()), std::vector<std::string>());
}

TEST_F(frmHelpTest, ClosingHidesIt) {
    help().show();
    help().pressClose();
    EXPECT_FALSE(help().visible());
    EXPECT_NE(proposal.forms.loaded("frmHelp"), nullptr);
}

}  // namespace
}  // namespace plandesk::test
