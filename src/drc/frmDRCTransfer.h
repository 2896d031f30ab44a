#pragma once

#include <string_view>

#include "drc/DRCForm.h"

namespace plandesk {

struct DRCTable;

/// The transfer deed of a development right certificate.
class frmDRCTransfer : public DataForm {
public:
    static constexpr std::string_view formName = "frmDRCTransfer";
    static const DRCTable table;  ///< what a save keeps, column by column

    explicit frmDRCTransfer(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void functionKey(std::string_view key) override;

    /// Fills `rsDRCTransfer` anew, builds `drcTransferXML` and shows it.
    void SaveDRCTransfer();

    TabStrip SSTab1{*this, "SSTab1", 2};

    // The certificate, its transferors, the attestation, the transferees and the office's checks
    TextBox txtDRCNumber{*this, "txtDRCNumber"};
    TextBox txtTotalBalanceAreaFigure{*this, "txtTotalBalanceAreaFigure"};
    TextBox txtTotalBalanceAreaWords{*this, "txtTotalBalanceAreaWords"};
    TextBox txtTransferorFolioNo{*this, "txtTransferorFolioNo"};
    TextBox txtTransferorName1{*this, "txtTransferorName1"};
    TextBox txtTransferorName2{*this, "txtTransferorName2"};
    TextBox txtTransferorName3{*this, "txtTransferorName3"};
    TextBox txtTransferorName4{*this, "txtTransferorName4"};
    TextBox txtTransferorName5{*this, "txtTransferorName5"};
    TextBox txtAttestationName{*this, "txtAttestationName"};
    TextBox txtAttestationAddress{*this, "txtAttestationAddress"};
    TextBox txtTransfareeName1{*this, "txtTransfareeName1"};
    TextBox txtTransfareeName2{*this, "txtTransfareeName2"};
    TextBox txtTransfareeName3{*this, "txtTransfareeName3"};
    TextBox txtTransfareeName4{*this, "txtTransfareeName4"};
    TextBox txtTransfareeName5{*this, "txtTransfareeName5"};
    TextBox txtTransfareeExistingFolioNo{*this, "txtTransfareeExistingFolioNo"};
    DatePicker DTPTransfareeDate{*this, "DTPTransfareeDate"};
    TextBox txtTransfareePlace{*this, "txtTransfareePlace"};
    TextBox txtTransfareeCheckedBy{*this, "txtTransfareeCheckedBy"};
    TextBox txtSingTalliedBy{*this, "txtSingTalliedBy"};
    TextBox txtRegTransferNo{*this, "txtRegTransferNo"};
    DatePicker DTPApprovalDate{*this, "DTPApprovalDate"};
    EnterBox txtApprovalPlace{*this, "txtApprovalPlace"};

    // The continuation's fields once more; the deed is saved with those of frmDRCTransferCont
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
    TextBox Text1{*this, "Text1"};
    TextBox Text3{*this, "Text3"};
    TextBox Text4{*this, "Text4"};
    TextBox Text5{*this, "Text5"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    DRCButtons buttons{*this, [this] { SaveDRCTransfer(); }};
    Button Command1{*this, "Command1", "Fee and return particulars"};
};

}  // namespace plandesk
