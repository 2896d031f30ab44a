#include "RoundTripModel.h"

#include "base/RuntimeError.h"
#include "unit/roundtrip/Records.h"
#include "unit/roundtrip/Sections.h"

namespace plandesk::test {

Prediction predict(const std::string& firstFile, const std::vector<int>& villages, const std::string& today) {
    const std::optional<Element> root = rootOf(firstFile);
    Forms forms(villages, today);
    Records records(today);
    readSections(forms, root);
    Prediction expected{forms.boxes, readBlocks(records, root), records.contents()};
    const std::optional<std::string> sections = writeSections(forms);
    if (!sections)
        return expected;
    try {
        expected.file = *sections + writeBlocks(records);
        expected.tablesSaved = records.contents();
    } catch (const RuntimeError&) {
        // The save ends there and leaves no file.
    }
    return expected;
}

}  // namespace plandesk::test
