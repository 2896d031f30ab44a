#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "controls/Controls.h"
#include "proposal/Proposal.h"

namespace plandesk {

struct PrintedDocument;

/// Prints a chosen set of documents straight on the printer. Nothing of the main window opens the form.
class frmPrint : public Form {
public:
    static constexpr std::string_view formName = "frmPrint";

    explicit frmPrint(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;

    /// Feeds and prints each ticked document and hides its forms. What fails is told in one message in the end, and the
    /// others are printed all the same. Without a printer the user is asked whether to write PDF files instead.
    void cmdNavPrev_Click();

    CheckBox SelectAllDoc{*this, "SelectAllDoc", "All Documents"};
    Series<CheckBox> PrintDoc;
    Button cmdNavPrev{*this, "cmdNavPrev", "&Print"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

private:
    /// Where PDF files shall go; nothing when the user wants none.
    std::optional<std::filesystem::path> askForFolder();
    void print(const PrintedDocument& document, const std::optional<std::filesystem::path>& folder);

    Fixed<Proposal&> proposal;
};

}  // namespace plandesk
