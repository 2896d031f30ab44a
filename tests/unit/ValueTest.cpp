#include "proposal/Value.h"

#include <array>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"

namespace plandesk {
namespace {

const Value null;
const Date newYear{2024, 1, 1};

int errorOf(const Value& value, ColumnKind kind) {
    try {
        toKind(value, kind);
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return 0;
}

TEST(Value, NullStaysNullInEveryKind) {
    for (const ColumnKind kind :
         {ColumnKind::Integer, ColumnKind::Text, ColumnKind::Date, ColumnKind::Double, ColumnKind::Boolean})
        EXPECT_TRUE(isNull(toKind(null, kind)));
}

TEST(Value, BecomesAWholeNumberRoundedToEven) {
    EXPECT_EQ(toKind(7, ColumnKind::Integer), Value(7));
    EXPECT_EQ(toKind(2.5, ColumnKind::Integer), Value(2));
    EXPECT_EQ(toKind("12", ColumnKind::Integer), Value(12));
    EXPECT_EQ(toKind("3.5", ColumnKind::Integer), Value(4));
    EXPECT_EQ(toKind(true, ColumnKind::Integer), Value(-1));
    EXPECT_EQ(toKind(false, ColumnKind::Integer), Value(0));
}

TEST(Value, ThatIsNoWholeNumberIsATypeMismatch) {
    EXPECT_EQ(errorOf("twelve", ColumnKind::Integer), 13);
    EXPECT_EQ(errorOf("", ColumnKind::Integer), 13);
    EXPECT_EQ(errorOf(newYear, ColumnKind::Integer), 13);
}

TEST(Value, BeyondThirtyTwoBitsOverflows) {
    EXPECT_EQ(toKind(2147483647.0, ColumnKind::Integer), Value(2147483647));
    EXPECT_EQ(errorOf(2147483648.0, ColumnKind::Integer), 6);
    EXPECT_EQ(errorOf("-2147483649", ColumnKind::Integer), 6);
}

TEST(Value, BecomesText) {
    EXPECT_EQ(toKind(-3, ColumnKind::Text), Value("-3"));
    EXPECT_EQ(toKind(2.5, ColumnKind::Text), Value("2.5"));
    EXPECT_EQ(toKind(newYear, ColumnKind::Text), Value("01/01/2024"));
    EXPECT_EQ(toKind(true, ColumnKind::Text), Value("True"));
    EXPECT_EQ(toKind(false, ColumnKind::Text), Value("False"));
    EXPECT_EQ(toKind(" kept ", ColumnKind::Text), Value(" kept "));
    EXPECT_EQ(valueText(null), "");
}

TEST(Value, BecomesADate) {
    EXPECT_EQ(toKind(newYear, ColumnKind::Date), Value(newYear));
    EXPECT_EQ(toKind("01/01/2024", ColumnKind::Date), Value(newYear));
    EXPECT_EQ(errorOf("", ColumnKind::Date), 13);
    EXPECT_EQ(errorOf("31/02/2024", ColumnKind::Date), 13);
    EXPECT_EQ(errorOf(45292, ColumnKind::Date), 13);
}

TEST(Value, BecomesADouble) {
    EXPECT_EQ(toKind(3, ColumnKind::Double), Value(3.0));
    EXPECT_EQ(toKind(3.25, ColumnKind::Double), Value(3.25));
    EXPECT_EQ(toKind("3.25", ColumnKind::Double), Value(3.25));
    EXPECT_EQ(toKind(true, ColumnKind::Double), Value(-1.0));
    EXPECT_EQ(errorOf("12 acres", ColumnKind::Double), 13);
    EXPECT_EQ(errorOf(newYear, ColumnKind::Double), 13);
}

TEST(Value, BecomesABoolean) {
    EXPECT_EQ(toKind("1", ColumnKind::Boolean), Value(true));
    EXPECT_EQ(toKind("0", ColumnKind::Boolean), Value(false));
    EXPECT_EQ(toKind("TRUE", ColumnKind::Boolean), Value(true));
    EXPECT_EQ(toKind("false", ColumnKind::Boolean), Value(false));
    EXPECT_EQ(toKind(-1, ColumnKind::Boolean), Value(true));
    EXPECT_EQ(toKind(0.0, ColumnKind::Boolean), Value(false));
    EXPECT_EQ(toKind(true, ColumnKind::Boolean), Value(true));
    EXPECT_EQ(errorOf("Yes", ColumnKind::Boolean), 13);
    EXPECT_EQ(errorOf(newYear, ColumnKind::Boolean), 13);
}

TEST(Value, IsOfItsOwnKindAlone) {
    constexpr std::array kinds = {ColumnKind::Integer, ColumnKind::Text, ColumnKind::Date, ColumnKind::Double,
                                  ColumnKind::Boolean};
    const std::array<Value, 5> values = {4, "4", newYear, 4.0, true};
    for (std::size_t value = 0; value < values.size(); ++value)
        for (std::size_t kind = 0; kind < kinds.size(); ++kind)
            EXPECT_EQ(isOfKind(values.at(value), kinds.at(kind)), value == kind) << value << " " << kind;
    for (const ColumnKind kind : kinds)
        EXPECT_TRUE(isOfKind(null, kind));
}

TEST(Value, AsANumberIsWhatItBeginsWith) {
    EXPECT_EQ(valueNumber(null), 0);
    EXPECT_EQ(valueNumber(4), 4);
    EXPECT_EQ(valueNumber(4.5), 4.5);
    EXPECT_EQ(valueNumber(true), -1);
    EXPECT_EQ(valueNumber("12.5 acres"), 12.5);
    EXPECT_EQ(valueNumber("acres"), 0);
    EXPECT_EQ(valueNumber(newYear), 0);
}

}  // namespace
}  // namespace plandesk
