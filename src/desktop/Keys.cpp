#include "desktop/Keys.h"

#include <array>

#include "base/Text.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

struct SystemKey {
    int key;
    std::string_view name;
};

constexpr std::array systemKeys = std::to_array<SystemKey>({
    {Qt::Key_Return, "Enter"},
    {Qt::Key_Enter, "Enter"},
    {Qt::Key_Tab, "Tab"},
    {Qt::Key_Backtab, "Shift+Tab"},
    {Qt::Key_F2, "F2"},
    {Qt::Key_F3, "F3"},
    {Qt::Key_Escape, "Esc"},
});

}  // namespace

std::string_view systemKeyName(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return {};
    for (const SystemKey& entry : systemKeys)
        if (entry.key == event.key())
            return entry.key == Qt::Key_Tab && event.modifiers() & Qt::ShiftModifier ? "Shift+Tab" : entry.name;
    return {};
}

std::string_view arrowKeyName(const QKeyEvent& event) {
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    switch (plain ? event.key() : 0) {
    case Qt::Key_Left:
        return "Left";
    case Qt::Key_Right:
        return "Right";
    case Qt::Key_Up:
        return "Up";
    case Qt::Key_Down:
        return "Down";
    default:
        return {};
    }
}

bool opensList(const QKeyEvent& event) {
    return event.key() == Qt::Key_F4 || (event.key() == Qt::Key_Down && event.modifiers() & Qt::AltModifier);
}

QString typedText(const QKeyEvent& event) {
    const QString text = event.text();
    if (text.isEmpty() || event.modifiers() & Qt::ControlModifier)
        return {};
    const QChar first = text.front();
    const bool types = first.isPrint() || first.isSurrogate() || first.category() == QChar::Other_Format ||
                       first.category() == QChar::Other_PrivateUse;
    return types ? text : QString();
}

QString filteredText(const QString& typed, const std::function<int(int)>& filter) {
    std::string passed;
    for (const char32_t key : codePoints(fromQt(typed)))
        if (const int left = filter(static_cast<int>(key)); left != 0)
            appendUtf8(passed, static_cast<char32_t>(left));
    return toQt(passed);
}

}  // namespace plandesk::desktop
