#pragma once

#include <string_view>

#include "drc/DRCForm.h"

namespace plandesk {

/// The continuation of the transfer deed: its fee and return particulars. Modal. What it holds goes into project-wide
/// texts when it is closed; nothing reads its fields.
class frmDRCTransferCont : public DataForm {
public:
    static constexpr std::string_view formName = "frmDRCTransferCont";

    explicit frmDRCTransferCont(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void pressClose() override;

    TextBox txtFolioNumber1{*this, "txtFolioNumber1"};
    TextBox txtFolioNumber2{*this, "txtFolioNumber2"};
    TextBox txtFolioNumber3{*this, "txtFolioNumber3"};
    TextBox txtFolioNumber4{*this, "txtFolioNumber4"};
    TextBox txtFolioNumber5{*this, "txtFolioNumber5"};
    TextBox txtLoggedBy{*this, "txtLoggedBy"};
    TextBox txtFullAddress{*this, "txtFullAddress"};
    TextBox txtDRCNameAddress{*this, "txtDRCNameAddress"};
    TextBox txtVideReceiptNo{*this, "txtVideReceiptNo"};
    DatePicker DTPReceiptDate{*this, "DTPReceiptDate"};
    Button cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace plandesk
