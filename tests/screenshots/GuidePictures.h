#pragma once

#include <filesystem>

namespace plandesk::test {

/// Writes the pictures that docs/guide.md shows into the folder: forms of the sample proposal, its review, its papers.
/// Throws std::runtime_error when the sample or a step towards a picture fails.
void takeGuidePictures(const std::filesystem::path& folder);

}  // namespace plandesk::test
