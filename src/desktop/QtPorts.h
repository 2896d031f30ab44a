#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "controls/Ports.h"

class QFileDialog;

namespace plandesk::desktop {

/// Message boxes and file dialogs of the machine, before the window `parent`. File dialogs begin in the folder of the
/// file chosen last, the first one in the user's documents.
class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(const Program& program) : program(program) {}

    void eventBegins() override;
    /// After some hundred boxes of one event the box offers to skip the rest of them. Questions are asked all the same.
    void showMessage(const Message& message) override;
    bool askYesNo(const Message& question) override;
    std::string openFile(const FileDialog& dialog) override;
    std::string saveFile(const FileDialog& dialog) override;
    std::string chooseFolder(const std::string& title) override;

    QPointer<QWidget> parent;
    /// Where the control stands on the machine's screen; an empty rectangle when it cannot be seen.
    std::function<QRect(const Control&)> placeOnScreen = [](const Control&) { return QRect(); };

private:
    QString titleOf(const Message& message) const;
    /// Where file dialogs begin.
    QString firstFolder() const;
    std::string chosenPath(QFileDialog& chooser, const FileDialog& dialog);

    const Program& program;
    int boxes = 0;  ///< of the event under way
    bool skipping = false;
    QString lastFolder;  ///< of the file chosen last in this run
};

/// A file name, without extension, made of a title: at most 80 characters, none that a file system refuses.
/// Empty when nothing is left.
QString safeFileName(const QString& title);

/// Top left corner of a box of that size that stands below, above, right or left of the field, the first of them for
/// which there is room; nothing when there is none.
std::optional<QPoint> besideField(QSize box, const QRect& field, const QRect& room);

class QtClock : public Clock {
public:
    Date today() const override;
};

class QtProgram : public Program {
public:
    std::string folder() const override;
    std::string title() const override;
    std::string version() const override;
    bool startSystemInformation() override;
    void end() override;
};

}  // namespace plandesk::desktop
