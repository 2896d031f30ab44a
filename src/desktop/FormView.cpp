#include "desktop/FormView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Screen.h"
#include "controls/User.h"
#include "desktop/FlowLine.h"
#include "desktop/FormNames.h"
#include "desktop/Keys.h"
#include "desktop/LongText.h"
#include "desktop/PageView.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

FormView::FormView(Form& form, ScreenView& screen, QWidget& parent) : QWidget(&parent), form(&form), screen(screen) {
    setObjectName(toQt(form.name()));
    setAccessibleName(beginning(form.caption()).trimmed());
    setAutoFillBackground(true);
    const Layout& layout = form.layout();
    head = makeViews(layout.head);
    if (!layout.top.empty())
        topRows = new PageView(*this, form, {layout.top.begin(), layout.top.end()}, maker);
    tabs = makeView(layout.tabs, *this);
    if (tabs)
        tabs->name(toQt(trim(form.caption())));
    pages.resize(tabs ? layout.pages.size() : 1);
    buttons = makeViews(layout.buttons);
    showChosenPage();
    syncAll();
}

FormView::~FormView() = default;

ControlView* FormView::makeView(std::string_view key, QWidget& parent) {
    return screen.guarded([&]() -> ControlView* {
        Control* control = key.empty() ? nullptr : form->findKey(key);
        if (!control)
            return nullptr;
        ControlView& view = makeControlView(*control, parent, screen, maker);
        drawn[control] = &view;
        view.sync();
        return &view;
    });
}

FormView::Views FormView::makeViews(std::string_view keys) {
    Views views;
    for (const std::string& key : split(keys, " ")) {
        if (ControlView* view = makeView(key, *this)) {
            view->name(toQt(trim(form->caption())));
            views.push_back(view);
        }
    }
    return views;
}

std::size_t FormView::chosenPage() const {
    const auto* strip = tabs && tabs->control() ? static_cast<const TabStrip*>(tabs->control()) : nullptr;
    return strip ? std::min(static_cast<std::size_t>(strip->tab()), pages.size() - 1) : 0;
}

void FormView::showChosenPage() {
    current = chosenPage();
    const bool isNew = !pages[current].area;
    if (isNew)
        drawPage(current);
    for (std::size_t number = 0; number < pages.size(); ++number)
        if (pages[number].area)
            pages[number].area->setVisible(number == current);
    arrange();
    pages[current].area->verticalScrollBar()->setValue(0);
}

void FormView::drawPage(std::size_t number) {
    const Layout& layout = form->layout();
    std::vector<LayoutGroup> groups;
    for (std::size_t page = 0; page < layout.pages.size(); ++page)
        if (!tabs || page == number)
            groups.insert(groups.end(), layout.pages[page].groups.begin(), layout.pages[page].groups.end());
    Page& page = pages[number];
    page.area = new QScrollArea(this);
    page.area->setFrameShape(QFrame::NoFrame);
    page.area->setFocusPolicy(Qt::NoFocus);
    page.area->setAccessibleName(tabs ? pageName(*form, static_cast<int>(number)) : toQt(trim(form->caption())));
    page.view = new PageView(*page.area, *form, groups, maker);
    page.view->grew = [this] { grew(); };
    page.area->setWidget(page.view);
}

void FormView::sync(Control& control) {
    if (const auto view = drawn.find(&control); view != drawn.end())
        view->second->sync();
    if (tabs && tabs->control() == &control && chosenPage() != current)
        showChosenPage();
}

void FormView::syncAll() {
    QPalette palette;
    palette.setColor(QPalette::Window, toQt(form->backColor()));
    setPalette(palette);
    Views views;  // of their own, since the view of a grid may make more
    for (const auto& [control, view] : drawn)
        views.push_back(view);
    for (ControlView* view : views)
        view->sync();
}

void FormView::syncStale() {
    Views stale;
    for (const auto& [control, view] : drawn)
        if (view->stale())
            stale.push_back(view);
    for (ControlView* view : stale)
        view->sync();
}

void FormView::detach() {
    form = nullptr;
    for (const auto& [control, view] : drawn)
        view->detach();
}

ControlView* FormView::viewOf(const Control& control) const {
    const auto view = drawn.find(&control);
    return view == drawn.end() ? nullptr : view->second;
}

QWidget* FormView::widgetOf(const Control& control) const {
    const ControlView* view = viewOf(control);
    return view ? &view->widget() : nullptr;
}

bool FormView::onTurnedPage(const Control& control) const {
    const QWidget* widget = widgetOf(control);
    return widget && std::ranges::any_of(pages, [&](const Page& page) {
               return &page != &pages[current] && page.area && page.area->isAncestorOf(widget);
           });
}

void FormView::takeKeys(const Control* control, Qt::FocusReason reason, bool arrived) {
    ControlView* view = control && control->takesFocus() ? viewOf(*control) : nullptr;
    QWidget* widget = view ? &view->keyboardPart() : nullptr;
    if (!widget || !widget->isVisibleTo(this))
        widget = this;
    const bool keyboardMoves = window()->focusWidget() != widget;
    if (keyboardMoves)
        widget->setFocus(reason);
    // What the mouse has under it neither moves nor loses the place where it was clicked.
    if (reason == Qt::MouseFocusReason)
        return;
    if (arrived && view)
        view->selectContent();
    if (arrived || keyboardMoves)
        scrollTo(*widget);
}

