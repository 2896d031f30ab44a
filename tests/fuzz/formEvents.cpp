// Random bytes as what a user does to the forms: whatever they are, the system goes on and its forms stay sound.

#include "unit/FormEvents.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    plandesk::test::Bytes bytes({data, size});
    plandesk::test::FormEvents session;
    session.start(bytes);
    while (!bytes.empty() && !session.proposal.screen.ended()) {
        session.act(bytes);
        session.check();
    }
    return 0;
}
