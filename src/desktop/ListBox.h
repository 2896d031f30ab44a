#pragma once

#include <QComboBox>

namespace plandesk::desktop {

/// A list to pick from that can also show a text that is no item of it.
class ListBox : public QComboBox {
public:
    explicit ListBox(QWidget& parent);

    /// The text to show while no item is the current one.
    void setForeignText(const QString& text);
    /// What the box shows.
    QString shownText() const;
    /// Whether its end had to be left out.
    bool elided() const;

    /// The next letter begins a new search for an item, however soon it comes after the last one.
    void startSearch();

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace plandesk::desktop
