#include <QApplication>
#include <clocale>

#include "controls/FileStore.h"
#include "desktop/MainWindow.h"
#include "desktop/QtPorts.h"
#include "desktop/QtProgress.h"
#include "desktop/Theme.h"
#include "shell/mdiInterface.h"

int main(int, char* arguments[]) {
    using namespace plandesk;
    using namespace plandesk::desktop;
    // The program has no command line; the toolkit is not to find one either.
    int count = 1;
    QApplication application(count, arguments);
    // The toolkit takes over the user's number forms; the documents know only the plain one.
    std::setlocale(LC_NUMERIC, "C");
    useTheme();

    QtClock clock;
    QtProgram program;
    QtDialogs dialogs(program);
    QtProgress progress;
    FileStore files;
    Proposal proposal({dialogs, clock, files, program, progress});
    mdiInterface shell(proposal);
    MainWindow window(proposal, shell);
    dialogs.parent = progress.parent = &window;
    window.show();
    return QApplication::exec();
}
