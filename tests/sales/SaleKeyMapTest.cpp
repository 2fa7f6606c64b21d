// The sale screen's key table.

#include <gtest/gtest.h>

#include "sales/SaleKeyMap.h"

namespace sandogh {
namespace {

TEST(SaleKeyMap, OtherModifiersAndPlainLettersAreNotTheSalesKeys) {
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_D, Qt::NoModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_F6, Qt::AltModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_Return, Qt::NoModifier));
}

}  // namespace
}  // namespace sandogh
