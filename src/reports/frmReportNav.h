#pragma once

#include <array>
#include <string_view>

#include "controls/Controls.h"
#include "proposal/Proposal.h"

namespace plandesk {

/// Turns the six pages of the Particulars of Development. Closing any of them closes it.
class frmReportNav : public Form {
public:
    static constexpr std::string_view formName = "frmReportNav";

    explicit frmReportNav(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;

    /// Shows page 0 to 5 with what was fed last.
    void cmdFormNo_Click(int page);
    /// The navigator came up: the first page is shown.
    void Form_Activate();

    Button cmdNavPrev{*this, "cmdNavPrev", "First"};
    std::array<Button, 6> cmdFormNo{{
        {*this, "cmdFormNo", "1", 0},
        {*this, "cmdFormNo", "2", 1},
        {*this, "cmdFormNo", "3", 2},
        {*this, "cmdFormNo", "4", 3},
        {*this, "cmdFormNo", "5", 4},
        {*this, "cmdFormNo", "6", 5},
    }};
    Button cmdNavNext{*this, "cmdNavNext", "Last"};

private:
    void paintButtons();

    Fixed<Proposal&> proposal;
};

/// Shows the navigator with the first page.
void openNavigator(Proposal& proposal);

}  // namespace plandesk
