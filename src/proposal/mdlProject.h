#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Field rules that all forms share.

namespace plandesk {

class Form;
class Proposal;
class TextBox;

/// -1 as soon as the text holds a member of the kind's character set, in any case; 0 when it holds none, is empty, or
/// the kind is unknown. Kinds in any case: "alpha", "alphanumeric", "numeric", "decimal", "currency", "spalphanumeric",
/// "phone", "short", "name", "password", "ishtml", "invalid", "amp", and "alphaint", which the Particulars alone use.
std::int16_t chkString(std::string_view text, std::string_view kind);

/// Key filters: 0 swallows the key. Backspace (8) and digits pass; the decimal filter lets the point pass too.
int keyFilterDecimal(int key);
int keyFilterNumeric(int key);
/// Swallows # $ % & * @ ^ ~ and lets every other key pass.
int dropSpecialKeys(int key);

/// "&", "<" and ">" as entities, in this order, and nothing else.
std::string EscapeXML(std::string_view value);

/// First letter and each letter a to z behind a character outside a to z in upper case, all others in lower case; so a
/// digit starts a new word too: "2nd" becomes "2Nd".
std::string properCase(std::string_view text);

/// The text box of the form that has the focus takes its text in proper case. Nothing for any other control.
void rewriteInProperCase(const Form& form);

/// Each date picker of the form takes the present date.
void setAllDatesToToday(Form& form);

/// Gives `formBackColor` to the form and to every control that is no text box, button, list or one of the three kinds
/// without a back colour. Runs at the end of each form's load.
void setFormColors(Form& form, const Proposal& proposal);

/// Enables a box in white, or disables it in grey with its text kept.
void openBox(TextBox& box);
void closeBox(TextBox& box);
/// Empties, disables and greys a box.
void emptyAndCloseBox(TextBox& box);

/// Told of a box that holds a member of the "amp" class.
inline constexpr std::string_view noSpecialCharacter = "Do not enter any special character [!@#$%^&*]";

/// The pair check of fee and page boxes, run when `first` has changed. A box that holds a letter or a special character
/// is told of in a message, emptied and given the focus; with both boxes filled and sound and `compute` set, `target`
/// becomes their product in the default text form of a number.
/// RuntimeError 13 when a product is asked of a text that is no number, 6 when it is beyond the range of a double.
void checkRateBox(TextBox& first, TextBox& second, TextBox& target, bool compute);

/// Tip of the buttons that run closeAllForms.
inline constexpr std::string_view closesProgramTip = "Ends the program without saving";

// Tips of buttons whose captions tell too little.
inline constexpr std::string_view savesAllTip = "Gathers the answers of all forms and writes the proposal's file";
inline constexpr std::string_view keepsAnswersTip =
    "Keeps these answers for the proposal's file, which it does not write";
inline constexpr std::string_view printsTip = "Shows the paper; Ctrl+P lists all papers to print";
inline constexpr std::string_view readsAgainTip = "Reads this part of the proposal's file again";

/// Unloads frmPayDetail, frmDocCheckList, AnnexureACont and frmAnnexureA, and ends the program without a question.
void closeAllForms(Proposal& proposal);

}  // namespace plandesk
