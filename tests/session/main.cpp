// plandesk-session SCRIPT PICTURES [keyboard|hurried]: shows the whole program on the present display, lets a robot
// work it with keyboard and mouse, by keyboard alone, or so with counted keys, as the driver's script SCRIPT says, and
// leaves pictures in the folder PICTURES.

#include <QApplication>
#include <QThread>
#include <clocale>
#include <fstream>
#include <iostream>
#include <map>
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
    using Manner = session::Robot::Manner;
    const std::map<std::string_view, Manner> manners = {
        {"", Manner::MouseAndKeyboard}, {"keyboard", Manner::KeyboardAlone}, {"hurried", Manner::Hurried}};
    const auto manner = manners.find(argc == 4 ? argv[3] : "");
    if ((argc != 3 && argc != 4) || manner == manners.end()) {
        std::cerr << "usage: plandesk-session SCRIPT PICTURES [keyboard|hurried]\n";
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
    window.furnish();
    dialogs.parent = progress.parent = &window;
    window.resize(1024, 700);
    window.show();

    int status = 0;
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        try {
            std::ifstream script(argv[1]);
            if (!script)
                throw std::runtime_error(std::string("cannot read ") + argv[1]);
            session::Robot robot(proposal, window, argv[2], manner->second);
            robot.run(script);
            if (const std::string summary = robot.summary(); !summary.empty())
                std::cout << summary << '\n';
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
