#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "proposal/Proposal.h"

namespace plandesk {

/// About: title, version and two texts, as version.ini beside the program tells them.
class frmAbout : public Form {
public:
    static constexpr std::string_view formName = "frmAbout";

    explicit frmAbout(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void pressClose() override { close(); }

    /// Starts the machine's system information tool, or says that there is none.
    void StartSysInfo();

    Label lblTitle{*this, "lblTitle", ""};
    Label lblVersion{*this, "lblVersion", ""};
    Label lblDescription{*this, "lblDescription", ""};
    Label lblDisclaimer{*this, "lblDisclaimer", ""};
    Button cmdOK{*this, "cmdOK", "OK"};
    Button cmdSysInfo{*this, "cmdSysInfo", "&System Info..."};

private:
    void showTitle(std::string_view title);
    void showVersion(std::string_view version);
    void readVersionFile();
    /// Unloads the form, so that the next opening reads the file again.
    void close();

    Fixed<Proposal&> proposal;
};

}  // namespace plandesk
