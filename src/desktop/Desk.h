#pragma once

#include <QRect>
#include <QString>
#include <QWidget>
#include <functional>

namespace plandesk::desktop {

/// The room inside the main window in which the forms stand, with the picture in its middle.
class Desk : public QWidget {
public:
    explicit Desk(QWidget& mainWindow);

    void setBackColor(const QColor& colour);
    /// Draws the picture to the middle of the present size. Until the next call it stays where it is.
    void paintBackground();

    /// Words below the picture, none when empty.
    void setHint(const QString& text);
    const QString& hintShown() const { return hint; }
    QRect hintPlace() const;

    std::function<void()> resized = [] {};
    std::function<void()> painted = [] {};

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QRect place;  ///< of the picture; none before it was asked for
    QString hint;
};

}  // namespace plandesk::desktop
