#pragma once

#include "controls/Form.h"
#include "proposal/Proposal.h"
#include "proposal/mdlProject.h"

namespace plandesk {

/// A data-entry form: drops the eight special keys and treats Enter as Tab.
class DataForm : public Form {
public:
    DataForm(Proposal& proposal, std::string_view name, std::string_view caption)
        : Form(proposal.screen, name, caption), proposal(proposal) {}
    DataForm(const DataForm&) = delete;
    DataForm& operator=(const DataForm& other) {
        Form::operator=(other);
        return *this;
    }
    ~DataForm() override = default;

    int keyPress(int key) const override { return dropSpecialKeys(key); }
    bool enterActsAsTab() const override { return true; }

protected:
    Proposal& proposal;
};

}  // namespace plandesk
