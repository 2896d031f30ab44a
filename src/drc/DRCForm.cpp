#include "drc/DRCForm.h"

#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "drc/mdlConvertNumberToWord.h"

namespace plandesk {

std::string_view EnterBox::keyDown(std::string_view key) {
    if (key != "Enter" || !enter)
        return TextBox::keyDown(key);
    enter();
    return "";
}

DRCButtons::DRCButtons(Form& form, std::function<void()> save)
    : cmdSave(form, "cmdSave", "Save N.A.Order Information"),  // the caption of the NA order, on these forms too
      cmdReferesh(form, "cmdReferesh", "Reset "),
      cmdClose(form, "cmdClose", "Close") {
    cmdSave.toolTip = "Keeps this form for the proposal's file, which File, Save writes";
    cmdReferesh.toolTip = "Without effect";
    cmdSave.click = std::move(save);
    cmdClose.click = [&form] { form.hide(); };
}

void formatWhenLeft(TextBox& figure) {
    figure.lostFocus = [&figure] { figure.setText(formatGrouped(figure.text())); };
}

void readFigure(TextBox& figure, TextBox& words, std::string_view unit) {
    words.locked = true;
    words.multiLine = true;
    figure.change = [&figure, &words, unit] {
        if (!trim(figure.text()).empty())
            words.setText(figureInWords(figure.text(), unit));
    };
    formatWhenLeft(figure);
}

void markNotSaved(std::initializer_list<Control*> fields) {
    for (Control* field : fields)
        field->toolTip = notSavedTip;
}

}  // namespace plandesk
