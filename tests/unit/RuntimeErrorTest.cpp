#include "base/RuntimeError.h"

#include <string>

#include <gtest/gtest.h>

namespace plandesk {
namespace {

std::string descriptionOf(ErrorNumber number) {
    return RuntimeError(number).description;
}

TEST(RuntimeError, CarriesTheNumberOfItsKind) {
    EXPECT_EQ(RuntimeError(ErrorNumber::Overflow).number, 6);
    EXPECT_EQ(RuntimeError(ErrorNumber::NoCurrentRecord).number, 3021);
}

TEST(RuntimeError, DescribesEachKindInThePlatformsWords) {
    EXPECT_EQ(descriptionOf(ErrorNumber::InvalidProcedureCall), "Invalid procedure call or argument");
    EXPECT_EQ(descriptionOf(ErrorNumber::Overflow), "Overflow");
    EXPECT_EQ(descriptionOf(ErrorNumber::SubscriptOutOfRange), "Subscript out of range");
    EXPECT_EQ(descriptionOf(ErrorNumber::TypeMismatch), "Type mismatch");
    EXPECT_EQ(descriptionOf(ErrorNumber::FileNotFound), "File not found");
    EXPECT_EQ(descriptionOf(ErrorNumber::DeviceIoError), "Device I/O error");
    EXPECT_EQ(descriptionOf(ErrorNumber::DiskFull), "Disk full");
    EXPECT_EQ(descriptionOf(ErrorNumber::PermissionDenied), "Permission denied");
    EXPECT_EQ(descriptionOf(ErrorNumber::PathFileAccess), "Path/File access error");
    EXPECT_EQ(descriptionOf(ErrorNumber::PathNotFound), "Path not found");
    EXPECT_EQ(descriptionOf(ErrorNumber::ObjectNotSet), "Object variable or With block variable not set");
    EXPECT_EQ(descriptionOf(ErrorNumber::InvalidPropertyValue), "Invalid property value");
    EXPECT_EQ(descriptionOf(ErrorNumber::InvalidPropertyArrayIndex), "Invalid property array index");
    EXPECT_EQ(descriptionOf(ErrorNumber::ArgumentsOfWrongType),
              "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another.");
    EXPECT_EQ(descriptionOf(ErrorNumber::NoCurrentRecord),
              "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
              "current record.");
    EXPECT_EQ(descriptionOf(ErrorNumber::ItemNotFound),
              "Item cannot be found in the collection corresponding to the requested name or ordinal.");
}

TEST(RuntimeError, CanCarryAnyNumberAndText) {
    const RuntimeError error(ErrorNumber::ItemNotFound, "frmSample has no txtFrist");
    EXPECT_EQ(error.number, 3265);
    EXPECT_STREQ(error.what(), "frmSample has no txtFrist");
}

}  // namespace
}  // namespace plandesk
