#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "proposal/Proposal.h"

namespace plandesk {

/// What each menu entry is for.
class frmHelp : public Form {
public:
    static constexpr std::string_view formName = "frmHelp";

    explicit frmHelp(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;

    RichText rtfHelp;
};

}  // namespace plandesk
