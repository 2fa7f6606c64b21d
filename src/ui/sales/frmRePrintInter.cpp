#include "ui/sales/frmRePrintInter.h"

namespace sandogh {

frmRePrintInter::frmRePrintInter(AppContext& context, QWidget* parent)
    : frmRePrint(context, DocumentFamily::Internal, parent) {}

}  // namespace sandogh
