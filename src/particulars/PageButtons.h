#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "controls/Controls.h"

namespace plandesk {

class Proposal;

/// The nine buttons "1" to "9" that lead to the pages of the Particulars of Development. Both forms of the Particulars
/// carry them.
class PageButtons {
public:
    static constexpr int count = 9;
    /// What each page is about. The system has numbers alone; tips and screen readers say more.
    static constexpr std::array<std::string_view, count> pageNames = {
        "proposal and applicant",
        "plot and zone",
        "industry and streets",
        "structures and floor area",
        "open spaces",
        "chowks, lifts and fire protection",
        "parking and balconies",
        "access, walls and levels",
        "materials, water and trees",
    };
    /// Pages 0 to 3 are tabs of frmAnnexureA, pages 4 to 8 those of AnnexureACont.
    static constexpr int firstOfSectionFour = 4;

    explicit PageButtons(Form& form);

    Button& operator[](int page) { return buttons.at(static_cast<std::size_t>(page)); }
    void onClick(const std::function<void(int page)>& reaction);
    /// Gives the button of the present page `activeButtonColor` and the others `formBackColor`.
    void paint(const Proposal& proposal, int current);

private:
    std::array<Button, count> buttons;
};

/// Program code moves the focus to the first control of the page now shown that can take it, as a Tab key sent to a
/// page button does.
void focusFirstOfPage(const Form& form);

}  // namespace plandesk
