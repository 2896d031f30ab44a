#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <set>

#include "gui/FilledForms.h"
#include "gui/Registry.h"
#include "gui/SampleForm.h"
#include "particulars/frmAnnexureA.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

/// Why the widget cannot be read in full; empty when it can.
QString clipped(const QWidget& widget) {
    const QString name = widget.objectName() + " " + widget.accessibleName();
    const QSize size = widget.size();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const int needed = label->wordWrap() ? label->heightForWidth(size.width()) : label->sizeHint().height();
        const int word = label->wordWrap() ? 0 : label->sizeHint().width();
        if (size.height() < needed || size.width() < word)
            return "label " + label->text();
    } else if (qobject_cast<const QLineEdit*>(&widget)) {
        if (size.height() < widget.sizeHint().height())
            return "box " + name;
    } else if (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget)) {
        QSize hint = widget.sizeHint();
        if (const auto* button = qobject_cast<const QPushButton*>(&widget))
            hint.setWidth(widget.fontMetrics().size(Qt::TextShowMnemonic, button->text()).width());
        if (size.width() < hint.width() || size.height() < hint.height())
            return "control " + name;
    } else if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
        // The plots of an order have more columns than any screen is wide.
        constexpr int most = 10;
        if (table->horizontalScrollBar()->isVisible() && table->model()->columnCount() <= most)
            return "grid " + name;
    }
    return {};
}

/// Widgets that stand directly on the form, on its page, or among the options of a question: all that a layout places.
QList<QWidget*> placed(QWidget& view, QScrollArea& area) {
    QList<QWidget*> widgets;
    QList<QWidget*> parents = {&view, area.widget()};
    for (QGroupBox* options : area.widget()->findChildren<QGroupBox*>())
        parents += options;
    for (QWidget* parent : parents)
        for (QObject* child : parent->children())
            if (auto* widget = qobject_cast<QWidget*>(child); widget && widget->isVisible() && widget != &area)
                widgets += widget;
    return widgets;
}

QScrollArea& visibleArea(QWidget& view) {
    for (QScrollArea* area : view.findChildren<QScrollArea*>(QString(), Qt::FindDirectChildrenOnly))
        if (area->isVisible())
            return *area;
    qFatal("the form shows no page");
}

QChar mnemonicOf(const QString& caption) {
    const qsizetype place = caption.indexOf('&');
    return place < 0 || place + 1 >= caption.size() ? QChar() : caption[place + 1].toUpper();
}

}  // namespace

