// A main window with one menu and one line of text: what the toolkit needs to start with letters, whatever they say.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&Menu"))->addAction(QStringLiteral("Entry"));
    window.statusBar()->addWidget(new QLabel(QStringLiteral("Text")));
    window.resize(1024, 700);
    window.show();
    return QApplication::exec();
}
