#include "desktop/QtPorts.h"

#include <QCoreApplication>
#include <QDate>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <algorithm>
#include <array>

#include "desktop/LongMessage.h"
#include "desktop/LongText.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

/// System information tools that desktops bring along, the first one found is started.
constexpr std::array systemInformationTools = {"kinfocenter", "hardinfo2",           "hardinfo",
                                               "hwinfo-gui",  "mate-system-monitor", "gnome-system-monitor"};

/// Bytes of a message that are shown.
constexpr std::size_t longestText = 5000;

/// Boxes of one event that are shown before they can be skipped.
constexpr int patience = 200;

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

/// What a desktop puts around a box, about.
constexpr QSize usualFrame{12, 44};

/// The last touch: a text set later would lay the box out anew.
void prepare(QMessageBox& box) {
    box.setObjectName(QStringLiteral("messageBox"));
    box.setTextFormat(Qt::PlainText);
    // Wide enough for the whole title, with what a desktop puts beside it, and for the second line up to a readable
    // width: the toolkit would break it to the width of the first.
    constexpr int titleButtons = 120;
    constexpr int besideText = 80;
    constexpr int readable = 60;  // average characters
    const QFontMetrics metrics = box.fontMetrics();
    int width = metrics.horizontalAdvance(box.windowTitle()) + titleButtons;
    for (const QString& line : box.informativeText().split('\n'))
        width = std::max(width,
                         std::min(metrics.horizontalAdvance(line), readable * metrics.averageCharWidth()) + besideText);
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

QString safeFileName(const QString& title) {
    constexpr qsizetype longest = 80;
    static const QString unsafe = QStringLiteral("/\\:*?\"<>|");
    QString name;
    for (const QChar character : title.simplified())
        name += character.isPrint() && !unsafe.contains(character) ? character : QChar(' ');
    name = name.simplified().left(longest);
    // A leading dot hides a file; one at the end, or a blank, is dropped by some systems.
    while (name.startsWith('.'))
        name.remove(0, 1);
    while (name.endsWith('.') || name.endsWith(' ') || (!name.isEmpty() && name.back().isHighSurrogate()))
        name.chop(1);
    return name.trimmed();
}

QString QtDialogs::titleOf(const Message& message) const {
    return beginning(message.title.empty() ? program.title() : message.title);
}

void QtDialogs::eventBegins() {
    boxes = 0;
    skipping = false;
}

void QtDialogs::showMessage(const Message& message) {
    if (skipping)
        return;
    QMessageBox box(iconOf(message.icon), titleOf(message), beginning(message.text, longestText), QMessageBox::Ok,
                    parent);
    box.setInformativeText(beginning(message.detail));
    prepare(box);
    const QAbstractButton* skip =
        boxes >= patience ? box.addButton(QMessageBox::tr("&Skip the rest"), QMessageBox::RejectRole) : nullptr;
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    scrollLongText(box);
    ++boxes;
    const QRect field = message.about ? placeOnScreen(*message.about) : QRect();
    if (!field.isEmpty() && parent) {
        box.adjustSize();
        if (const auto place = besideField(box.size() + usualFrame, field, parent->screen()->availableGeometry()))
            box.move(*place);
    }
    box.exec();
    skipping = skip && box.clickedButton() == skip;
}

std::optional<QPoint> besideField(QSize box, const QRect& field, const QRect& room) {
    constexpr int distance = 6;
    const int left = std::min(field.left(), room.right() + 1 - box.width());
    const int top = std::min(field.top(), room.bottom() + 1 - box.height());
    const QPoint corners[] = {{left, field.bottom() + 1 + distance},
                              {left, field.top() - distance - box.height()},
                              {field.right() + 1 + distance, top},
                              {field.left() - distance - box.width(), top}};
    for (const QPoint& corner : corners)
        if (room.contains(QRect(corner, box)))
            return corner;
    return std::nullopt;
}

bool QtDialogs::askYesNo(const Message& question) {
    QMessageBox box(iconOf(question.icon), titleOf(question), beginning(question.text, longestText),
                    QMessageBox::Yes | QMessageBox::No, parent);
    box.setInformativeText(beginning(question.detail));
    prepare(box);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString QtDialogs::firstFolder() const {
    return lastFolder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : lastFolder;
}

std::string QtDialogs::chosenPath(QFileDialog& chooser, const FileDialog& dialog) {
    chooser.setObjectName(QStringLiteral("fileDialog"));
    chooser.setNameFilters({toQt(dialog.filter), QFileDialog::tr("All files (*)")});
    chooser.setDefaultSuffix(toQt(dialog.defaultExtension));
    chooser.setDirectory(firstFolder());
    const QString name = toQt(dialog.fileName);
    if (const QString shown = name.isEmpty() ? safeFileName(toQt(dialog.proposedName)) : name;
        !shown.isEmpty() && chooser.acceptMode() == QFileDialog::AcceptSave)
        chooser.selectFile(shown);
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return dialog.fileName;
    const QString chosen = chooser.selectedFiles().constFirst();
    lastFolder = QFileInfo(chosen).absolutePath();
    return fromQt(chosen);
}

std::string QtDialogs::openFile(const FileDialog& dialog) {
    QFileDialog chooser(parent, toQt(dialog.title));
    chooser.setFileMode(QFileDialog::ExistingFile);
    return chosenPath(chooser, dialog);
}

std::string QtDialogs::saveFile(const FileDialog& dialog) {
    QFileDialog chooser(parent, toQt(dialog.title));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    return chosenPath(chooser, dialog);
}

std::string QtDialogs::chooseFolder(const std::string& title) {
    QFileDialog chooser(parent, toQt(title));
    chooser.setObjectName(QStringLiteral("folderDialog"));
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    chooser.setDirectory(firstFolder());
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return {};
    lastFolder = chooser.selectedFiles().constFirst();
    return fromQt(lastFolder);
}

Date QtClock::today() const {
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), today.day()};
}

std::string QtProgram::folder() const {
    return fromQt(QCoreApplication::applicationDirPath());
}

std::string QtProgram::title() const {
    return "Plandesk";
}

std::string QtProgram::version() const {
    return PLANDESK_VERSION;
}

bool QtProgram::startSystemInformation() {
    for (const char* tool : systemInformationTools)
        if (const QString found = QStandardPaths::findExecutable(QString::fromLatin1(tool)); !found.isEmpty())
            return QProcess::startDetached(found, {});
    return false;
}

void QtProgram::end() {
    QCoreApplication::exit(0);
}

}  // namespace plandesk::desktop
