#pragma once

#include <QCoreApplication>
#include <QTest>
#include <string_view>

#include "controls/Controls.h"
#include "controls/FileStore.h"
#include "controls/Form.h"
#include "desktop/FormView.h"
#include "desktop/MainWindow.h"
#include "shell/mdiInterface.h"
#include "unit/TestPorts.h"

namespace plandesk::test {

/// The program's own folder with the real lists, everything else in memory.
class ProgramFolder : public RecordingProgram {
public:
    std::string folder() const override { return QCoreApplication::applicationDirPath().toStdString(); }
};

/// A whole system with its window; message boxes and file dialogs are answered from the queue of `dialogs`.
struct Session {
    RecordingDialogs dialogs;
    FixedClock clock;
    FileStore files;
    ProgramFolder program;
    Proposal proposal{{dialogs, clock, files, program}};
    mdiInterface shell{proposal};
    desktop::MainWindow window{proposal, shell};

    explicit Session(QSize size = {1024, 700}) {
        window.furnish();
        window.resize(size);
        window.show();
        settle();
    }

    /// Lets everything that is due be shown.
    void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    void press(std::string_view menuEntry) {
        window.forms().act(Qt::OtherFocusReason, [&] { shell.press(menuEntry); });
        settle();
    }
    template <class T>
    T& form() {
        return proposal.forms.get<T>();
    }
    /// Widget of a control that has been drawn.
    template <class Widget = QWidget>
    Widget& widget(const Control& control) {
        QWidget* found = window.forms().viewOf(control.form())->widgetOf(control);
        Q_ASSERT(found);
        return static_cast<Widget&>(*found);
    }
};

}  // namespace plandesk::test
