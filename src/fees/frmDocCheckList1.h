#pragma once

#include "fees/DocCheckList.h"

namespace plandesk {

/// The documents that some proposals need. New and Open keep what is filled in here.
class frmDocCheckList1 : public DocCheckList {
public:
    static constexpr std::string_view formName = "frmDocCheckList1";
    explicit frmDocCheckList1(Proposal& proposal) : DocCheckList(proposal, formName, conditionalDocuments) {}
};

}  // namespace plandesk
