#include "desktop/LabelViews.h"

#include <QLabel>
#include <QMouseEvent>
#include <algorithm>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/User.h"
#include "desktop/LinkLabel.h"
#include "desktop/LongText.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

class LabelView : public ControlView {
public:
    LabelView(Captioned& captioned, QLabel& label, ScreenView& screen)
        : ControlView(captioned, label, screen), label(label) {
        label.setTextFormat(Qt::PlainText);
    }

    void name(const QString&, const QString&) override {}
    QSize sizeFor(int available, bool /*alone*/) override {
        const bool breaks = naturalWidth(false) > available;
        if (breaks != label.wordWrap())
            label.setWordWrap(breaks);
        return breaks ? QSize(available, label.heightForWidth(available)) : label.sizeHint();
    }
    int naturalWidth(bool /*alone*/) const override {
        const QMargins around = label.contentsMargins();
        return label.fontMetrics().size(0, label.text()).width() + around.left() + around.right() + 1;
    }
    int leastWidth() const override {
        return std::min(naturalWidth(false), leastCaptionCharacters * label.fontMetrics().averageCharWidth());
    }

private:
    Colour foreColor() const override { return static_cast<Captioned&>(*subject).foreColor(); }
    /// Blanks around a caption would only push it out of its column.
    void syncContent() override { label.setText(beginning(trim(static_cast<Captioned&>(*subject).caption()))); }

    QLabel& label;
};

/// A label to be clicked, or pressed with Space or Enter.
class LinkView : public LabelView {
public:
    LinkView(Captioned& captioned, LinkLabel& link, ScreenView& screen)
        : LabelView(captioned, link, screen), link(link) {
        link.pressed = [this] { act([this] { user::click(*subject); }); };
    }

    bool filterEvent(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease) {
            const auto& mouse = *static_cast<QMouseEvent*>(event);
            if (mouse.button() == Qt::LeftButton && link.rect().contains(mouse.pos()))
                link.pressed();
        }
        return ControlView::filterEvent(watched, event);
    }

private:
    bool systemKey(const QKeyEvent& event) override {
        if (event.key() != Qt::Key_Space)
            return ControlView::systemKey(event);
        act([this] { user::press(*subject, "Space"); });
        return true;
    }

    LinkLabel& link;
};

}  // namespace

ControlView& makeLabelView(Captioned& captioned, QWidget& parent, ScreenView& screen) {
    if (captioned.click)
        return *new LinkView(captioned, *new LinkLabel(parent), screen);
    return *new LabelView(captioned, *new QLabel(&parent), screen);
}

}  // namespace plandesk::desktop
