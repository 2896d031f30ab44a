#pragma once

#include "fees/DocCheckList.h"

namespace plandesk {

/// The documents that every proposal needs.
class frmDocCheckList : public DocCheckList {
public:
    static constexpr std::string_view formName = "frmDocCheckList";
    explicit frmDocCheckList(Proposal& proposal) : DocCheckList(proposal, formName, mandatoryDocuments) {}
};

}  // namespace plandesk
