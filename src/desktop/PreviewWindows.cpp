#include "desktop/PreviewWindows.h"

#include <algorithm>
#include <utility>

#include "controls/Screen.h"
#include "desktop/ChildWindow.h"
#include "desktop/ScreenView.h"
#include "proposal/Proposal.h"
#include "reports/ReportCatalogue.h"

namespace plandesk::desktop {

PreviewWindows::PreviewWindows(PreviewRoom given) : room(std::move(given)) {
    room.reports.observer = this;
}

PreviewWindows::~PreviewWindows() {
    room.reports.observer = nullptr;
}

PreviewWindow* PreviewWindows::windowOf(std::string_view report) const {
    const auto found =
        std::ranges::find_if(open, [&](const PreviewWindow* window) { return window->report() == report; });
    return found == open.end() ? nullptr : *found;
}

void PreviewWindows::sync() {
    if (changed.empty())
        return;
    for (const std::string& name : std::exchange(changed, {})) {
        const Preview* preview = room.reports.find(name);
        if (!preview)
            continue;
        if (!windowOf(name)) {
            open.push_back(new PreviewWindow(*preview, room));
            open.back()->colourBar(false);
            open.back()->show();
        }
        windowOf(name)->showPreview(*preview);
    }
    room.screen.windowsChanged();
    PreviewWindow* shown = windowOf(std::exchange(front, {}));
    if (!shown)
        return;
    shown->raise();
    // The navigator stays above the pages that it turns, and keeps the keyboard.
    const bool isPage = std::ranges::find(particularsPages, shown->report()) != particularsPages.end();
    const Form* navigator = isPage ? room.proposal.forms.loaded("frmReportNav") : nullptr;
    if (ChildWindow* above = navigator && navigator->visible() ? room.screen.windowOf(*navigator) : nullptr)
        above->raise();
    else
        room.screen.setGuest(shown);
}

void PreviewWindows::fit() {
    for (PreviewWindow* window : open)
        window->fit();
}

void PreviewWindows::reportShown(const Preview& preview) {
    changed.emplace(preview.name);
    front = preview.name;
    room.screen.windowsChanged();
}

void PreviewWindows::reportChanged(const Preview& preview) {
    changed.emplace(preview.name);
    room.screen.windowsChanged();
}

void PreviewWindows::reportClosed(std::string_view name) {
    PreviewWindow* gone = windowOf(name);
    if (!gone)
        return;
    std::erase(open, gone);
    if (room.screen.guest() == gone)
        room.screen.setGuest(nullptr);
    gone->hide();
    gone->deleteLater();
    room.screen.windowsChanged();
}

}  // namespace plandesk::desktop
