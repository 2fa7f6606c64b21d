#pragma once

#include <QString>

#include "sales/SaleCommand.h"

namespace sandogh {

// A key of the sale screen and what it asks for; handOff is the companion program's
// menu command of a terminal key ("mnuPosMellat," ...), empty for the others.
struct SaleKeyBinding {
    SaleCommand command = SaleCommand::Save;
    QString handOff;
};

}  // namespace sandogh
