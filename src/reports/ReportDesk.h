#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Paper.h"

// Reports once they are fed: what each was given, which of them are open as previews, and their way to the printer.
// What the driver looks at and what the window shows is the same.

namespace plandesk {

class Proposal;
class Recordset;
struct Report;

/// What a report was given: a copy, which no later typing changes.
struct ReportData {
    std::vector<std::string_view> columns;
    std::vector<std::vector<std::string>> rows;  ///< by column; an empty cell is ""

    ReportData() = default;
    explicit ReportData(const Recordset& table);

    bool operator==(const ReportData&) const = default;

    /// The text of the column of that name, in any case; null when there is no such column or row.
    const std::string* find(std::string_view column, std::size_t row = 0) const;
};

/// The layout with the data in its fields. A field without a column, and every field of a report without data, is
/// empty.
Paper fillPaper(const Paper& layout, const ReportData& data);

/// A report that is open, or that was printed.
struct Preview {
    std::string_view name;
    ReportData data;
    Paper paper;
    PaperPlace place;
};

/// What a view or a script wants to hear. Every call comes after the change.
class ReportObserver {
public:
    virtual ~ReportObserver() = default;
    virtual void reportShown(const Preview& preview) = 0;    ///< opened, or brought to the front, with the newest data
    virtual void reportChanged(const Preview& preview) = 0;  ///< was fed again while it is open, and stays where it is
    virtual void reportClosed(std::string_view name) = 0;
    virtual void reportPrinted(const Preview& printed) = 0;
};

/// Reports are named in any case. RuntimeError 3265 for one that the catalogue of reports does not know.
class ReportDesk {
public:
    explicit ReportDesk(Proposal& proposal) : proposal(proposal) {}

    /// The desk that the shell gave the proposal. RuntimeError 91 when there is none.
    static ReportDesk& of(const Proposal& proposal);

    ReportObserver* observer = nullptr;  ///< may be null

    /// The report's data source becomes `data`. A preview that is open shows what is new in it at once.
    void bind(std::string_view report, ReportData data);
    void place(std::string_view report, PaperPlace window);
    /// Opens the report's preview, or brings it to the front.
    void show(std::string_view report);
    /// Prints on the default printer, without a dialog. RuntimeError 482 when it cannot.
    void print(std::string_view report);
    /// Writes NAME.pdf into the folder. RuntimeErrors as `Files::writeWhole`.
    void writePdf(std::string_view report, const std::filesystem::path& folder);
    /// The report as it would be shown now.
    Preview filled(std::string_view report) const;

    /// The user closes the preview, as one event. False when it is not open, or out of reach behind a modal form.
    bool pressClose(std::string_view report);
    /// Closes the preview; a page of the Particulars takes the navigator with it.
    void close(std::string_view report);
    /// Holds what the other desk holds, with its open previews, of which nobody hears.
    void copyFrom(const ReportDesk& original);
    /// Closes every preview and forgets what the reports were given.
    void unloadAll();

    /// The open preview; null when there is none.
    const Preview* find(std::string_view report) const;
    /// The open previews from back to front.
    std::vector<const Preview*> previews() const;

private:
    /// A report that was touched; it stays until all are unloaded.
    struct Source {
        const Report* report;
        ReportData data{};
        PaperPlace window;
        std::string person{};  ///< who prepared what it was given
    };
    Source& touch(std::string_view report);
    std::vector<std::unique_ptr<Preview>>::const_iterator placeOf(std::string_view report) const;

    Proposal& proposal;
    std::vector<Source> sources;
    std::vector<std::unique_ptr<Preview>> open;  ///< from back to front
};

}  // namespace plandesk
