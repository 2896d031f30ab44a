#include "desktop/Accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QEvent>
#include <QRadioButton>

#include "desktop/LinkLabel.h"

namespace plandesk::desktop {

namespace {

class AccessibleOption : public QAccessibleWidget {
public:
    explicit AccessibleOption(QRadioButton& button) : QAccessibleWidget(&button, QAccessible::RadioButton) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button().isChecked();
        return state;
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button().isEnabled())
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (action == pressAction())
            button().click();
        else
            QAccessibleWidget::doAction(action);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QRadioButton& button() const { return static_cast<QRadioButton&>(*widget()); }
};

class AccessibleLink : public QAccessibleWidget {
public:
    explicit AccessibleLink(LinkLabel& link) : QAccessibleWidget(&link, QAccessible::Link) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? link().text() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (link().isEnabled())
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (action == pressAction() && link().isEnabled())
            link().pressed();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    LinkLabel& link() const { return static_cast<LinkLabel&>(*widget()); }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    if (auto* option = className == QLatin1String("QRadioButton") ? qobject_cast<QRadioButton*>(object) : nullptr)
        return new AccessibleOption(*option);
    auto* link = className == QLatin1String("QLabel") ? dynamic_cast<LinkLabel*>(object) : nullptr;
    return link ? new AccessibleLink(*link) : nullptr;
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(makeInterface);
}

OptionsBox::OptionsBox(QWidget& page) : QGroupBox(&page) {}

void OptionsBox::surround() {
    QRect around;
    const QList<QWidget*> options = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* option : options)
        if (!option->isHidden())
            around |= option->geometry();
    setGeometry(around);
    for (QWidget* option : options)
        option->move(option->pos() - around.topLeft());
    // What has just been placed is no reason to place it again.
    QCoreApplication::removePostedEvents(this, QEvent::LayoutRequest);
}

bool OptionsBox::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        QCoreApplication::postEvent(parentWidget(), new QEvent(QEvent::LayoutRequest));
    return QGroupBox::event(event);
}

}  // namespace plandesk::desktop
