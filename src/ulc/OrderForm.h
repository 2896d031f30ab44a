#pragma once

#include <cstdint>

#include "proposal/DataForm.h"

namespace plandesk {

/// The own form of an order. It shows the order of one extract, and saves what it shows as the order of the extract
/// that the list of orders has current by then.
class OrderForm : public DataForm {
public:
    using DataForm::DataForm;

    /// The extract whose order the list of orders opened in it; 0 as long as it opened none.
    std::int32_t openedFor = 0;
};

}  // namespace plandesk
