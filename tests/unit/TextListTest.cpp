#include "base/TextList.h"

#include <gtest/gtest.h>

namespace plandesk {
namespace {

TEST(TextListTest, KeepsTextsInTheirOrder) {
    TextList list;
    const std::string longText(100000, 'x');
    for (const std::string_view text : {"one", "", "two", longText.c_str(), ""})
        list.add(text);
    ASSERT_EQ(list.size(), 5U);
    EXPECT_EQ(list[0], "one");
    EXPECT_EQ(list[1], "");
    EXPECT_EQ(list[2], "two");
    EXPECT_EQ(list[3], longText);
    EXPECT_EQ(list[4], "");
}

TEST(TextListTest, StartsAnewWhenCleared) {
    TextList list;
    list.add("one");
    list.clear();
    EXPECT_EQ(list.size(), 0U);
    list.add("two");
    EXPECT_EQ(list[0], "two");
}

}  // namespace
}  // namespace plandesk
