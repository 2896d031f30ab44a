// What fails inside the system or the views reaches the user as one box, and the program goes on.

#include <QClipboard>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <array>
#include <new>

#include "controls/User.h"
#include "desktop/Application.h"
#include "gui/GridForm.h"
#include "gui/Registry.h"
#include "gui/SampleForm.h"
#include "gui/Session.h"

using namespace plandesk;
using namespace plandesk::test;

namespace {

struct Failure {
    const char* text;
    std::function<void()> happen;
};

/// What may be thrown, the platform's own errors and others.
const std::array failures = {
    Failure{"Item cannot be found in the collection corresponding to the requested name or ordinal.",
            [] { throw RuntimeError(ErrorNumber::ItemNotFound); }},
    Failure{"Out of memory", [] { throw std::bad_alloc(); }},
    Failure{"Internal error", [] { throw 42; }},
};

/// The texts of the boxes since the last call.
QStringList told(RecordingDialogs& dialogs) {
    QStringList texts;
    for (const Message& box : dialogs.take())
        texts += QString::fromStdString(box.text);
    return texts;
}

/// A form that fails while its picture is made, as long as it is told to.
class BrokenForm : public DataForm {
public:
    static constexpr std::string_view formName = "BrokenForm";

    explicit BrokenForm(Proposal& proposal) : DataForm(proposal, formName, "Broken") {}
    const Layout& layout() const override {
        if (broken)
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        static constexpr LayoutRow rows[] = {{"", "Box", "box"}};
        static constexpr LayoutGroup groups[] = {{"", rows}};
        static constexpr LayoutPage pages[] = {{groups}};
        static constexpr Layout sheet{.pages = pages};
        return sheet;
    }
    TextBox box{*this, "box"};
    bool broken = true;
};

/// A widget that fails at whatever event of its own it gets.
class BrokenWidget : public QWidget {
    bool event(QEvent* event) override {
        if (event->type() == QEvent::User)
            throw RuntimeError(ErrorNumber::TypeMismatch);
        return QWidget::event(event);
    }
};

}  // namespace

class FailureTest : public QObject {
    Q_OBJECT

private slots:
    void aReactionThatFailsIsToldAndTheNextKeyIsTaken_data() { addFailures(); }
    void aReactionThatFailsIsToldAndTheNextKeyIsTaken() {
        QFETCH(int, failure);
        Stage stage;
        stage.form().title.change = [&] {
            if (stage.form().title.text() == "a")
                failures.at(static_cast<std::size_t>(failure)).happen();
        };
        auto& title = stage.widget(stage.form().title);
        QTest::keyClicks(&title, "abc");
        QCOMPARE(told(stage.machine.dialogs), QStringList(failures.at(static_cast<std::size_t>(failure)).text));
        QCOMPARE(stage.form().title.text(), std::string("abc"));
    }

    void aFilterThatFailsSwallowsTheKeyAndIsTold_data() { addFailures(); }
    void aFilterThatFailsSwallowsTheKeyAndIsTold() {
        QFETCH(int, failure);
        Stage stage;
        const auto filter = [&](int key) {
            if (key == 'b')
                failures.at(static_cast<std::size_t>(failure)).happen();
            return key;
        };
        for (TextBox* box : {&stage.form().title, &stage.form().notes}) {
            box->keyPress = filter;
            auto& widget = stage.widget(*box);
            stage.view.act(Qt::OtherFocusReason, [&] { user::focus(*box); });
            QTest::keyClicks(&widget, "abc");
            stage.settle();
            QCOMPARE(box->text(), std::string("ac"));
            QCOMPARE(told(stage.machine.dialogs), QStringList(failures.at(static_cast<std::size_t>(failure)).text));
        }
    }

    void whatFailsAgainAndAgainIsToldOnceUntilTheUserActsAgain() {
        Stage stage;
        const auto fail = [&] { stage.view.guarded([] { throw RuntimeError(ErrorNumber::Overflow); }); };
        fail();
        fail();
        stage.settle();
        fail();
        stage.settle();
        QCOMPARE(told(stage.machine.dialogs), QStringList("Overflow"));
        stage.view.act(Qt::OtherFocusReason, fail);
        QCOMPARE(told(stage.machine.dialogs), QStringList("Overflow"));
    }

