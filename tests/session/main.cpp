// plandesk-session SCRIPT PICTURES [keyboard]: shows the whole program on the present display, lets a robot work it
// with keyboard and mouse, or by keyboard alone, as the driver's script SCRIPT says, and leaves pictures in the folder
// PICTURES.

#include <QApplication>
#include <QThread>
#include <clocale>
#include <fstream>
#include <iostream>
#include <memory>
#include <string_view>

#include "controls/FileStore.h"
#include "desktop/QtPorts.h"
#include "desktop/QtProgress.h"
#include "desktop/Theme.h"
#include "session/Robot.h"
#include "shell/mdiInterface.h"

int main(int argc, char* argv[]) {
    using namespace plandesk;
    const bool keyboardAlone = argc == 4 && std::string_view(argv[3]) == "keyboard";
    if (argc != 3 && !keyboardAlone) {
        std::cerr << "usage: plandesk-session SCRIPT PICTURES [keyboard]\n";
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    std::setlocale(LC_NUMERIC, "C");
    desktop::useTheme();
    desktop::QtClock clock;
    desktop::QtProgram program;
    desktop::QtDialogs dialogs(program);
    desktop::QtProgress progress;
    FileStore files;
    Proposal proposal({dialogs, clock, files, program, progress});
    mdiInterface shell(proposal);
    desktop::MainWindow window(proposal, shell);
    dialogs.parent = progress.parent = &window;
    window.resize(1024, 700);
    window.show();

    int status = 0;
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        try {
            std::ifstream script(argv[1]);
            if (!script)
                throw std::runtime_error(std::string("cannot read ") + argv[1]);
            session::Robot(proposal, window, argv[2], keyboardAlone).run(script);
        } catch (const std::exception& error) {
            std::cerr << error.what() << '\n';
            status = 1;
        }
        QMetaObject::invokeMethod(&application, [&] { QApplication::exit(status); });
    }));
    worker->start();
    QApplication::exec();
    // The program may have ended under the robot's hands; its last looks are still to be answered.
    while (!worker->wait(1))
        QApplication::processEvents();
    return status;
}
