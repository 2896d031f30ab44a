// Runs the test classes of this program: the one that the first argument names, or all of them. Further arguments go to
// the test library.

#include <QTest>
#include <iostream>

#include "desktop/Application.h"
#include "desktop/Theme.h"
#include "gui/Registry.h"

int main(int argc, char* argv[]) {
    plandesk::desktop::Application application(argc, argv);
    plandesk::desktop::useTheme();
    const auto& classes = plandesk::test::registry();
    QStringList arguments = QCoreApplication::arguments();
    int failures = 0;
    const std::string name = arguments.size() > 1 ? arguments[1].toStdString() : "";
    if (!name.empty()) {
        arguments.removeAt(1);
        if (!classes.contains(name)) {
            std::cerr << "no test class " << name << '\n';
            return 2;
        }
    }
    for (const auto& [className, make] : classes)
        if (name.empty() || name == className)
            failures += QTest::qExec(make().get(), arguments);
    return failures;
}
