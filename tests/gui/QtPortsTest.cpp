#include "desktop/QtPorts.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/Screen.h"
#include "desktop/QtText.h"
#include "gui/Registry.h"
#include "unit/TestPorts.h"

using namespace plandesk;
using namespace plandesk::desktop;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

/// Does something to the dialog that opens next.
template <class Dialog>
void whenOpen(const std::function<void(Dialog&)>& act) {
    constexpr int pause = 10;  // milliseconds
    QTimer::singleShot(pause, qApp, [act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isActiveWindow())
            return whenOpen(act);
        act(*dialog);
    });
}

}  // namespace

class QtPortsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void aBoxShowsTitleTextAndIcon_data() {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("shownTitle");
        QTest::addColumn<int>("icon");
        QTest::addColumn<int>("shownIcon");
        QTest::newRow("information") << "Payment Details"
                                     << "Payment Details" << int(Icon::Information) << int(QMessageBox::Information);
        QTest::newRow("blanks in the title")
            << "Particulars of development ! "
            << "Particulars of development ! " << int(Icon::Critical) << int(QMessageBox::Critical);
        QTest::newRow("no title") << ""
                                  << "Plandesk" << int(Icon::None) << int(QMessageBox::NoIcon);
        QTest::newRow("question") << "?"
                                  << "?" << int(Icon::Question) << int(QMessageBox::Question);
    }
    void aBoxShowsTitleTextAndIcon() {
        QFETCH(QString, title);
        QFETCH(QString, shownTitle);
        QFETCH(int, icon);
        QFETCH(int, shownIcon);
        QtProgram program;
        QtDialogs dialogs(program);
        bool seen = false;
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            seen = true;
            QCOMPARE(box.windowTitle(), shownTitle);
            QCOMPARE(box.text(), QString("<b>Enter</b> Draft No & more"));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(int(box.icon()), shownIcon);
            QCOMPARE(box.standardButtons(), QMessageBox::Ok);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        dialogs.showMessage({fromQt(title), "<b>Enter</b> Draft No & more", static_cast<Icon>(icon)});
        QVERIFY(seen);
    }

    void afterTwoHundredBoxesOfOneEventTheRestCanBeSkipped() {
        QtProgram program;
        QtDialogs dialogs(program);
        int shown = 0;
        int offers = 0;
        // Leaves the first offer unheeded and takes the second.
        QTimer hand;
        connect(&hand, &QTimer::timeout, &hand, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            ++shown;
            QAbstractButton* skip = box->button(QMessageBox::Ok);
            for (QAbstractButton* button : box->buttons())
                if (button->text() == "&Skip the rest" && ++offers == 2)
                    skip = button;
            skip->click();
        });
        hand.start(0);
        const auto event = [&](int boxes) {
            shown = offers = 0;
            dialogs.eventBegins();
            for (int box = 0; box < boxes; ++box)
                dialogs.showMessage({"", "Wrong", Icon::Critical});
        };
        event(200);
        QCOMPARE(shown, 200);
        QCOMPARE(offers, 0);
        event(100'000);
        QCOMPARE(shown, 202);
        QCOMPARE(offers, 2);
        event(1);
        QCOMPARE(shown, 1);
    }

    void aBoxNamesWhatFailedInItsSecondLine() {
        QtProgram program;
        QtDialogs dialogs(program);
        QString second;
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            second = box.informativeText();
            QCOMPARE(box.text(), QString("Permission denied"));
            box.accept();
        });
        dialogs.showMessage({"", "Permission denied", Icon::Critical, "/home/plot.xml was not written."});
        QCOMPARE(second, QString("/home/plot.xml was not written."));
    }

    void aLongTitleOfABoxIsSeenWhole() {
        QtProgram program;
        QtDialogs dialogs(program);
        const QString title = QStringLiteral(" Particulars of Development (Read XML) and more of it ");
        int width = 0;
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            width = box.width() - box.fontMetrics().horizontalAdvance(title);
            box.accept();
        });
        dialogs.showMessage({fromQt(title), "x", Icon::Critical});
        QVERIFY2(width >= 100, qPrintable(QString::number(width)));
    }

    void aBoxStandsBesideTheFieldThatItMeansWhenThereIsRoom() {
        const QRect room(0, 0, 1024, 768);
        const QSize box(400, 150);
        const QRect high(300, 100, 200, 24);
        const QRect low(300, 700, 200, 24);
        QCOMPARE(besideField(box, high, room), QPoint(300, 130));
        QCOMPARE(besideField(box, low, room), QPoint(300, 544));
        QCOMPARE(besideField(box, QRect(900, 100, 100, 24), room), QPoint(624, 130));
        QCOMPARE(besideField(box, QRect(10, 10, 300, 740), room), QPoint(316, 10));
        QCOMPARE(besideField(box, room, room), std::nullopt);
    }

    void theRealBoxStandsBelowTheFieldAndInTheMiddleWhenTheFieldIsNotSeen() {
        QtProgram program;
        QtDialogs dialogs(program);
        QWidget window;
        window.resize(700, 600);
        window.show();
        dialogs.parent = &window;
        const QRect field(window.screen()->availableGeometry().topLeft() + QPoint(60, 80), QSize(200, 24));
        TestPorts machine;
        Screen screen{machine};
        Form form(screen, "form", "");
        const TextBox box(form, "box");
        for (const bool seen : {true, false}) {
            dialogs.placeOnScreen = [&](const Control& control) { return seen && &control == &box ? field : QRect(); };
            QPoint place;
            whenOpen<QMessageBox>([&](QMessageBox& shown) {
                place = shown.frameGeometry().topLeft();
                shown.accept();
            });
            dialogs.showMessage({"", "Can not be blank !", Icon::Information, "", &box});
            QCOMPARE(place == QPoint(field.left(), field.bottom() + 7), seen);
        }
    }

    void aQuestionIsAnswered_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("yes");
        QTest::newRow("yes") << int(Qt::Key_Y) << true;
        QTest::newRow("no") << int(Qt::Key_N) << false;
        QTest::newRow("escape") << int(Qt::Key_Escape) << false;
        QTest::newRow("enter, by accident") << int(Qt::Key_Return) << false;
    }
    void aQuestionIsAnswered() {
        QFETCH(int, key);
        QFETCH(bool, yes);
        QtProgram program;
        QtDialogs dialogs(program);
        whenOpen<QMessageBox>([&](QMessageBox& box) {
            const bool letter = key == Qt::Key_Y || key == Qt::Key_N;
            QTest::keyClick(&box, static_cast<Qt::Key>(key), letter ? Qt::AltModifier : Qt::NoModifier);
        });
        QCOMPARE(dialogs.askYesNo({"VDMA PLANDESK UTILITY ", " Do you want to Exit  ! ", Icon::Question}), yes);
    }

    void aCancelledFileDialogGivesBackWhatItWasGiven() {
        QtProgram program;
        QtDialogs dialogs(program);
        whenOpen<QFileDialog>([](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QString("Select Proposals Path"));
            QCOMPARE(dialog.nameFilters().constFirst(), QString("xml File(s) (*.xml)"));
            dialog.reject();
        });
        QCOMPARE(dialogs.openFile({"Select Proposals Path", "xml", "xml File(s) (*.xml)", "*.xml"}), "*.xml"s);
        whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        QCOMPARE(dialogs.saveFile({"Select Proposals Path", "xml", "xml File(s) (*.xml)", ""}), ""s);
    }

    void aNameWithoutAnExtensionGetsTheDefaultOne() {
        QtProgram program;
        QtDialogs dialogs(program);
        const std::filesystem::path folder = std::filesystem::current_path();
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            dialog.setDirectory(toQt(folder.string()));
            auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
            name->setText("प्रस्ताव 1");
            QTest::keyClick(name, Qt::Key_Return);
        });
        QCOMPARE(dialogs.saveFile({"Select Proposals Path", "xml", "xml File(s) (*.xml)", ""}),
                 (folder / "प्रस्ताव 1.xml").string());
    }

    void aFileDialogBeginsInTheFolderOfTheFileChosenLast() {
        QtProgram program;
        QtDialogs dialogs(program);
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        std::filesystem::create_directories(fromQt(documents));
        const QString folder = toQt(std::filesystem::current_path().string()) + "/chosen last";
        std::filesystem::create_directories(fromQt(folder));
        const FileDialog save{"Select Proposals Path", "xml", "xml File(s) (*.xml)", ""};
        const FileDialog open{"Select Proposals Path", "xml", "xml File(s) (*.xml)", "*.xml"};
        const auto beginsIn = [&](const FileDialog& dialog, const QString& wanted, bool saves, bool accepts) {
            QString begun;
            whenOpen<QFileDialog>([&](QFileDialog& chooser) {
                begun = chooser.directory().absolutePath();
                if (!accepts)
                    return chooser.reject();
                chooser.setDirectory(folder);
                auto* name = chooser.findChild<QLineEdit*>("fileNameEdit");
                name->setText("plot.xml");
                QTest::keyClick(name, Qt::Key_Return);
            });
            saves ? dialogs.saveFile(dialog) : dialogs.openFile(dialog);
            QCOMPARE(begun, wanted);
        };
        beginsIn(open, documents, false, false);
        beginsIn(save, documents, true, true);
        beginsIn(open, folder, false, false);
        beginsIn(save, folder, true, false);
    }

    void aFirstSaveProposesTheTitleAsTheName() {
        QtProgram program;
        QtDialogs dialogs(program);
        QString shown;
        whenOpen<QFileDialog>([&](QFileDialog& dialog) {
            shown = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
            dialog.reject();
        });
        const std::string path =
            dialogs.saveFile({"Select Proposals Path", "xml", "xml File(s) (*.xml)", "", "Plot 12/3: Garden?"});
        QCOMPARE(path, ""s);
        QVERIFY2(shown == "Plot 12 3 Garden" || shown == "Plot 12 3 Garden.xml", qPrintable(shown));
    }

    void aTitleBecomesAFileNameThatEverySystemTakes_data() {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "House at Khandri"
                               << "House at Khandri";
        QTest::newRow("unsafe characters") << " a/b\\c:*?\"<>|d "
                                           << "a b c d";
        QTest::newRow("dots at the ends") << "..hidden. ."
                                          << "hidden";
        QTest::newRow("line ends") << "two\r\nlines\t"
                                   << "two lines";
        QTest::newRow("nothing") << ""
                                 << "";
        QTest::newRow("nothing safe") << "///"
                                      << "";
        QTest::newRow("Devanagari") << QString::fromUtf8("घर 12") << QString::fromUtf8("घर 12");
        QTest::newRow("long") << QString(500, 'x') << QString(80, 'x');
    }
    void aTitleBecomesAFileNameThatEverySystemTakes() {
        QFETCH(QString, title);
        QFETCH(QString, name);
        QCOMPARE(safeFileName(title), name);
    }

    void theProgramKnowsItself() {
        const QtProgram program;
        QCOMPARE(program.folder(), fromQt(QCoreApplication::applicationDirPath()));
        QVERIFY(!program.folder().ends_with('/'));
        QCOMPARE(program.title(), "Plandesk"s);
        QFile about(QCoreApplication::applicationDirPath() + "/version.ini");
        QVERIFY(about.open(QFile::ReadOnly));
        about.readLine();
        QCOMPARE(toQt(program.version()), QString::fromUtf8(about.readLine()).trimmed());
    }

    void theFirstSystemInformationToolInThePathIsStarted() {
        const QByteArray path = qgetenv("PATH");
        const std::filesystem::path folder = std::filesystem::current_path();
        qputenv("PATH", folder.c_str());
        QtProgram program;
        QVERIFY(!program.startSystemInformation());
        QFile tool("hardinfo");
        QVERIFY(tool.open(QFile::WriteOnly));
        tool.write("#!/bin/sh\n: > started\n");
        tool.close();
        tool.setPermissions(tool.permissions() | QFile::ExeOwner);
        QVERIFY(program.startSystemInformation());
        QTRY_VERIFY(std::filesystem::exists(folder / "started"));
        qputenv("PATH", path);
    }

    void theClockIsTheMachines() {
        const QDate today = QDate::currentDate();
        const Date told = QtClock().today();
        QVERIFY(QDate(told.year, told.month, told.day).daysTo(today) <= 1);
    }

    void theProgramEndsAtOnce() {
        QtProgram program;
        QTimer::singleShot(0, qApp, [&] { program.end(); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }
};

static const Registered<QtPortsTest> registered;

#include "QtPortsTest.moc"
