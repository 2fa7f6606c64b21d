#pragma once

#include <QString>

#include "data/repositories/CodeLevelsRepository.h"

class QWidget;

namespace sandogh {

class AppContext;
class frmCodeParameters;
class frmCustomerGroup;
class frmGood;
class frmGoodsList;
class frmParameters;
class frmParties;

// The catalogue and party screens made from the running program's context: its shop
// database, message service, clock and user, and for the goods screens the scales'
// export of this machine's settings. The context must have its database.
class CatalogScreens {
public:
    // One list of the parameter table (61 units, 1010..1013 customer lists, 501..509
    // goods level values, 201..210 account level values).
    static frmParameters* parameters(AppContext& context, int typeNo, QWidget* parent = nullptr);
    static frmCodeParameters* codeLevels(AppContext& context, CodeLevelsRepository::Family family,
                                         QWidget* parent = nullptr);
    // barcode empty: a new article.
    static frmGood* good(AppContext& context, const QString& barcode = {},
                         QWidget* parent = nullptr);
    static frmGoodsList* goodsList(AppContext& context, QWidget* parent = nullptr);
    // typeNo 10: customers; 11: suppliers.
    static frmParties* parties(AppContext& context, int typeNo, QWidget* parent = nullptr);
    static frmCustomerGroup* customerGroups(AppContext& context, QWidget* parent = nullptr);
};

}  // namespace sandogh
