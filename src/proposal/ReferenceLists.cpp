#include "proposal/ReferenceLists.h"

#include <algorithm>
#include <span>

#include "base/Text.h"

namespace plandesk {

namespace {

constexpr std::array olderProjects = std::to_array<CodedText>({
    {"AMALGAMATION", "AMLG"},
    {"LAND DIVISION", "SD"},
    {"LAND DIVISION + AMALGAMATION", "SD + AMLG"},
    {"AMALGAMATION + LAND DIVISION", "AMLG + SD"},
    {"DEVELOPMENT", "Development"},
});

/// Code of the first row whose text is this one, in any case and without the blanks around the row's; else empty.
std::string_view codeOf(std::span<const CodedText> rows, std::string_view text) {
    const auto row = std::ranges::find_if(
        rows, [text](const CodedText& candidate) { return equalsIgnoringCase(trim(candidate.text), text); });
    return row == rows.end() ? std::string_view{} : row->code;
}

}  // namespace

std::string_view GetSectorNm(std::string_view name) {
    return codeOf(villages, name);
}

std::string_view GetZoneNm(std::string_view text) {
    return codeOf(zones, trim(text));
}

std::string_view zoneCaption(std::string_view code) {
    const std::string wanted = upperCase(trim(code));
    const auto zone = std::ranges::find(zones, wanted, &CodedText::code);
    return zone == zones.end() ? std::string_view{} : trim(zone->text);
}

std::string_view caseTypeCode(std::string_view text) {
    const auto type = std::ranges::find(caseTypes, trim(text), &CaseType::text);
    return type == caseTypes.end() ? "NEW" : type->code;
}

std::string projectCode(std::string_view text) {
    const auto project = std::ranges::find(projects, text, &CodedText::text);
    return std::string(project == projects.end() ? text : project->code);
}

int plotUsePosition(std::string_view text) {
    const auto use = std::ranges::find_if(
        plotUses, [text](std::string_view known) { return equalsIgnoringCase(trim(known), trim(text)); });
    return use == plotUses.end() ? -1 : static_cast<int>(use - plotUses.begin());
}

std::string_view GetProposedProj(std::string_view text) {
    return codeOf(olderProjects, text);
}

int ReadComboValues(std::string_view code, int kind) {
    if (kind == 0) {
        const auto type = std::ranges::find(caseTypes, code, &CaseType::code);
        return type == caseTypes.end() ? 0 : type->readPosition;
    }
    const auto project = std::ranges::find(projects, code, &CodedText::code);
    return kind != 1 || project == projects.end() ? 0 : static_cast<int>(project - projects.begin());
}

}  // namespace plandesk
