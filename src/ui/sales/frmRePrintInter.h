#pragma once

#include "ui/sales/frmRePrint.h"

namespace sandogh {

// Reprints one internal sale or return: frmRePrint made for the internal family.
class frmRePrintInter : public frmRePrint {
    Q_OBJECT

public:
    explicit frmRePrintInter(AppContext& context, QWidget* parent = nullptr);
};

}  // namespace sandogh
