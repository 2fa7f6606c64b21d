#include "ui/sales/frmSaleInterList.h"

namespace sandogh {

frmSaleInterList::frmSaleInterList(AppContext& context, int transType, QWidget* parent)
    : frmSaleList(context, transType, DocumentFamily::Internal, parent) {}

}  // namespace sandogh
