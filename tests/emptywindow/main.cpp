// An empty main window: what the toolkit alone needs to start, to measure the program against.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1024, 700);
    window.show();
    return QApplication::exec();
}
