#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "base/Date.h"

// What the system asks of the platform. The window and the script driver each bring their own.

namespace plandesk {

class Control;
struct Paper;

enum class Icon { None, Information, Question, Critical };

struct Message {
    std::string title;  ///< empty: the message has no title of its own, a window shows the program's name
    std::string text;
    Icon icon = Icon::None;
    std::string detail{};            ///< a second line that helps to find what is meant: a file, a form's question
    const Control* about = nullptr;  ///< the control that is meant, beside which a window shows the message

    /// Whether the system tells the same; the help that a window adds does not count.
    bool operator==(const Message& other) const {
        return title == other.title && text == other.text && icon == other.icon;
    }
};

struct FileDialog {
    std::string title;
    std::string defaultExtension;
    std::string filter;
    std::string fileName;        ///< what the system puts into the name field; comes back when the user cancels
    std::string proposedName{};  ///< name to offer where the system leaves the field empty, without an extension
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// An event of the user begins; the messages until the next one are all of it.
    virtual void eventBegins() {}
    /// Shows a message with an OK button and returns when it was closed.
    virtual void showMessage(const Message& message) = 0;
    /// Shows a question with Yes and No; true for Yes.
    virtual bool askYesNo(const Message& question) = 0;
    /// The chosen path, or what `dialog.fileName` held when the user cancelled.
    virtual std::string openFile(const FileDialog& dialog) = 0;
    virtual std::string saveFile(const FileDialog& dialog) = 0;
    /// The chosen folder; empty when the user cancelled, or where folders cannot be asked for.
    virtual std::string chooseFolder(const std::string& /*title*/) { return {}; }
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual Date today() const = 0;
};

class Files {
public:
    virtual ~Files() = default;
    /// Calls `take` with each line of a text file, without its end (line feed, or carriage return and line feed) and
    /// without a byte-order mark. RuntimeError 53 when the file is missing, 75 when it cannot be read.
    virtual void readLines(const std::filesystem::path& path, const std::function<void(std::string_view)>& take) = 0;
    /// Writes the file whole or not at all: at any moment the disk holds the earlier file or the new one.
    /// RuntimeError 61, 70, 75, 76 or 57 when it cannot; the earlier file is then untouched.
    virtual void writeWhole(const std::filesystem::path& path, std::string_view bytes) = 0;
};

class Program {
public:
    virtual ~Program() = default;
    /// The folder of the program's own files, without a "/" at its end.
    virtual std::string folder() const = 0;
    /// Name, title and version that the program was built with.
    virtual std::string title() const = 0;
    virtual std::string version() const = 0;
    /// Starts the machine's own system information tool; false when there is none.
    virtual bool startSystemInformation() = 0;
    /// Ends the program at once, without any save. Returns to the caller, after which no event reaches the system.
    virtual void end() = 0;
};

/// Puts filled reports on paper.
class Printer {
public:
    virtual ~Printer() = default;
    /// Whether there is a printer to print on.
    virtual bool ready() = 0;
    /// Prints on the default printer, without a dialog. RuntimeError 482 when it cannot.
    virtual void print(const Paper& paper) = 0;
    /// Writes the PDF whole or not at all. RuntimeErrors as `Files::writeWhole`.
    virtual void writePdf(const Paper& paper, const std::filesystem::path& file) = 0;

    static Printer& none();  ///< there is no printer, and no PDF either: 482
};

/// Hears how far a piece of work has come. Whether it takes long enough to be shown is for the platform to judge; the
/// calls are cheap enough to be made for short work too.
class Progress {
public:
    virtual ~Progress() = default;
    virtual void begin(std::string_view /*work*/, int /*steps*/) {}
    virtual void step() {}
    virtual void end() {}

    static Progress& unheard();
};

/// Tells of one piece of work for as long as it lives.
class ProgressOf {
public:
    ProgressOf(Progress& progress, std::string_view work, int steps) : progress(progress) {
        progress.begin(work, steps);
    }
    ~ProgressOf() { progress.end(); }
    ProgressOf(const ProgressOf&) = delete;
    ProgressOf& operator=(const ProgressOf&) = delete;

    void step() { progress.step(); }

private:
    Progress& progress;
};

/// Everything the system needs of its surroundings. The referenced objects outlive the system.
struct Ports {
    Dialogs& dialogs;
    Clock& clock;
    Files& files;
    Program& program;
    Progress& progress = Progress::unheard();
    Printer& printer = Printer::none();
};

}  // namespace plandesk
