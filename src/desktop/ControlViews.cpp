#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTextBrowser>
#include <QToolButton>
#include <algorithm>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/User.h"
#include "desktop/ControlView.h"
#include "desktop/DateEdit.h"
#include "desktop/FormNames.h"
#include "desktop/GridView.h"
#include "desktop/Keys.h"
#include "desktop/LabelViews.h"
#include "desktop/ListBox.h"
#include "desktop/LongText.h"
#include "desktop/Pictures.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"
#include "desktop/TextBoxView.h"
#include "proposal/Grid.h"

namespace plandesk::desktop {

namespace {

/// Breaks a caption at blanks so that no line is wider than `width`, where its words allow.
QString brokenOverLines(const QString& caption, const QFontMetrics& metrics, int width) {
    QString result;
    QString line;
    for (const QString& word : caption.split(' ')) {
        const QString longer = line.isEmpty() ? word : line + ' ' + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
            result += line + '\n';
            line = word;
        } else {
            line = longer;
        }
    }
    return result + line;
}

/// Option and check box: a mark and a caption, which may take several lines.
class ToggleView : public ControlView {
public:
    ToggleView(Captioned& captioned, QAbstractButton& button, ScreenView& screen)
        : ControlView(captioned, button, screen), button(button) {
        connect(&button, &QAbstractButton::clicked, this, [this] { act([this] { user::click(*subject); }); });
    }

    int naturalWidth(bool /*alone*/) const override { return markWidth() + textWidth(words()); }
    int leastWidth() const override {
        return std::min(naturalWidth(false), leastCaptionCharacters * button.fontMetrics().averageCharWidth());
    }
    QSize sizeFor(int available, bool /*alone*/) override {
        button.setText(brokenOverLines(words(), button.fontMetrics(), available - markWidth()));
        const QSize hint = button.sizeHint();
        return {std::min(available, hint.width()), hint.height()};
    }
    bool standsAsQuestion() const override { return true; }

protected:
    QAbstractButton& button;

private:
    QString words() const { return subject ? beginning(static_cast<Captioned&>(*subject).caption()) : button.text(); }
    int markWidth() const { return button.sizeHint().width() - textWidth(button.text()); }
    int textWidth(const QString& text) const { return button.fontMetrics().size(Qt::TextShowMnemonic, text).width(); }
    void syncContent() override {
        const QString caption = words();
        if (caption != shownCaption)
            button.setText(shownCaption = caption);
        button.setChecked(checked());
    }
    virtual bool checked() const = 0;

    QString shownCaption;
};

class OptionView : public ToggleView {
public:
    OptionView(OptionButton& option, QRadioButton& button, ScreenView& screen) : ToggleView(option, button, screen) {
        button.setAutoExclusive(false);
    }

private:
    bool systemKey(const QKeyEvent& event) override {
        const QString typed = typedText(event);
        const std::string key(typed.trimmed().isEmpty() ? arrowKeyName(event) : fromQt(typed));
        if (key.empty())
            return ControlView::systemKey(event);
        act([&] { user::press(*subject, key); }, Qt::TabFocusReason);
        return true;
    }
    bool checked() const override { return static_cast<OptionButton&>(*subject).value(); }
};

class CheckView : public ToggleView {
public:
    using ToggleView::ToggleView;

private:
    bool systemKey(const QKeyEvent& event) override {
        const std::string_view arrow = arrowKeyName(event);
        if (arrow.empty())
            return ControlView::systemKey(event);
        const bool back = arrow == "Left" || arrow == "Up";
        act([&] { user::press(*subject, back ? "Shift+Tab" : "Tab"); }, Qt::TabFocusReason);
        return true;
    }
    bool checked() const override { return static_cast<CheckBox&>(*subject).value() != 0; }
};

class ListView : public ControlView {
public:
    ListView(ComboBox& list, ListBox& box, ScreenView& screen) : ControlView(list, box, screen), box(box) {
        connect(&box, &QComboBox::activated, this,
                [this](int place) { act([&] { user::pick(static_cast<ComboBox&>(*subject), place); }); });
    }

private:
    QPalette::ColorRole backRole() const override { return QPalette::Button; }
    bool changesByWheel() const override { return true; }
    void syncContent() override {
        const auto& list = static_cast<ComboBox&>(*subject);
        if (!sameItems(list)) {
            QStringList items;
            for (int place = 0; place < list.listCount(); ++place)
                items += beginning(list.item(place));
            box.clear();
            box.addItems(items);
        }
        box.setCurrentIndex(list.listIndex());
        box.setForeignText(list.listIndex() < 0 ? beginning(list.text()) : QString());
    }
    QString hiddenText() const override { return box.elided() ? box.shownText().trimmed() : QString(); }
    bool sameItems(const ComboBox& list) const {
        bool same = box.count() == list.listCount();
        for (int place = 0; same && place < box.count(); ++place)
            same = box.itemText(place) == beginning(list.item(place));
        return same;
    }

    ListBox& box;
};

class DateView : public ControlView {
public:
    DateView(DatePicker& picker, DateEdit& edit, ScreenView& screen) : ControlView(picker, edit, screen), edit(edit) {
        constexpr int firstYear = 100;
        constexpr int lastYear = 9999;
        edit.setLocale(QLocale::c());
        edit.setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
        edit.setDateRange({firstYear, 1, 1}, {lastYear, 12, 31});
        edit.setCalendarPopup(true);
        connect(&edit, &QDateEdit::dateChanged, this, [this](QDate date) {
            act([&] { user::pickDate(static_cast<DatePicker&>(*subject), {date.year(), date.month(), date.day()}); });
        });
    }

