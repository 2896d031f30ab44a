#include "desktop/QtProgress.h"

#include <QCoreApplication>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>
#include <utility>

#include "base/Text.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

using namespace std::chrono_literals;

/// What ends sooner is over before one could read its name.
constexpr auto shortWork = 300ms;
constexpr auto betweenLooks = 50ms;

}  // namespace

QtProgress::QtProgress(std::function<Time()> now) : now(std::move(now)) {}

QtProgress::~QtProgress() {
    hidePanel();
}

void QtProgress::begin(std::string_view work, int ofSteps) {
    if (++depth > 1)
        return;
    name = trim(work);
    steps = ofSteps;
    done = 0;
    due = now() + shortWork;
}

void QtProgress::step() {
    done += depth == 1 ? 1 : 0;
    const Time time = now();
    if (depth == 0 || time < due || !parent)
        return;
    if (!panel)
        showPanel();
    bar->setValue(std::min(done, steps));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    due = now() + betweenLooks;
}

void QtProgress::end() {
    if (depth > 0 && --depth == 0)
        hidePanel();
}

void QtProgress::showPanel() {
    panel = new QFrame(parent);
    panel->setObjectName(QStringLiteral("progress"));
    panel->setFrameShape(QFrame::Box);
    panel->setAutoFillBackground(true);
    bar = new QProgressBar(panel);
    bar->setRange(0, steps);
    bar->setAccessibleName(toQt(name));
    auto* label = new QLabel(toQt(name), panel);
    label->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(panel);
    column->addWidget(label);
    column->addWidget(bar);
    constexpr int characters = 50;
    panel->resize(std::min(parent->width(), characters * panel->fontMetrics().averageCharWidth()),
                  panel->sizeHint().height());
    panel->move(parent->rect().center() - panel->rect().center());
    panel->show();
    panel->raise();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtProgress::hidePanel() {
    if (!panel)
        return;
    QGuiApplication::restoreOverrideCursor();
    delete panel;
}

}  // namespace plandesk::desktop
