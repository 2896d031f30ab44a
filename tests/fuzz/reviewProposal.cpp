// Any file is opened, reviewed and compared with what a save makes of it. The review changes nothing, and each of its
// findings is about something that is there.

#include "ChangedXml.h"
#include "OpenBytes.h"
#include "review/CarriedAnswers.h"
#include "review/GoTo.h"
#include "review/Review.h"
#include "unit/FormEvents.h"
#include "unit/StateText.h"

namespace plandesk::test {

namespace {

void check(World& world, const Finding& finding) {
    if (finding.sentence.empty())
        fail("a finding without a sentence");
    if (finding.form.empty())
        return;
    if (!world.proposal.forms.known(finding.form))
        fail("a finding on no form");
    const Form* form = world.proposal.forms.loaded(finding.form);
    if (form && !finding.control.empty() && !form->findKey(finding.control))
        fail("a finding at no control");
}

}  // namespace

}  // namespace plandesk::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace plandesk;
    using namespace plandesk::test;
    World world;
    world.shell.openBytes({reinterpret_cast<const char*>(data), size}, "/opened.xml");
    const std::string before = stateOf(world.proposal, world.shell);
    const std::vector<Finding> findings = review(world.shell);
    if (stateOf(world.proposal, world.shell) != before)
        fail("the review changed the proposal");
    for (const Finding& finding : findings)
        check(world, finding);
    World other;
    const std::string saved = openAndSave(other, data, size);
    other.shell.openBytes(saved, "/saved.xml");
    differencesOf(world.proposal, other.proposal);
    differencesOf(other.proposal, world.proposal);
    constexpr std::size_t visited = 3;
    for (std::size_t place = 0; place < std::min(findings.size(), visited); ++place)
        goTo(world.proposal, findings[place].form, findings[place].control, findings[place].row,
             findings[place].column);
    return 0;
}
