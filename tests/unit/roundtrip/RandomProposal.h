#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "unit/World.h"

namespace plandesk::test {

/// Fills the forms in at random. The same seed fills them in alike.
class RandomProposal {
public:
    RandomProposal(World& world, std::uint64_t seed) : world(world), engine(seed) {
        // Most texts of most proposals are tame, so that files stay well-formed and fields in their places.
        spice = static_cast<int>(below(4));
    }

    void fill();

private:
    std::uint64_t below(std::uint64_t limit) { return engine() % limit; }
    bool oneIn(std::uint64_t odds) { return below(odds) == 0; }
    template <std::size_t size>
    std::string_view oneOf(const std::string_view (&texts)[size]) {
        return texts[below(size)];
    }

    std::string separator();
    std::string odd();
    std::string text();
    std::string amount();
    void fillParticulars(Form& form);
    void fillChecklist(std::string_view form, int rows);
    void fillPayment();

    // Land records and what stands on them. There are so many texts that each is tamer than those of the sections.
    std::string recordText();
    void fillRecords();
    void relatePlots();
    void relatePlots(bool cards);
    void fillExtracts(bool cards);
    void fillOwners(Recordset& owners, std::int32_t extract, std::int32_t count, bool cards);
    void fillHolders(Recordset& holders, std::int32_t extract, std::int32_t count);
    void saveExtracts(std::string_view form);
    void fillNaOrder();
    void fillOrders();
    void fillOrder(std::int32_t extract);
    void fillTexts(Recordset& row);
    void fillDiscretion();

    World& world;
    std::mt19937_64 engine;
    int spice;
};

}  // namespace plandesk::test