    bool filterEvent(QObject* watched, QEvent* event) override {
        // A click chooses day, month or year, so that what is typed next takes its place.
        if (event->type() == QEvent::MouseButtonRelease)
            QMetaObject::invokeMethod(
                this,
                [this] {
                    edit.forgetTypedDay();
                    edit.setSelectedSection(edit.currentSection());
                },
                Qt::QueuedConnection);
        return ControlView::filterEvent(watched, event);
    }

private:
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    bool changesByWheel() const override { return true; }
    void syncContent() override {
        const Date date = static_cast<DatePicker&>(*subject).date();
        edit.setDate({date.year, date.month, date.day});
    }

    DateEdit& edit;
};

class ButtonView : public ControlView {
public:
    ButtonView(Captioned& captioned, QPushButton& button, ScreenView& screen)
        : ControlView(captioned, button, screen), button(button) {
        button.setAutoDefault(false);
        connect(&button, &QPushButton::clicked, this, [this] { act([this] { user::click(*subject); }); });
    }

    int naturalWidth(bool /*alone*/) const override {
        // Style hints make every button as wide as a word; numbered ones stand closer.
        return button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + button.sizeHint().height();
    }

private:
    QPalette::ColorRole backRole() const override { return QPalette::Button; }
    void syncContent() override {
        button.setText(beginning(static_cast<Captioned&>(*subject).caption()));
        // The tip of a numbered button goes on where its caption ends.
        const QString caption = button.text().remove('&').trimmed();
        const bool tipTells = caption.isEmpty() || button.toolTip().startsWith(caption + ':');
        button.setAccessibleName(tipTells ? button.toolTip() : caption);
        markCurrent();
    }
    void name(const QString&, const QString&) override {}
    /// Of numbered buttons the white one is the current one; the colours are hard to tell apart.
    void markCurrent() {
        const bool current = subject->index() != Control::noIndex && subject->backColor() == white;
        if (QFont font = button.font(); font.bold() != current) {
            font.setBold(current);
            button.setFont(font);
        }
    }

    QPushButton& button;
};

class ImageView : public ControlView {
public:
    ImageView(Captioned& image, QToolButton& button, ScreenView& screen) : ControlView(image, button, screen) {
        const int side = button.fontMetrics().height();
        button.setAutoRaise(true);
        button.setIcon(detailsIcon());
        button.setIconSize({side, side});
        connect(&button, &QToolButton::clicked, this, [this] { act([this] { user::click(*subject); }); });
    }
};

class TabsView : public ControlView {
public:
    TabsView(TabStrip& strip, QTabBar& bar, ScreenView& screen) : ControlView(strip, bar, screen), bar(bar) {
        bar.setDrawBase(false);
        for (int tab = 0; tab < strip.count(); ++tab)
            addTab(strip.form(), tab);
        connect(&bar, &QTabBar::currentChanged, this,
                [this](int tab) { act([&] { user::showTab(static_cast<TabStrip&>(*subject), tab); }); });
    }

private:
    void addTab(const Form& form, int tab) {
        const QString name = pageName(form, tab);
        bar.addTab(pageTab(form, tab));
        bar.setAccessibleTabName(tab, name);
        if (name != bar.tabText(tab))
            bar.setTabToolTip(tab, name);
    }
    bool changesByWheel() const override { return true; }
    void syncContent() override { bar.setCurrentIndex(static_cast<TabStrip&>(*subject).tab()); }

    QTabBar& bar;
};

class RichTextView : public ControlView {
public:
    RichTextView(RichText& text, QTextBrowser& browser, ScreenView& screen) : ControlView(text, browser, screen) {
        browser.setHtml(toQt(text.html));
    }

    int naturalWidth(bool /*alone*/) const override {
        constexpr int characters = 80;
        return characters * picture.fontMetrics().averageCharWidth();
    }
    QSize sizeFor(int available, bool alone) override {
        constexpr int lines = 26;
        return {std::min(available, naturalWidth(alone)), lines * picture.fontMetrics().lineSpacing()};
    }
    bool fillsWidth() const override { return true; }
    bool fillsPage() const override { return true; }

private:
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
};

}  // namespace

ControlView& makeControlView(Control& control, QWidget& parent, ScreenView& screen, const ViewMaker& maker) {
    switch (control.kind()) {
    case ControlKind::TextBox:
        return makeTextBoxView(static_cast<TextBox&>(control), parent, screen);
    case ControlKind::OptionButton:
        return *new OptionView(static_cast<OptionButton&>(control), *new QRadioButton(&parent), screen);
    case ControlKind::CheckBox:
        return *new CheckView(static_cast<CheckBox&>(control), *new QCheckBox(&parent), screen);
    case ControlKind::ComboBox:
        return *new ListView(static_cast<ComboBox&>(control), *new ListBox(parent), screen);
    case ControlKind::DatePicker:
        return *new DateView(static_cast<DatePicker&>(control), *new DateEdit(parent), screen);
    case ControlKind::Button:
        return *new ButtonView(static_cast<Button&>(control), *new QPushButton(&parent), screen);
    case ControlKind::Image:
        return *new ImageView(static_cast<Image&>(control), *new QToolButton(&parent), screen);
    case ControlKind::TabStrip:
        return *new TabsView(static_cast<TabStrip&>(control), *new QTabBar(&parent), screen);
    case ControlKind::RichText:
        return *new RichTextView(static_cast<RichText&>(control), *new QTextBrowser(&parent), screen);
    case ControlKind::Label:
    case ControlKind::Frame:
        return makeLabelView(static_cast<Captioned&>(control), parent, screen);
    case ControlKind::Grid:
        return makeGridView(static_cast<Grid&>(control), parent, screen, maker);
    }
    return *new ControlView(control, *new QWidget(&parent), screen);
}

}  // namespace plandesk::desktop
