#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <functional>

#include "desktop/Keys.h"

namespace plandesk::desktop {

/// A text editor of Qt that asks a filter about each key before it types it. What is pasted passes unasked.
template <class Editor>
class FilteredEdit : public Editor {
public:
    using Editor::Editor;

    /// What becomes of one character, or of Backspace (8); 0 swallows the key.
    std::function<int(int)> filter = [](int key) { return key; };

protected:
    void keyPressEvent(QKeyEvent* event) override {
        constexpr int backspace = 8;
        if (event->key() == Qt::Key_Backspace && filter(backspace) == 0)
            return;
        const QString typed = typedText(*event);
        if (typed.isEmpty())
            return Editor::keyPressEvent(event);
        const QString passed = filteredText(typed, filter);
        if (passed.isEmpty())
            return;
        const int key = passed == typed ? event->key() : 0;
        QKeyEvent rest(event->type(), key, event->modifiers(), passed, event->isAutoRepeat());
        Editor::keyPressEvent(&rest);
        event->setAccepted(rest.isAccepted());
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        QInputMethodEvent rest(event->preeditString(), event->attributes());
        rest.setCommitString(filteredText(event->commitString(), filter), event->replacementStart(),
                             event->replacementLength());
        Editor::inputMethodEvent(&rest);
        event->setAccepted(rest.isAccepted());
    }
};

}  // namespace plandesk::desktop
