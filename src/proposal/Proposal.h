#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "controls/Colour.h"
#include "controls/Ports.h"
#include "controls/Screen.h"
#include "proposal/Commands.h"
#include "proposal/Forms.h"
#include "proposal/Tables.h"

namespace plandesk {

/// What the open proposal holds beside its tables and forms: plain values, assigned as a whole.
struct ProposalValues {
    bool isNewProposal = false;    ///< a new proposal is being filled in
    bool isProposalOpen = false;   ///< the proposal has a file
    bool isSaveRequested = false;  ///< raised by Save, never read
    bool isSaveAsRequested = false;
    bool is712Current = false;  ///< 7/12 extracts, not PRCs, are the subject of a shared routine
    bool isSavingLandRecord = false;
    bool ownershipRelationSaved = false;
    bool noReportReturn = false;
    bool isDirectPrint = false;

    std::int16_t currentFormNo = 0;  ///< page of the Particulars last shown through the page buttons, 0 to 8
    std::int16_t feeArea = 0;        ///< area that the fees are worked out for, whole square metres
    std::int16_t noOfExtract712 = 0;
    std::int16_t noOfPRC = 0;

    Colour activeButtonColor = white;
    Colour formBackColor = white;

    // Fragments of the document. Each keeps its last value until its form saves again.
    std::string annexureBXML;
    std::string extractOwnerXML;
    std::string prcOwnerXML;
    std::string naOrderXML;
    std::string ULCScrutinyXML;
    std::string plotRelXML;
    std::string plotPrcDetailsXML;
    std::string discretionRevisedXML;
    std::string discretionNewXML;
    std::string drcIssueXML;
    std::string drcTransferXML;
    std::string drcUtilisationXML;
    std::string secondScrutinyFees;  ///< of the first save of the payment form; never emptied
    std::string mandatoryDocList;    ///< checklist string of frmDocCheckList
    std::string conditionalDocList;  ///< checklist string of frmDocCheckList1

    // What the continuation of a transfer deed held when it was last closed.
    std::string drcFolioNumber1;
    std::string drcFolioNumber2;
    std::string drcFolioNumber3;
    std::string drcFolioNumber4;
    std::string drcFolioNumber5;
    std::string drcLoggedBy;
    std::string drcFullAddress;
    std::string drcNameAddress;
    std::string drcVideReceiptNo;
    std::string drcReceiptDate;

    // Remarks of the land records as last read from a document.
    std::string remark712;
    std::string remarkPRC;

    std::string proposalText;  ///< the document as last joined
};

/// The one open proposal: its flags, numbers and document fragments, its forms, and what they may ask of others.
/// All state of the running system hangs here, so that several can live side by side.
class Proposal : public ProposalValues {
public:
    explicit Proposal(const Ports& ports);
    Proposal(const Proposal&) = delete;
    Proposal& operator=(const Proposal&) = delete;

    /// Makes this the same as another proposal, down to the focus: its loaded forms, tables and values. No reaction
    /// runs and no box is shown; commands, procedures and ports stay this one's own. Both between two events.
    void copyFrom(const Proposal& original);

    Screen screen;
    Commands commands;
    Tables tables;

    /// Procedures without arguments that are reachable by name.
    std::map<std::string, std::function<void()>, IgnoringCase> procedures;

    Forms forms{*this};  // last, so that the forms go first

    struct FlagName {
        std::string_view name;
        bool Proposal::*flag;
    };
    struct NumberName {
        std::string_view name;
        std::int16_t Proposal::*number;
    };
    struct FragmentName {
        std::string_view name;
        std::string Proposal::*text;
    };
    static const std::span<const FlagName> flags;
    static const std::span<const NumberName> numbers;
    static const std::span<const FragmentName> fragments;
};

}  // namespace plandesk
