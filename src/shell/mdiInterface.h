#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "controls/Colour.h"
#include "controls/Form.h"
#include "document/ReadXML.h"
#include "proposal/Proposal.h"
#include "shell/MainMenu.h"

namespace plandesk {

class ReportDesk;
class rptAnnexture;
struct DocumentBlock;

/// The main window without its picture: menu, proposal flags, the commands New, Open, Save, Save As and Exit, timers.
/// Constructing it is the start of the program.
class mdiInterface {
public:
    /// Makes the forms known, fills in the proposal's commands and runs the load routine.
    explicit mdiInterface(Proposal& proposal);
    ~mdiInterface();

    /// The proposal that this window shows.
    const Proposal& opened() const { return proposal; }

    /// Makes this window and its proposal the same as another with its own: what can be pressed, what was read last,
    /// the reports that are open, and the proposal as `Proposal::copyFrom` tells.
    void copyFrom(const mdiInterface& original);

    /// Opens a file's bytes as Open does after its dialog, under that path. False when they are no document; the
    /// proposal counts as open then too.
    bool openBytes(std::string_view bytes, const std::string& path);

    /// Whether the entry, and the submenu it stands in, can be pressed. False for a name that is no entry, and for all
    /// while a modal form is open.
    bool available(std::string_view name) const;
    /// The user presses the entry: the focused control loses the focus without a leave check, then the command runs as
    /// one event. False for an entry that is not available; nothing happens then.
    bool press(std::string_view entry);
    /// The user presses the close button: the same question as Exit. The window stays open unless the program ended.
    /// False while a modal form is open; nothing happens then.
    bool pressClose();
    /// The window changed its size: the next tick of Timer2 paints the picture once.
    void resized();

    ReportDesk& reports() { return *desk; }
    const ReportDesk& reports() const { return *desk; }
    /// Closes all reports and leads back to where they were asked for.
    void closeReports();

    Colour backColor() const { return back; }
    bool timer2Enabled() const { return timer2Running; }
    void Timer1_Timer();
    void Timer2_Timer();
    /// Called by a tick of Timer2 to paint the centred picture; `minimised` says whether there is anything to paint.
    std::function<void()> paintBackground = [] {};
    std::function<bool()> minimised = [] { return false; };

    /// Runs a procedure of the main window by name in any case, "mnuNew_Click" for instance. False when there is none.
    bool run(std::string_view procedure);

private:
    void loadRoutine();
    void uloadAllForms();
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuExit_Click();
    void mnuAnnexure_Click();
    void refreshMenus();
    /// True, with a message, while no proposal is begun.
    bool requireParticulars();
    /// The steps of opening a file, from the unload to the first page; a cancelled dialog leaves the forms unloaded.
    void openFile();
    /// The document that is loaded becomes the proposal.
    void readDocument(const std::string& path);
    void renewTables();
    void readBlock(const DocumentBlock& block);
    void fillCommands();
    void openForm(std::string_view name);
    void setAvailable(std::string_view entry, bool on);

    Proposal& proposal;
    ReadXML reader{proposal};
    std::unique_ptr<ReportDesk> desk;
    std::unique_ptr<rptAnnexture> feeds;
    Colour back;
    bool timer2Running = false;
    std::set<std::string, IgnoringCase> closed;  ///< entries that are not available now
    std::map<std::string, std::function<void()>, IgnoringCase> commands;
};

}  // namespace plandesk