class LayoutTest : public QObject {
    Q_OBJECT

private slots:
    void nothingIsClippedAndNothingOverlaps_data() { addForms(); }
    void nothingIsClippedAndNothingOverlaps() {
        QFETCH(QString, name);
        QFETCH(int, fontScale);
        ScaledSession scaled(fontScale);
        Session& session = *scaled.session;
        Form& form = filledForm(session, name);
        for (const bool all : {false, true}) {
            if (all)
                showEverything(form);
            form.show();
            forEachPage(session, form, [&] {
                desktop::FormView& view = *session.window.forms().viewOf(form);
                QScrollArea& area = visibleArea(view);
                QVERIFY2(!area.horizontalScrollBar()->isVisible(), "the page is wider than the window");
                QVERIFY(session.window.rect().contains(QRect(view.mapTo(&session.window, QPoint(0, 0)), view.size())));
                const QList<QWidget*> widgets = placed(view, area);
                QVERIFY(!widgets.isEmpty());
                for (QWidget* widget : widgets) {
                    QVERIFY2(clipped(*widget).isEmpty(), qPrintable(clipped(*widget)));
                    QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()),
                             qPrintable(widget->objectName() + " stands over the edge"));
                    for (QWidget* other : widgets)
                        QVERIFY2(other == widget || other->parentWidget() != widget->parentWidget() ||
                                     !other->geometry().intersects(widget->geometry()),
                                 qPrintable(widget->objectName() + " covers " + other->objectName()));
                }
            });
        }
    }

    void theFontMayGrowWhileTheProgramRuns() {
        ScaledSession scaled(1);
        Session& session = *scaled.session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        QFont font = QApplication::font();
        font.setPointSizeF(2 * font.pointSizeF());
        QApplication::setFont(font);
        session.settle();
        desktop::FormView& view = *session.window.forms().viewOf(form);
        QScrollArea& area = visibleArea(view);
        QCOMPARE(session.widget(form.txtTitle).fontMetrics().height(), QFontMetrics(font).height());
        for (QWidget* widget : placed(view, area))
            QVERIFY2(clipped(*widget).isEmpty(), qPrintable(clipped(*widget)));
    }

    void everyControlHasItsNameForTestsAndForScreenReaders_data() { addForms(); }
    void everyControlHasItsNameForTestsAndForScreenReaders() {
        QFETCH(QString, name);
        QFETCH(int, fontScale);
        ScaledSession scaled(fontScale);
        Session& session = *scaled.session;
        Form& form = filledForm(session, name);
        showEverything(form);
        form.show();
        std::set<const Control*> drawn;
        forEachPage(session, form, [&] {
            for (Control* control : form.tabOrder()) {
                const QWidget* widget = session.window.forms().viewOf(form)->widgetOf(*control);
                QVERIFY2(widget, control->key().c_str());
                QCOMPARE(widget->objectName(), QString::fromStdString(control->key()));
                const auto* label = qobject_cast<const QLabel*>(widget);
                QVERIFY2(!(label ? label->text() : widget->accessibleName()).isEmpty(), control->key().c_str());
                QVERIFY(control->kind() == ControlKind::Label || control->kind() == ControlKind::Image ||
                        widget->focusPolicy() == Qt::TabFocus);
                drawn.insert(control);
            }
        });
        QVERIFY(!drawn.empty());
        if (const Control* tabs = form.findKey(form.layout().tabs))
            QVERIFY(!session.widget(*tabs).accessibleName().isEmpty());
    }

    void tabWalksDownTheScreen_data() { addForms(); }
    void tabWalksDownTheScreen() {
        QFETCH(QString, name);
        QFETCH(int, fontScale);
        ScaledSession scaled(fontScale);
        Session& session = *scaled.session;
        Form& form = filledForm(session, name);
        showEverything(form);
        form.show();
        forEachPage(session, form, [&] {
            desktop::FormView& view = *session.window.forms().viewOf(form);
            QWidget* page = visibleArea(view).widget();
            QPoint last(-1, -1);
            for (Control* control : form.tabOrder()) {
                QWidget* widget = view.widgetOf(*control);
                if (!page->isAncestorOf(widget))
                    continue;
                const QRect place(widget->mapTo(page, QPoint(0, 0)), widget->size());
                // In one line from left to right, else from top to bottom.
                QVERIFY2(
                    place.bottom() > last.y() && (place.top() >= last.y() - place.height() || place.left() > last.x()),
                    control->key().c_str());
                last = place.bottom() > last.y() + place.height() / 2 ? QPoint(place.left(), place.center().y())
                                                                      : QPoint(place.left(), last.y());
            }
        });
    }

    void theAnswersOfAPageBeginInOneColumn() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        const auto leftOf = [&](const Control& control) {
            return session.widget(control).mapTo(&session.window, QPoint(0, 0)).x();
        };
        const int left = leftOf(form.txtTitle);
        for (const Control* control :
             std::initializer_list<const Control*>{&form.cboCaseType, &form.DTPicker1, &form.txtpltno, &form.Opt1.yes,
                                                   &form.OptArch, &form.txtActualArea, &form.txtApplicantAddr})
            QCOMPARE(leftOf(*control), left);
    }

    void theMnemonicsOfTheMenuAndOfEachFormDiffer() {
        Session session;
        std::set<QChar> bar;
        for (QAction* action : session.window.menuBar()->actions())
            QVERIFY2(bar.insert(mnemonicOf(action->text())).second, qPrintable(action->text()));
        for (QAction* top : session.window.menuBar()->actions()) {
            std::set<QChar> menu;
            for (QAction* action : top->menu()->actions())
                if (const QChar key = mnemonicOf(action->text()); !key.isNull())
                    QVERIFY2(menu.insert(key).second, qPrintable(action->text()));
        }
        for (const char* name : formNames) {
            std::set<QChar> keys = bar;
            if (name == std::string_view("frmPrint"))
                keys.erase('P');  // "&Print" and "&Plot area details" are the system's own words
            for (Control* control : session.proposal.forms.touch(name)->controls())
                if (const auto* button = dynamic_cast<const Button*>(control))
                    if (const QChar key = mnemonicOf(desktop::toQt(button->caption())); !key.isNull())
                        QVERIFY2(keys.insert(key).second, control->key().c_str());
        }
    }

    void aRowWithoutAVisibleControlIsHiddenWithItsQuestion() {
        Stage stage;
        SampleForm& form = stage.form();
        auto questions = [&](const QString& text) {
            int visible = 0;
            for (QLabel* label : stage.desk.findChildren<QLabel*>())
                visible += label->isVisible() && label->text() == text ? 1 : 0;
            return visible;
        };
        QCOMPARE(questions("Number"), 1);
        QCOMPARE(questions("Sq. Mtrs"), 1);
        const auto height = [&] { return stage.widget(form.choice.yes).mapTo(&stage.desk, QPoint(0, 0)).y(); };
        const int before = height();
        form.number.setVisible(false);
        stage.settle();
        QCOMPARE(questions("Number"), 0);
        QCOMPARE(questions("Sq. Mtrs"), 0);
        QCOMPARE(questions("a."), 0);
        QVERIFY(height() < before);
        form.number.setVisible(true);
        stage.settle();
        QCOMPARE(questions("Number"), 1);
        QCOMPARE(height(), before);
    }

    void aLiveQuestionFollowsItsLabel() {
        Stage stage;
        SampleForm& form = stage.form();
        auto& label = stage.widget<QLabel>(form.caption);
        QVERIFY(label.isVisible());
        form.caption.setCaption("Resubmittion No.");
        stage.settle();
        QCOMPARE(label.text(), QString("Resubmittion No."));
        form.caption.setVisible(false);
        stage.settle();
        QVERIFY(!label.isVisible());
        QVERIFY(stage.widget(form.other).isVisible());
        form.caption.setVisible(true);
        form.other.setVisible(false);
        stage.settle();
        QVERIFY(!label.isVisible());
    }

    void aHiddenFrameHidesAllThatStandsInIt() {
        Stage stage;
        SampleForm& form = stage.form();
        QVERIFY(stage.widget(form.bank).isVisible());
        form.frame.setVisible(false);
        stage.settle();
        QVERIFY(!stage.widget(form.bank).isVisible());
        QVERIFY(form.bank.visible());
        form.bank.setText("changed while hidden");
        stage.settle();
        QVERIFY(!stage.widget(form.bank).isVisible());
        form.frame.setVisible(true);
        stage.settle();
        QVERIFY(stage.widget(form.bank).isVisible());
        QCOMPARE(stage.widget<QLineEdit>(form.bank).text(), QString("changed while hidden"));
    }

    void theFormHasTheColourThatTheSystemGaveIt() {
        Stage stage;
        stage.form().setBackColor({0xFF, 0xF8, 0xF2});
        stage.settle();
        const QImage image = stage.view.viewOf(stage.form())->grab().toImage();
        QCOMPARE(image.pixelColor(2, 2), QColor(0xFF, 0xF8, 0xF2));
        QCOMPARE(image.pixelColor(2, image.height() / 2), QColor(0xFF, 0xF8, 0xF2));
    }

    void theHelpHasOneScrollBar() {
        ScaledSession scaled(2);
        Session& session = *scaled.session;
        session.press("mnuContent");
        session.window.resize(1100, 700);
        session.settle();
        const Form& help = *session.proposal.forms.loaded("frmHelp");
        QWidget& text = session.widget(*help.find("rtfHelp"));
        QVERIFY(static_cast<QAbstractScrollArea&>(text).verticalScrollBar()->isVisible());
        QVERIFY(!visibleArea(*session.window.forms().viewOf(help)).verticalScrollBar()->isVisible());
    }

    void thePageScrollsToTheBoxThatGetsTheFocus() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        session.window.forms().act(Qt::OtherFocusReason, [&] { form.txtActualArea.setFocus(); });
        session.settle();
        QWidget& box = session.widget(form.txtActualArea);
        QCOMPARE(box.visibleRegion().boundingRect().size(), box.size());
    }

    void whatComesAfterTheFocusIsSeenToo() {
        Session session({1024, 420});
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        form.forEach<TextBox>([](TextBox& box) { box.setText("1"); });  // what is empty would hold the focus
        form.forEach<ComboBox>([](ComboBox& list) { list.setListIndex(0); });
        session.window.forms().act(Qt::OtherFocusReason, [&] { form.txtTitle.setFocus(); });
        auto& view = *session.window.forms().viewOf(form);
        const QWidget& seen = *visibleArea(view).viewport();
        const QScrollBar& bar = *visibleArea(view).verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        const int lines = 2 * session.window.fontMetrics().lineSpacing();
        int scrolled = 0;
        for (const bool back : {false, true})
            for (int step = 0; step < 14; ++step) {
                const int before = bar.value();
                QTest::keyClick(session.window.focusWidget(), Qt::Key_Tab, back ? Qt::ShiftModifier : Qt::NoModifier);
                session.settle();
                const QWidget& now = *session.window.focusWidget();
                if (!seen.isAncestorOf(&now) || bar.value() == before)
                    continue;
                ++scrolled;
                const QRect place(now.mapTo(&seen, QPoint(0, 0)), now.size());
                if (back)
                    QVERIFY(place.top() >= lines || bar.value() == bar.minimum());
                else
                    QVERIFY(seen.height() - place.bottom() >= lines || bar.value() == bar.maximum());
            }
        QVERIFY2(scrolled > 2, session.dialogs.messages.empty() ? "" : session.dialogs.messages[0].text.c_str());
    }
};

static const Registered<LayoutTest> registered;

#include "LayoutTest.moc"
