// plandesk-contract FOLDER: writes the made files of docs/contract into the folder. Status 2, and what is wrong, when
// the tables and the notes do not tell the document together, or a file cannot be written.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "base/RuntimeError.h"
#include "contract/Contract.h"

namespace {

using namespace plandesk;

constexpr int cannot = 2;

void write(const std::filesystem::path& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file)
        throw RuntimeError(ErrorNumber::PathFileAccess, path.string() + ": cannot be written");
}

}  // namespace

int main(int count, char** values) {
    if (count != 2) {
        std::cerr << "usage: plandesk-contract FOLDER\n";
        return cannot;
    }
    try {
        const std::filesystem::path folder = values[1];
        contract::Element root = contract::collect();
        contract::findReadings(root);
        write(folder / "positions.md", contract::referencePage(root));
        write(folder / "positions.json", contract::positions(root));
        write(folder / "proposal.xsd", contract::schema(root, false));
        write(folder / "proposal-strict.xsd", contract::schema(root, true));
        write(folder / "example.xml", contract::exampleDocument(root));
    } catch (const RuntimeError& error) {
        std::cerr << error.description << '\n';
        return cannot;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return cannot;
    }
    return EXIT_SUCCESS;
}
