#pragma once

#include <functional>
#include <memory>
#include <string>

#include "controls/Paper.h"
#include "desktop/ChildFrame.h"

class QLabel;
class QToolButton;

namespace plandesk {
struct Preview;
class Proposal;
class ReportDesk;
}  // namespace plandesk

namespace plandesk::desktop {

class PaperPages;
class PreviewPage;
class ScreenView;

/// What the windows of the reports work with.
struct PreviewRoom {
    Proposal& proposal;
    ReportDesk& reports;
    ScreenView& screen;
    QWidget& desk;
    /// Prints with the usual dialog.
    std::function<void(const Paper& paper, const PaperPages& pages, QWidget* window)> print;
};

/// A report as a window: its pages, and what can be done with them. The report desk owns the report; this shows a copy.
class PreviewWindow : public ChildFrame {
public:
    /// Stands where the report is told to, and is empty still.
    PreviewWindow(const Preview& preview, PreviewRoom& room);
    ~PreviewWindow() override;

    /// Shows the report as it is now, once the window is shown; stays on the page it was on, as far as there is one.
    void showPreview(const Preview& preview);
    const std::string& report() const { return name; }
    QString caption() const override;
    void bringToFront(Qt::FocusReason reason) override;
    void closeWindow() override;
    /// Gives the keyboard to the page, unless a button of the window has it.
    void takeKeys() override;
    void turnPage(bool forwards) override;
    PreviewPage& page() const { return *view; }
    bool inReach() const override;
    /// Prints with the usual dialog.
    void print();

protected:
    QSize naturalSize(QSize room) const override;
    void sizingEnded() override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QWidget* makeBar(QWidget& parent);
    /// `keys` press the button, but for those that the main window knows; the button only tells them.
    QToolButton* button(QWidget& bar, const char* objectName, const QString& text, const QString& meaning,
                        const QKeySequence& keys, const std::function<void()>& pressed, bool known = false);
    void showState();
    void zoomBy(qreal factor);
    void saveAsPdf();
    /// Runs what may fail as an act of the user; a failure is told in a box.
    void act(const std::function<void()>& what);

    PreviewRoom& room;
    std::string name;
    Paper paper;
    PaperPlace place;
    std::unique_ptr<PaperPages> pages;
    PreviewPage* view = nullptr;
    QToolButton* previous = nullptr;
    QToolButton* next = nullptr;
    QToolButton* smaller = nullptr;
    QToolButton* larger = nullptr;
    QLabel* number = nullptr;
    QLabel* percentage = nullptr;
};

}  // namespace plandesk::desktop
