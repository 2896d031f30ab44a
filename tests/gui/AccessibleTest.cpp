#include "desktop/Accessible.h"

#include <QAccessible>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOption>
#include <QTabBar>
#include <cmath>
#include <map>

#include "base/Text.h"
#include "desktop/ChildWindow.h"
#include "desktop/QtText.h"
#include "fees/frmPayDetail.h"
#include "gui/FilledForms.h"
#include "gui/Registry.h"
#include "particulars/frmAnnexureA.h"

using namespace plandesk;
using namespace plandesk::test;

namespace {

QAccessibleInterface& interfaceOf(QObject& object) {
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&object);
    Q_ASSERT(found);
    return *found;
}

QString nameOf(QAccessibleInterface& node) {
    return node.text(QAccessible::Name).trimmed();
}

bool needsName(QAccessible::Role role) {
    switch (role) {
    case QAccessible::RadioButton:
    case QAccessible::CheckBox:
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::ButtonDropDown:
    case QAccessible::EditableText:
    case QAccessible::ComboBox:
    case QAccessible::SpinBox:
    case QAccessible::Table:
    case QAccessible::PageTabList:
    case QAccessible::PageTab:
    case QAccessible::Grouping:
    case QAccessible::Link:
    case QAccessible::ColumnHeader:
    case QAccessible::RowHeader:
        return true;
    default:
        return false;
    }
}

/// What stands inside these is told by themselves.
bool isWhole(QAccessible::Role role) {
    return role == QAccessible::ComboBox || role == QAccessible::SpinBox || role == QAccessible::EditableText ||
           role == QAccessible::ScrollBar || role == QAccessible::Cell;
}

/// Tells of each part that has no name, or the name of another one beside it.
QStringList faults(QAccessibleInterface& node, int& looked) {
    QStringList found;
    std::map<QString, int> names;
    for (int number = 0; number < node.childCount(); ++number) {
        QAccessibleInterface* child = node.child(number);
        if (!child || child->state().invisible)
            continue;
        if (needsName(child->role())) {
            ++looked;
            const QString name = nameOf(*child).toLower();
            // A row of tabs is called as its present tab by the toolkit.
            const bool tabs = child->role() == QAccessible::PageTabList;
            if (name.isEmpty())
                found += QStringLiteral("nameless %1 in %2").arg(child->role()).arg(nameOf(node));
            else if (!tabs && ++names[name] == 2)
                found += QStringLiteral("two are called \"%1\" in %2, the second of role %3")
                             .arg(name, nameOf(node))
                             .arg(child->role());
        }
        if (!isWhole(child->role()))
            found += faults(*child, looked);
    }
    return found;
}

