#pragma once

#include "ui/sales/frmSaleList.h"

namespace sandogh {

// The internal documents of one kind (2 internal sale, 3 internal return): frmSaleList made
// for the internal family.
class frmSaleInterList : public frmSaleList {
    Q_OBJECT

public:
    frmSaleInterList(AppContext& context, int transType, QWidget* parent = nullptr);
};

}  // namespace sandogh
