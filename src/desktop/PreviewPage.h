#pragma once

#include <QPixmap>
#include <QScrollArea>
#include <functional>

namespace plandesk::desktop {

class PaperPages;

/// One page of a paper on the screen, at any size, that is scrolled and turned.
class PreviewPage : public QScrollArea {
public:
    explicit PreviewPage(QWidget& parent);

    /// The pages live until the next call.
    void showPages(const PaperPages& pages);
    /// Turns to the page, counted from 0; one that is not there turns to the nearest.
    void turnTo(int page);
    int page() const { return current; }
    /// Size of the page, 1 for that of the paper; between an eighth and four times.
    void setZoom(qreal factor);
    qreal zoom() const { return factor; }
    /// The size at which the whole page, or its whole width, is seen.
    qreal wholePage() const;
    qreal wholeWidth() const;

    std::function<void()> changed = [] {};  ///< another page, another size

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void draw();
    /// One step through what is seen and on to the next page.
    void leaf(bool forwards);

    const PaperPages* pages = nullptr;
    QWidget* sheet;
    int current = 0;
    qreal factor = 1;
};

}  // namespace plandesk::desktop