double luminance(QColor colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(QColor one, QColor other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace

class AccessibleTest : public QObject {
    Q_OBJECT

private slots:
    void everythingOnEveryFormHasANameOfItsOwn_data() {
        QTest::addColumn<QString>("name");
        for (const std::string& name : Session().proposal.forms.names())
            QTest::newRow(name.c_str()) << QString::fromStdString(name);
    }
    void everythingOnEveryFormHasANameOfItsOwn() {
        QFETCH(QString, name);
        Session session;
        Form& form = filledForm(session, name);
        for (const bool all : {false, true}) {
            if (all)
                showEverything(form);
            form.show();
            forEachPage(session, form, [&] {
                int looked = 0;
                desktop::ChildWindow& window = *session.window.forms().windowOf(form);
                const QStringList found = faults(interfaceOf(window), looked);
                QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
                QVERIFY(looked > 0);
                QVERIFY(!nameOf(interfaceOf(window)).isEmpty());
                QVERIFY(!nameOf(interfaceOf(window.view())).isEmpty());
            });
        }
    }

    void theWalkFindsANamelessAndADoubledControl() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        int looked = 0;
        QWidget& view = *session.window.forms().viewOf(form);
        QVERIFY(faults(interfaceOf(view), looked).isEmpty());
        session.widget(form.Opt1.yes).setAccessibleName({});
        session.widget(form.txtHissaNo).setAccessibleName(session.widget(form.txtpltno).accessibleName());
        QCOMPARE(faults(interfaceOf(view), looked).size(), 2);
    }

    void optionsAreRadioButtonsInTheGroupOfTheirQuestion() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        const auto look = [&](OptionButton& option, const QString& name, const QString& group, int members) {
            QAccessibleInterface& node = interfaceOf(session.widget(option));
            QCOMPARE(node.role(), QAccessible::RadioButton);
            QCOMPARE(nameOf(node), name);
            QVERIFY(node.state().checkable);
            QCOMPARE(bool(node.state().checked), option.value());
            QCOMPARE(node.parent()->role(), QAccessible::Grouping);
            QCOMPARE(nameOf(*node.parent()), group);
            QCOMPARE(node.parent()->childCount(), members);
        };
        look(form.Opt1.yes, "Yes", "Does it tally with the Revenue/CTS Record?", 2);
        form.Opt1.yes.setValue(true);
        session.settle();
        look(form.Opt1.yes, "Yes", "Does it tally with the Revenue/CTS Record?", 2);
        look(form.OptArch, "Architect", "Kind of professional", 3);
        look(form.OptLE, "Licence Engineer", "Kind of professional", 3);
    }

    void aScreenReaderCanPressAnOption() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        form.txtTitle.setText("A title");
        QAccessibleInterface& node = interfaceOf(session.widget(form.Opt1.no));
        QVERIFY(node.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        node.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        session.settle();
        QVERIFY(form.Opt1.no.value());
        QVERIFY(node.state().checked);
    }

    void aBoxSaysItsUnitAndWhetherItMustBeFilled() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        const auto description = [&](const Control& control) {
            return interfaceOf(session.widget(control)).text(QAccessible::Description);
        };
        QCOMPARE(description(form.txtPltArea), QString("in Sq. Mtrs, mandatory"));
        QCOMPARE(description(form.txtTitle), QString("mandatory"));
        QCOMPARE(description(form.txtCTSNo), QString("one of these is mandatory"));
        QCOMPARE(description(form.txtHissaNo), QString());
    }

    void aFeeBoxCarriesTheTitleOfItsSection() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmPayDetail>();
        form.show();
        session.settle();
        QCOMPARE(nameOf(interfaceOf(session.widget(form.txtScrutinyRRate))),
                 QString("A . Scrutiny Fees: Total Residential FSI: Rate"));
        QCOMPARE(nameOf(interfaceOf(session.widget(form.txtRate))),
                 QString("C . Development Permission Fees: Total Residential FSI: Rate"));
        QCOMPARE(nameOf(*interfaceOf(session.widget(form.OptCash)).parent()), QString("Mode of payment"));
    }

    void aQuestionIsRelatedToWhatAnswersIt() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        const auto labelOf = [&](QWidget& widget) {
            for (const auto& [node, relation] : interfaceOf(widget).relations(QAccessible::Label))
                return nameOf(*node);
            return QString();
        };
        QCOMPARE(labelOf(session.widget(form.txtTitle)), QString("Proposal Title"));
        QCOMPARE(labelOf(session.widget(form.cboCaseType)), QString("Case Type"));
        QCOMPARE(labelOf(*session.widget(form.Opt1.yes).parentWidget()),
                 QString("Does it tally with the Revenue/CTS Record?"));
        form.PropTab.setTab(2);
        session.settle();
        QCOMPARE(labelOf(session.widget(form.txtFstStreetWidth)), QString("1. Street"));
    }

    void pagesHaveNamesAndTheirButtonsShowThemAsTips() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        QWidget& button = session.widget(*form.findKey("cmdFormNo(2)"));
        QCOMPARE(button.toolTip(), QString("3: industry and streets"));
        QCOMPARE(nameOf(interfaceOf(button)), QString("3: industry and streets"));
        const auto& tabs = session.widget<QTabBar>(form.PropTab);
        QCOMPARE(tabs.tabToolTip(2), QString("3: industry and streets"));
        QCOMPARE(tabs.tabText(2), QString("3"));
        form.PropTab.setTab(2);
        session.settle();
        bool found = false;
        for (const QScrollArea* area : session.window.findChildren<QScrollArea*>())
            found = found || (area->isVisible() && area->accessibleName() == "3: industry and streets");
        QVERIFY(found);
    }

    void headsAndCellsOfAGridAgree() {
        Session session;
        auto& form = static_cast<frmPlotExtractRelation&>(filledForm(session, "frmPlotExtractRelation"));
        const Grid& grid = form.dgd712ExtractRelation;
        QAccessibleTableInterface* table = interfaceOf(session.widget(grid)).tableInterface();
        QVERIFY(table);
        QCOMPARE(table->rowCount(), grid.rowCount());
        QCOMPARE(table->columnCount(), grid.columnCount());
        QVERIFY(grid.rowCount() > 0);
        for (int row = 0; row < grid.rowCount(); ++row) {
            for (int column = 0; column < grid.columnCount(); ++column) {
                QAccessibleInterface* cell = table->cellAt(row, column);
                const QString caption = desktop::toQt(trim(grid.column(column).caption));
                const QString head = caption.isEmpty()
                                         ? desktop::toQt(grid.table()->columns()[static_cast<std::size_t>(column)].name)
                                         : caption;
                QVERIFY(!head.isEmpty());
                QCOMPARE(cell->text(QAccessible::Name), desktop::toQt(grid.cellText(row, column)));
                // The caller has to give it back, which only the registry can do.
                QAccessibleInterface* header = cell->tableCellInterface()->columnHeaderCells().constFirst();
                const QAccessible::Id id = QAccessible::registerAccessibleInterface(header);
                QCOMPARE(header->text(QAccessible::Name), head);
                QAccessible::deleteAccessibleInterface(id);
                QCOMPARE(table->rowDescription(row), QString::number(row + 1));
            }
        }
    }

    void theFocusMarkIsTwoPixelsWideAndEasilySeen() {
        QPushButton button("Save");
        QRadioButton option("Yes");
        for (QWidget* widget : std::initializer_list<QWidget*>{&button, &option}) {
            widget->resize(160, 40);
            QStyleOptionFocusRect mark;
            mark.initFrom(widget);
            mark.rect = QRect(10, 10, 60, 20);
            for (const QColor paper : {QColor(0xFF, 0xF8, 0xF2), QColor(0xF3, 0xF0, 0xEA), QColor(Qt::white)}) {
                QImage image(80, 40, QImage::Format_RGB32);
                image.fill(paper);
                QPainter painter(&image);
                widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &mark, &painter, widget);
                painter.end();
                for (const int inset : {0, 1})
                    QVERIFY(contrast(image.pixelColor(10 + inset, 20), paper) >= 3);
                QCOMPARE(image.pixelColor(12, 20), paper);
                QCOMPARE(image.pixelColor(9, 20), paper);
            }
        }
    }

    void aLinkIsALinkAndCanBePressedThroughItsAction() {
        Session session;
        session.press("mnuNew");
        Form& form = *session.proposal.forms.touch("frmPayDetail");
        form.show();
        session.settle();
        QAccessibleInterface& link = interfaceOf(session.widget(form.at("lblAnnextureA")));
        QCOMPARE(link.role(), QAccessible::Link);
        QCOMPARE(nameOf(link), desktop::toQt(form.at<Label>("lblAnnextureA").caption()).trimmed());
        QVERIFY(!session.form<frmAnnexureA>().front());
        link.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(session.form<frmAnnexureA>().front());
    }

    void buttonsLinksAndOptionsShowThatMarkWhenTheyHaveTheFocus() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        form.txtTitle.setText("A title");
        const auto marked = [&](Control& control) {
            session.window.forms().act(Qt::TabFocusReason, [&] { control.setFocus(); });
            session.settle();
            QWidget& widget = session.widget(control);
            const QImage image = widget.grab().toImage();
            const QRgb mark = widget.palette().color(QPalette::Highlight).rgb();
            int most = 0;
            for (int y = 0; y < image.height(); ++y) {
                int run = 0;
                for (int x = 0; x < image.width(); ++x)
                    run += image.pixel(x, y) == mark ? 1 : 0;
                most = std::max(most, run);
            }
            return most > image.width() / 3;
        };
        QVERIFY(marked(form.Opt1.yes));
        QVERIFY(marked(*form.findKey("cmdSave")));
        QVERIFY(marked(*form.findKey("cmdFormNo(1)")));
    }
};

static const Registered<AccessibleTest> registered;

#include "AccessibleTest.moc"
