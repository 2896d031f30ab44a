#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "desktop/PreviewWindow.h"
#include "reports/ReportDesk.h"

namespace plandesk::desktop {

/// The open reports as windows on the desk. It hears of what happens to them and shows it together with the forms.
class PreviewWindows : private ReportObserver {
public:
    explicit PreviewWindows(PreviewRoom room);
    ~PreviewWindows() override;

    /// Shows all that changed since the last time.
    void sync();
    /// The desk has another size.
    void fit();
    /// The open ones, in the order in which they were opened.
    std::vector<PreviewWindow*> windows() const { return open; }
    /// Null when it is not open.
    PreviewWindow* windowOf(std::string_view report) const;

private:
    void reportShown(const Preview& preview) override;
    void reportChanged(const Preview& preview) override;
    void reportClosed(std::string_view name) override;
    void reportPrinted(const Preview& /*printed*/) override {}

    PreviewRoom room;
    std::vector<PreviewWindow*> open;
    std::set<std::string> changed;
    std::string front;  ///< shown last since the last sync; empty: none was
};

}  // namespace plandesk::desktop
