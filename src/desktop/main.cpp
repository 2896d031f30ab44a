#include <QSessionManager>
#include <clocale>
#include <optional>

#include "controls/FileStore.h"
#include "desktop/Application.h"
#include "desktop/MainWindow.h"
#include "desktop/Process.h"
#include "desktop/QtPorts.h"
#include "desktop/QtPrinter.h"
#include "desktop/QtProgress.h"
#include "desktop/Theme.h"
#include "shell/mdiInterface.h"

int main(int, char* arguments[]) {
    using namespace plandesk;
    using namespace plandesk::desktop;
    surviveFailedWrites();
    // The program has no command line; the toolkit is not to find one either.
    int count = 1;
    std::optional<ToolkitStart> start(std::in_place);
    Application application(count, arguments);
    start.reset();
    // The toolkit takes over the user's number forms; the documents know only the plain one.
    std::setlocale(LC_NUMERIC, "C");
    useTheme();

    QtClock clock;
    QtProgram program;
    QtDialogs dialogs(program);
    QtProgress progress;
    FileStore files;
    QtPrinter printer(files);
    Proposal proposal({dialogs, clock, files, program, progress, printer});
    mdiInterface shell(proposal);
    MainWindow window(proposal, shell);
    dialogs.parent = progress.parent = &window;
    window.printWithDialog = [&printer](const Paper& paper, const PaperPages& pages, QWidget* above) {
        printer.printWithDialog(paper, pages, above);
    };
    dialogs.placeOnScreen = [&window](const Control& control) { return window.forms().placeOnScreen(control); };
    const EndSignals endSignals([&window] { window.closeWhenIdle(); });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     [&window](QSessionManager& manager) { answerEndOfSession(window, manager); });
    window.show();
    return Application::exec();
}
