#include "base/Text.h"
#include "document/LandRecordBlocks.h"
#include "landrecords/frmNaOrder.h"
#include "proposal/Element.h"
#include "proposal/Proposal.h"

namespace plandesk {

void buildNAOrder(Proposal& proposal) {
    const auto& form = proposal.forms.get<frmNaOrder>();
    std::string& xml = proposal.naOrderXML;
    xml = "<NAOrder>";
    appendElement(xml, "OrderNo", trim(form.txtNaOrderNo.text()));
    appendElement(xml, "OrderDate", form.DTPicker1.date().text());
    appendElement(xml, "LandArea", form.txtLandArea.text());
    appendElement(xml, "AreaForNAOrder", trim(form.cmbAreaForNA.text()));
    appendElement(xml, "TxtArea1", trim(form.txtArea1.text()));
    appendElement(xml, "TxtArea2", trim(form.txtArea2.text()));
    appendElement(xml, "Remark", form.txtNARemark.text());
    xml += "</NAOrder>";
}

}  // namespace plandesk
