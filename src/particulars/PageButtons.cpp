#include "particulars/PageButtons.h"

#include <algorithm>

#include "base/Text.h"
#include "controls/Form.h"
#include "proposal/Proposal.h"

namespace plandesk {

PageButtons::PageButtons(Form& form)
    : buttons{{
          {form, "cmdFormNo", "1", 0},
          {form, "cmdFormNo", "2", 1},
          {form, "cmdFormNo", "3", 2},
          {form, "cmdFormNo", "4", 3},
          {form, "cmdFormNo", "5", 4},
          {form, "cmdFormNo", "6", 5},
          {form, "cmdFormNo", "7", 6},
          {form, "cmdFormNo", "8", 7},
          {form, "cmdFormNo", "9", 8},
      }} {}

void PageButtons::onClick(const std::function<void(int page)>& reaction) {
    for (Button& button : buttons)
        button.click = [reaction, page = button.index()] { reaction(page); };
}

void PageButtons::paint(const Proposal& proposal, int current) {
    for (Button& button : buttons)
        button.setBackColor(button.index() == current ? proposal.activeButtonColor : proposal.formBackColor);
}

void focusFirstOfPage(const Form& form) {
    const std::vector<Control*> order = form.tabOrder();
    const auto head = static_cast<std::ptrdiff_t>(split(form.layout().head, " ").size());
    const auto first =
        std::find_if(order.begin() + head, order.end(), [](const Control* control) { return control->takesFocus(); });
    if (first != order.end())
        (*first)->setFocus();
}

}  // namespace plandesk