    void aFailureWithinAnActIsToldWhenTheActHasEnded() {
        Stage stage;
        bool ended = false;
        stage.view.act(Qt::OtherFocusReason, [&] {
            stage.view.guarded([] { throw RuntimeError(ErrorNumber::Overflow); });
            stage.settle();
            QVERIFY(stage.machine.dialogs.messages.empty());
            ended = true;
        });
        QVERIFY(ended);
        QCOMPARE(told(stage.machine.dialogs), QStringList("Overflow"));
    }

    void aFormThatCannotBeDrawnIsToldAndIsDrawnOnceItCan() {
        Stage stage;
        stage.proposal.forms.declare<BrokenForm>();
        auto& broken = stage.proposal.forms.get<BrokenForm>();
        stage.view.act(Qt::OtherFocusReason, [&] { broken.show(); });
        stage.settle();
        QCOMPARE(told(stage.machine.dialogs), QStringList("Object variable or With block variable not set"));
        QCOMPARE(stage.view.viewOf(broken), nullptr);
        broken.broken = false;
        stage.view.act(Qt::OtherFocusReason, [&] { broken.show(); });
        stage.settle();
        QTest::keyClicks(&stage.widget(broken.box), "x");
        QCOMPARE(broken.box.text(), std::string("x"));
        QCOMPARE(told(stage.machine.dialogs), QStringList());
    }

    void aTickAndAResizeThatFailAreTold() {
        Session session;
        session.shell.paintBackground = [] { throw RuntimeError(ErrorNumber::ObjectNotSet); };
        session.window.resize(session.window.size() - QSize(1, 1));
        QTRY_COMPARE(session.dialogs.messages.size(), std::size_t{1});
        QCOMPARE(told(session.dialogs), QStringList("Object variable or With block variable not set"));
        session.press("mnuAbout");
        QVERIFY(session.proposal.screen.frontForm());
    }

    void whatNobodyForesawStopsAtTheApplicationAndIsTold() {
        Session session;
        BrokenWidget broken;
        QCoreApplication::postEvent(&broken, new QEvent(QEvent::User));
        session.settle();
        QCOMPARE(told(session.dialogs), QStringList("Type mismatch"));
    }

    void aCellIsEditedThoughTheGridGotAnotherTableSinceItsLastLook() {
        GridStage stage(1);
        stage.click(0, GridForm::Name);
        const QPoint cell = stage.place(0, GridForm::Name).center();
        stage.form().grid.bind(GridForm::makeTable(3));
        stage.form().grid.moveTo(2, GridForm::Name);
        QTest::mouseDClick(stage.shown().viewport(), Qt::LeftButton, {}, cell);
        stage.settle();
        QVERIFY(stage.line());
        QCOMPARE(stage.line()->text(), QString("name 2"));
        QVERIFY(stage.machine.dialogs.messages.empty());
    }

    void noCellIsEditedInATableThatLostItsRowsSinceTheLastLook() {
        GridStage stage;
        stage.click(2, GridForm::Name);
        const QPoint cell = stage.place(2, GridForm::Name).center();
        stage.form().grid.bind(GridForm::makeTable(0));
        QTest::mouseDClick(stage.shown().viewport(), Qt::LeftButton, {}, cell);
        stage.settle();
        QVERIFY(!stage.line());
        QVERIFY(stage.machine.dialogs.messages.empty());
    }

    void aCellThatIsNoneHasNothingToShow() {
        GridStage stage;
        const QAbstractItemModel& model = *stage.shown().model();
        QCOMPARE(model.data({}, Qt::DisplayRole), QVariant());
        QCOMPARE(model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).toString(), QString());
        QCOMPARE(model.flags({}) & Qt::ItemIsEditable, 0);
        QVERIFY(stage.machine.dialogs.messages.empty());
    }

private:
    static void addFailures() {
        QTest::addColumn<int>("failure");
        for (std::size_t number = 0; number < failures.size(); ++number)
            QTest::newRow(failures.at(number).text) << static_cast<int>(number);
    }
};

static const Registered<FailureTest> registered;
#include "FailureTest.moc"
