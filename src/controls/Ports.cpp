#include "controls/Ports.h"

namespace plandesk {

Progress& Progress::unheard() {
    static Progress nobody;
    return nobody;
}

}  // namespace plandesk
