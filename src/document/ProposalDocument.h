#pragma once

#include <string>

namespace plandesk {

class Proposal;

/// The whole proposal as one line of XML without a line end, in UTF-8. Sections I to III are read from frmAnnexureA,
/// which is touched; everything else comes from its hidden carriers and from the fragments that other forms left.
std::string joinDocument(Proposal& proposal);

}  // namespace plandesk
