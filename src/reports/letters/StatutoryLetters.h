#pragma once

#include <string_view>

#include "reports/letters/LetterForm.h"

// The six letters of the development control regulations. What each says stands in its own file.

namespace plandesk {

/// Appendix B: the licensed person takes the supervision of the work.
class frmofsupervision : public LetterForm {
public:
    static constexpr std::string_view formName = "frmofsupervision";
    explicit frmofsupervision(Proposal& proposal);
};

/// Appendix F: the owner tells when the work begins.
class frmnoticeofcommencementofwork : public LetterForm {
public:
    static constexpr std::string_view formName = "frmnoticeofcommencementofwork";
    explicit frmnoticeofcommencementofwork(Proposal& proposal);

    Label lblPageNumber{*this, "lblPageNumber", "Page Number  :"};

private:
    /// The page is asked for once the plot was surrendered.
    void possessionreciept_Click();
    Fixed<TextBox&> pageNumber;
};

/// Appendix G: the plinth stands.
class frmcompletionuptoplinthlevel : public LetterForm {
public:
    static constexpr std::string_view formName = "frmcompletionuptoplinthlevel";
    explicit frmcompletionuptoplinthlevel(Proposal& proposal);
};

/// Appendix J-1: the building is completed.
class frmbuildingcompletioncertificate : public LetterForm {
public:
    static constexpr std::string_view formName = "frmbuildingcompletioncertificate";
    explicit frmbuildingcompletioncertificate(Proposal& proposal);
};

/// Appendix I: the owner answers for the risk while a part is occupied.
class frmforpartoccupancycertificate : public LetterForm {
public:
    static constexpr std::string_view formName = "frmforpartoccupancycertificate";
    explicit frmforpartoccupancycertificate(Proposal& proposal);

    /// Puts the text that is left in proper case, on this letter alone.
    void enterPressed() override;
};

/// The owners declare what they give up for transferable development rights.
class frmtdrfortransferringownership : public LetterForm {
public:
    static constexpr std::string_view formName = "frmtdrfortransferringownership";
    explicit frmtdrfortransferringownership(Proposal& proposal);
};

}  // namespace plandesk
