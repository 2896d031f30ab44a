#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "controls/Form.h"

namespace plandesk::test {

/// Answers on the first page of the Particulars of Development that its fifteen tests accept.
inline void fillFirstPage(const Form& annexure) {
    for (const std::string_view name :
         {"txtTitle", "txtpltno", "txtFPNo", "txtTikaNo", "txtApplicantNm", "txtApplicantAddr", "txtArchNm",
          "txtArchFirstName", "txtRegNm", "txtPltArea", "txtActualArea"})
        annexure.at<TextBox>(name).setText("1");
    for (const std::string_view name : {"cboCaseType", "cboProposalTyp", "cboProposProj", "cboSector"})
        annexure.at<ComboBox>(name).setListIndex(0);
}

}  // namespace plandesk::test
