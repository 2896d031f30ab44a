#pragma once

#include <QGroupBox>

namespace plandesk::desktop {

/// Has screen readers told what the toolkit keeps to itself: that an option is one of several, though the system and
/// not the toolkit sees to it that one at most is on.
void installAccessibility();

/// Holds the options of one question together, so that they are read as a group. It cannot be seen.
class OptionsBox : public QGroupBox {
public:
    explicit OptionsBox(QWidget& page);

    /// Stands around its options, which have been placed on the page that it stands on.
    void surround();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* /*event*/) override {}
};

}  // namespace plandesk::desktop
