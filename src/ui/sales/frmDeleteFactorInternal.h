#pragma once

#include "ui/sales/frmDeleteFactor.h"

namespace sandogh {

// Deletes one internal sale or return given its kind and number: frmDeleteFactor made for
// the internal family.
class frmDeleteFactorInternal : public frmDeleteFactor {
    Q_OBJECT

public:
    explicit frmDeleteFactorInternal(AppContext& context, QWidget* parent = nullptr);
};

}  // namespace sandogh
