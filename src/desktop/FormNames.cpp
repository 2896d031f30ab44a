#include "desktop/FormNames.h"

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Form.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

QString windowName(const Form& form) {
    const QString caption = toQt(trim(form.caption()));
    const Layout& layout = form.layout();
    if (layout.pages.empty() || layout.pages.front().name.empty())
        return caption;
    const int last = layout.firstTabNumber + static_cast<int>(layout.pages.size()) - 1;
    return QStringLiteral("%1 %2-%3").arg(caption).arg(layout.firstTabNumber).arg(last);
}

QString pageTab(const Form& form, int page) {
    const Layout& layout = form.layout();
    const auto number = static_cast<std::size_t>(page);
    if (number < layout.tabCaptions.size())
        return toQt(trim(layout.tabCaptions[number]));
    const auto groups = layout.pages[number].groups;
    const auto* frame = groups.size() == 1 ? dynamic_cast<Frame*>(form.findKey(groups.front().frame)) : nullptr;
    return frame ? toQt(frame->caption()) : QString::number(layout.firstTabNumber + page);
}

QString pageName(const Form& form, int page) {
    const std::string_view about = form.layout().pages[static_cast<std::size_t>(page)].name;
    const QString tab = pageTab(form, page);
    return about.empty() ? tab : tab + QStringLiteral(": ") + toQt(about);
}

}  // namespace plandesk::desktop
