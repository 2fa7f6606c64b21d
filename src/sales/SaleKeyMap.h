#pragma once

#include <Qt>
#include <optional>

#include "sales/SaleKeyBinding.h"

namespace sandogh {

// The key table of the sale screen, which sees every key before its controls. "Ctrl"
// means the Ctrl key alone held; the keypad's Enter counts as Enter.
class SaleKeyMap {
public:
    // The command of a key, or nothing for a key the table does not name.
    static std::optional<SaleKeyBinding> lookup(int key, Qt::KeyboardModifiers modifiers);
};

}  // namespace sandogh
