#pragma once

#include <QPointer>
#include <QWidget>

#include "controls/Ports.h"

namespace plandesk::desktop {

/// Message boxes and file dialogs of the machine, before the window `parent`.
class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(const Program& program) : program(program) {}

    void showMessage(const Message& message) override;
    bool askYesNo(const Message& question) override;
    std::string openFile(const FileDialog& dialog) override;
    std::string saveFile(const FileDialog& dialog) override;

    QPointer<QWidget> parent;

private:
    QString titleOf(const Message& message) const;

    const Program& program;
};

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
