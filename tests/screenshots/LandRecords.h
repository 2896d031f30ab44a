#pragma once

#include "gui/Session.h"

namespace plandesk::test {

/// Two plots with three 7/12 extracts, and one with two PRCs; the relation form is left in front.
void enterPlots(Session& session);
/// Owners and holders of the first two 7/12 extracts; the form of the extracts is left in front, at the first of them.
void enterExtracts(Session& session);
/// The same for the first PRC.
void enterCards(Session& session);
/// A mixed NA order; its form is left in front.
void enterNaOrder(Session& session);

}  // namespace plandesk::test
