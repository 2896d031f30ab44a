#include "particulars/PageButtons.h"

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
      }} {
    for (Button& button : buttons)
        button.toolTip = button.caption() + ": " + std::string(pageNames.at(static_cast<std::size_t>(button.index())));
}

void PageButtons::onClick(const std::function<void(int page)>& reaction) {
    for (Button& button : buttons)
        button.click = [reaction, page = button.index()] { reaction(page); };
}

void PageButtons::paint(const Proposal& proposal, int current) {
    for (Button& button : buttons)
        button.setBackColor(button.index() == current ? proposal.activeButtonColor : proposal.formBackColor);
}

void focusFirstOfPage(const Form& form) {
    if (Control* first = form.firstOfPage())
        first->setFocus();
}

}  // namespace plandesk
