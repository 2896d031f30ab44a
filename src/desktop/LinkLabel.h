#pragma once

#include <QLabel>
#include <functional>

namespace plandesk::desktop {

/// A label that is a link: underlined, with a hand over it, and with the style's mark around it while it has the focus.
class LinkLabel : public QLabel {
public:
    explicit LinkLabel(QWidget& parent);

    std::function<void()> pressed = [] {};  ///< what a press means, to whoever presses it without mouse or keys

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace plandesk::desktop
