// The sale screen's key table.

#include <gtest/gtest.h>

#include "sales/SaleKeyMap.h"

namespace sandogh {
namespace {

struct KeyCase {
    int key;
    Qt::KeyboardModifiers modifiers;
    SaleCommand command;
    const char* handOff;
};

class SaleKeys : public ::testing::TestWithParam<KeyCase> {};

TEST_P(SaleKeys, MapToTheirCommands) {
    const KeyCase c = GetParam();
    const std::optional<SaleKeyBinding> b = SaleKeyMap::lookup(c.key, c.modifiers);
    ASSERT_TRUE(b.has_value());
    EXPECT_EQ(b->command, c.command);
    EXPECT_EQ(b->handOff, QString::fromLatin1(c.handOff));
}

constexpr Qt::KeyboardModifiers kNone = Qt::NoModifier;
constexpr Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;

INSTANTIATE_TEST_SUITE_P(
    Table, SaleKeys,
    ::testing::Values(KeyCase{Qt::Key_F6, kNone, SaleCommand::Save, ""},
                      KeyCase{Qt::Key_Return, kCtrl, SaleCommand::Save, ""},
                      KeyCase{Qt::Key_Enter, kCtrl | Qt::KeypadModifier, SaleCommand::Save, ""},
                      KeyCase{Qt::Key_F6, kCtrl, SaleCommand::SaveAndPrint, ""},
                      KeyCase{Qt::Key_F5, kNone, SaleCommand::PecPayment, ""},
                      KeyCase{Qt::Key_F7, kNone, SaleCommand::TerminalHandOff, "mnuPosMellat,"},
                      KeyCase{Qt::Key_F8, kNone, SaleCommand::TerminalHandOff, "mnuPosSaman,"},
                      KeyCase{Qt::Key_F9, kNone, SaleCommand::TerminalHandOff, "mnuPosPasargad,"},
                      KeyCase{Qt::Key_F10, kNone, SaleCommand::TerminalHandOff, "mnuKishPsp,"},
                      KeyCase{Qt::Key_F11, kNone, SaleCommand::TerminalHandOff,
                              "mnuAsanPardakhtPsp,"},
                      KeyCase{Qt::Key_F12, kNone, SaleCommand::TerminalHandOff, "mnuDamavandPsp,"},
                      KeyCase{Qt::Key_Escape, kNone, SaleCommand::NewSale, ""},
                      KeyCase{Qt::Key_D, kCtrl, SaleCommand::DeleteLine, ""},
                      KeyCase{Qt::Key_M, kCtrl, SaleCommand::SwitchMode, ""},
                      KeyCase{Qt::Key_Q, kCtrl, SaleCommand::ChangeQuantity, ""},
                      KeyCase{Qt::Key_T, kCtrl, SaleCommand::DailyTotals, ""}));

TEST(SaleKeyMap, OtherModifiersAndPlainLettersAreNotTheSalesKeys) {
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_D, Qt::NoModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_F6, Qt::AltModifier));
    EXPECT_FALSE(SaleKeyMap::lookup(Qt::Key_Return, Qt::NoModifier));
}

}  // namespace
}  // namespace sandogh
