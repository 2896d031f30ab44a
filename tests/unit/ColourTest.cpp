#include "controls/Colour.h"

#include <gtest/gtest.h>

namespace plandesk {
namespace {

TEST(Colour, IsWrittenRedFirst) {
    EXPECT_EQ((Colour{0xD3, 0xEB, 0xED}.text()), "D3EBED");
    EXPECT_EQ((Colour{0x00, 0x0A, 0xF0}.text()), "000AF0");
}

TEST(Colour, IsReadFromABlueGreenRedNumber) {
    EXPECT_EQ(fromBlueGreenRed(0x669DC6).text(), "C69D66");
    EXPECT_EQ(fromBlueGreenRed(13888493).text(), "EDEBD3");
}

TEST(Colour, OfDisabledBoxesAndLinksHasItsName) {
    EXPECT_EQ(white.text(), "FFFFFF");
    EXPECT_EQ(disabledGrey.text(), "E0E0E0");
    EXPECT_EQ(red.text(), "FF0000");
    EXPECT_EQ(blue.text(), "0000FF");
    EXPECT_EQ(black.text(), "000000");
}

}  // namespace
}  // namespace plandesk
