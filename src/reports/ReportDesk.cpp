#include "reports/ReportDesk.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "proposal/Proposal.h"
#include "reports/ReportCatalogue.h"

namespace plandesk {

namespace {

/// First, middle and last name of the professional, as far as the first page knows them.
std::string professional(const Proposal& proposal) {
    std::string person;
    if (const Form* form = proposal.forms.loaded("frmAnnexureA"))
        for (const std::string_view part : {"txtArchFirstName", "txtArchMiddName", "txtArchNm"})
            if (const std::string_view name = trim(form->at<TextBox>(part).text()); !name.empty())
                person.append(person.empty() ? "" : " ").append(name);
    return person;
}

void fillRow(PaperRow& row, const ReportData& data, std::size_t dataRow) {
    for (PaperCell& cell : row.cells)
        for (PaperItem& item : cell)
            if (const std::string* value = item.isField() ? data.find(item.field, dataRow) : nullptr)
                item.value = *value;
}

void fillSection(PaperSection& section, const ReportData& data) {
    if (section.repeats && !section.rows.empty() && data.rows.size() > 1)
        section.rows.resize(section.rows.size() + data.rows.size() - 1, PaperRow(section.rows.back()));
    const std::size_t fixedRows =
        section.repeats ? section.rows.size() - std::max<std::size_t>(data.rows.size(), 1) : 0;
    for (std::size_t row = 0; row < section.rows.size(); ++row)
        fillRow(section.rows[row], data, section.repeats && row > fixedRows ? row - fixedRows : 0);
}

}  // namespace

ReportData::ReportData(const Recordset& table) {
    for (const Column& column : table.columns())
        columns.push_back(column.name);
    for (const std::span<const Value> values : table.allRows()) {
        auto& row = rows.emplace_back();
        row.reserve(values.size());
        for (const Value& value : values)
            row.push_back(valueText(value));
    }
}

const std::string* ReportData::find(std::string_view column, std::size_t row) const {
    const auto named =
        std::ranges::find_if(columns, [&](std::string_view name) { return equalsIgnoringCase(name, column); });
    if (named == columns.end() || row >= rows.size())
        return nullptr;
    return &rows[row].at(static_cast<std::size_t>(named - columns.begin()));
}

Paper fillPaper(const Paper& layout, const ReportData& data) {
    Paper paper = layout;
    for (auto* part : {&paper.header, &paper.body, &paper.footer})
        for (PaperSection& section : *part)
            fillSection(section, data);
    return paper;
}

ReportDesk& ReportDesk::of(const Proposal& proposal) {
    if (!proposal.commands.reports)
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    return *proposal.commands.reports;
}

void ReportDesk::copyFrom(const ReportDesk& original) {
    sources = original.sources;
    open.clear();
    for (const std::unique_ptr<Preview>& preview : original.open)
        open.push_back(std::make_unique<Preview>(*preview));
}

ReportDesk::Source& ReportDesk::touch(std::string_view report) {
    const Report& row = findReport(report);
    const auto known = std::ranges::find(sources, &row, &Source::report);
    return known == sources.end() ? sources.emplace_back(Source{.report = &row, .window = row.window}) : *known;
}

Preview ReportDesk::filled(std::string_view report) const {
    const Report& row = findReport(report);
    const auto known = std::ranges::find(sources, &row, &Source::report);
    Preview preview{.name = row.name, .data = {}, .paper = {}, .place = row.window};
    if (known != sources.end()) {
        preview.data = known->data;
        preview.place = known->window;
    }
    preview.paper = fillPaper(*findLayout(row.name), preview.data);
    preview.paper.date = proposal.screen.ports.clock.today();
    preview.paper.person = known == sources.end() ? "" : known->person;
    return preview;
}

void ReportDesk::bind(std::string_view report, ReportData data) {
    Source& source = touch(report);
    source.data = std::move(data);
    source.person = professional(proposal);
    const auto preview = placeOf(report);
    if (preview == open.end() || (*preview)->data == source.data)
        return;
    **preview = filled(report);
    if (observer)
        observer->reportChanged(**preview);
}

void ReportDesk::place(std::string_view report, PaperPlace window) {
    touch(report).window = window;
}

void ReportDesk::show(std::string_view report) {
    touch(report);
    std::unique_ptr<Preview> preview;
    if (const auto place = placeOf(report); place == open.end()) {
        preview = std::make_unique<Preview>();
    } else {
        preview = std::move(open[static_cast<std::size_t>(place - open.begin())]);
        open.erase(place);
    }
    *preview = filled(report);
    open.push_back(std::move(preview));
    if (observer)
        observer->reportShown(*open.back());
}

void ReportDesk::print(std::string_view report) {
    touch(report);
    const Preview printed = filled(report);
    proposal.screen.ports.printer.print(printed.paper);
    if (observer)
        observer->reportPrinted(printed);
}

void ReportDesk::writePdf(std::string_view report, const std::filesystem::path& folder) {
    touch(report);
    const Preview written = filled(report);
    proposal.screen.ports.printer.writePdf(written.paper, folder / (std::string(written.name) + ".pdf"));
}

bool ReportDesk::pressClose(std::string_view report) {
    if (!find(report) || proposal.screen.modalForm() || proposal.screen.ended())
        return false;
    proposal.screen.event([&] { close(report); });
    return true;
}

void ReportDesk::close(std::string_view report) {
    const auto place = placeOf(report);
    if (place == open.end())
        return;
    const std::string_view name = findReport(report).name;
    open.erase(place);
    if (observer)
        observer->reportClosed(name);
    if (std::ranges::find(particularsPages, name) != particularsPages.end())
        proposal.forms.unload("frmReportNav");
}

void ReportDesk::unloadAll() {
    while (!open.empty())
        close(open.back()->name);
    sources.clear();
}

const Preview* ReportDesk::find(std::string_view report) const {
    const auto place = placeOf(report);
    return place == open.end() ? nullptr : place->get();
}

std::vector<const Preview*> ReportDesk::previews() const {
    std::vector<const Preview*> all;
    for (const auto& preview : open)
        all.push_back(preview.get());
    return all;
}

std::vector<std::unique_ptr<Preview>>::const_iterator ReportDesk::placeOf(std::string_view report) const {
    return std::ranges::find_if(open, [&](const auto& preview) { return equalsIgnoringCase(preview->name, report); });
}

}  // namespace plandesk
