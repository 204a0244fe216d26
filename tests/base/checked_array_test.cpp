#include "base/checked_array.h"

#include <string>

#include <gtest/gtest.h>

namespace tessaplot::base {
namespace {

TEST(CheckedArray, runsToItsUpperBoundsAndNoFurther) {
    CheckedArray<double> array("Reg3DX");
    EXPECT_THROW(array(0), Failure);
    array.allocate(2, 3);
    array(2, 3) = 5;
    EXPECT_EQ(array(2, 3), 5);
    EXPECT_EQ(array(1, 0), 0);
    EXPECT_EQ(array.values()[2 + 3 * array.strideJ()], 5) << "the first index varies fastest";
    try {
        array(0, 4) = 1;
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), FailureCode::SubscriptOutOfRange);
        EXPECT_NE(std::string(failure.what()).find("Reg3DX"), std::string::npos);
    }
    EXPECT_THROW(array(-1, 0), Failure);
    EXPECT_THROW(array(0, 0, 1), Failure);
    EXPECT_THROW(array.allocate(-1), Failure);
}

}  // namespace
}  // namespace tessaplot::base
