#include "ui/sales/frmDeleteFactorInternal.h"

namespace sandogh {

frmDeleteFactorInternal::frmDeleteFactorInternal(AppContext& context, QWidget* parent)
    : frmDeleteFactor(context, DocumentFamily::Internal, parent) {}

}  // namespace sandogh
