#include "review/SilentMachine.h"

namespace plandesk {

SilentMachine::SilentMachine(const Ports& real) : real(real) {}

}  // namespace plandesk