void FormView::scrollTo(const QWidget& widget) {
    const Page& page = pages[current];
    if (!page.view->isAncestorOf(&widget))
        return;
    QCoreApplication::sendPostedEvents(page.view, QEvent::LayoutRequest);
    // What comes next is seen too, so that one knows where one is going.
    constexpr int linesAhead = 3;
    const int height = page.area->viewport()->height();
    const int ahead = std::min(linesAhead * fontMetrics().lineSpacing(), height / 4);
    const auto show = [&](const QRect& part) {
        QScrollBar& bar = *page.area->verticalScrollBar();
        // Where not all of it fits, its beginning is what one wants to see.
        bar.setValue(std::max(bar.value(), part.bottom() + ahead - height));
        bar.setValue(std::min(bar.value(), part.top() - ahead));
    };
    show(page.view->rowOf(widget));
    show(QRect(widget.mapTo(page.view, QPoint(0, 0)), widget.size()));
}

int FormView::gap() const {
    return fontMetrics().averageCharWidth();
}

int FormView::pageWidth(int width) const {
    return width - style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

int FormView::placeViews(const Views& views, int margin, int width, int top) const {
    const int right = width - 2 * gap();
    FlowLine line(margin, right, top + gap(), 0, gap());
    for (ControlView* view : views)
        if (view->shownByCode())
            line.add(view->widget(), view->sizeFor(right - margin, false));
    return views.empty() ? top : line.finish() + gap();
}

void FormView::arrange() {
    const int margin = pages[current].view->marginFor(pageWidth(width()));
    int top = placeViews(head, margin, width(), 0);
    if (topRows) {
        topRows->move(0, top);
        topRows->arrange(pageWidth(width()), 0);
        top += topRows->height();
    }
    if (tabs && tabs->shownByCode()) {
        const QSize size = tabs->widget().sizeHint();
        tabs->widget().setGeometry(QRect({margin, top}, size));
        top += size.height();
    }
    const int buttonsHeight = placeViews(buttons, margin, width(), 0);
    placeViews(buttons, margin, width(), height() - buttonsHeight);
    const Page& page = pages[current];
    const int pageHeight = std::max(0, height() - buttonsHeight - top);
    page.area->setGeometry(0, top, width(), pageHeight);
    page.area->verticalScrollBar()->setSingleStep(fontMetrics().height() * 2);
    page.view->arrange(pageWidth(width()), pageHeight);
    QCoreApplication::removePostedEvents(this, QEvent::LayoutRequest);
}

QSize FormView::naturalSize(QSize limit) {
    // The forms of a proposal are all of one size, so that each covers the one it came from.
    const bool belongsToProposal = !head.empty();
    const int leastCharacters = belongsToProposal ? 162 : 60;
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int rowsWidth = std::max(pages[current].view->naturalWidth(), topRows ? topRows->naturalWidth() : 0);
    int buttonsWidth = 4 * gap();
    for (const ControlView* button : buttons)
        buttonsWidth += button->shownByCode() ? button->naturalWidth(false) + gap() : 0;
    const int wanted = std::max({rowsWidth + scrollBar, buttonsWidth, leastCharacters * gap()});
    const int newWidth = std::min(std::max(wanted, width()), limit.width());
    if (belongsToProposal)
        return {newWidth, limit.height()};
    pages[current].view->arrange(pageWidth(newWidth), 0);
    int around = placeViews(head, 2 * gap(), newWidth, 0) + placeViews(buttons, 2 * gap(), newWidth, 0);
    if (tabs)
        around += tabs->widget().sizeHint().height();
    if (topRows) {
        topRows->arrange(pageWidth(newWidth), 0);
        around += topRows->height();
    }
    const QSize natural(newWidth, std::min(around + pages[current].view->height(), limit.height()));
    arrange();  // in the size that it has until it gets another
    return natural;
}

bool FormView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange)
        screen.guarded([this] { arrange(); });
    // Here, because the toolkit would take Tab for itself before it counts as a key.
    if (event->type() == QEvent::KeyPress && form) {
        if (const std::string_view key = systemKeyName(*static_cast<QKeyEvent*>(event)); !key.empty()) {
            screen.act(Qt::TabFocusReason, [&] { user::pressForm(*form, key); });
            return true;
        }
    }
    return QWidget::event(event);
}

void FormView::resizeEvent(QResizeEvent* /*event*/) {
    screen.guarded([this] { arrange(); });
}

void FormView::mousePressEvent(QMouseEvent* /*event*/) {
    if (form && !form->front())
        screen.act(Qt::MouseFocusReason, [this] { user::bringToFront(*form); });
}

bool FormView::focusNextPrevChild(bool /*next*/) {
    // The system moves the focus, the toolkit never does.
    return true;
}

}  // namespace plandesk::desktop
