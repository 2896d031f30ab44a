#include "proposal/InPlace.h"

#include <string_view>

#include <gtest/gtest.h>

namespace plandesk {
namespace {

struct Fruit {
    enum : int { Apple, Pear, Plum, count };
};

TEST(InPlace, GivesTheRowsByTheirPlaces) {
    constexpr auto names =
        inPlace<Fruit, std::string_view>({{Fruit::Apple, "a"}, {Fruit::Pear, "b"}, {Fruit::Plum, "c"}});
    static_assert(names.size() == Fruit::count);
    EXPECT_EQ(names[Fruit::Apple], "a");
    EXPECT_EQ(names[Fruit::Plum], "c");
}

TEST(InPlace, RefusesARowAtAnothersPlaceAndARowThatStandsTwice) {
    EXPECT_THROW((inPlace<Fruit, int>({{Fruit::Apple, 1}, {Fruit::Plum, 3}, {Fruit::Pear, 2}})), std::logic_error);
    EXPECT_THROW((inPlace<Fruit, int>({{Fruit::Apple, 1}, {Fruit::Pear, 2}, {Fruit::Pear, 2}})), std::logic_error);
}

}  // namespace
}  // namespace plandesk
