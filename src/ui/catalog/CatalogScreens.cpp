#include "ui/catalog/CatalogScreens.h"

#include "app/AppContext.h"
#include "devices/DeviceConfigs.h"
#include "ui/catalog/ScaleHookOwner.h"
#include "ui/catalog/frmCodeParameters.h"
#include "ui/catalog/frmGood.h"
#include "ui/catalog/frmGoodsList.h"
#include "ui/catalog/frmParameters.h"
#include "ui/parties/frmCustomerGroup.h"
#include "ui/parties/frmParties.h"

namespace sandogh {

frmParameters* CatalogScreens::parameters(AppContext& context, int typeNo, QWidget* parent) {
    return new frmParameters(context.database(), context.messages(), typeNo, parent);
}

frmCodeParameters* CatalogScreens::codeLevels(AppContext& context,
                                              CodeLevelsRepository::Family family,
                                              QWidget* parent) {
    return new frmCodeParameters(context.database(), context.messages(), family, parent);
}

frmGood* CatalogScreens::good(AppContext& context, const QString& barcode, QWidget* parent) {
    auto* owner = new ScaleHookOwner(DeviceConfigs::scaleExport(context.machineSettings()),
                                     context.messages());
    auto* screen = new frmGood(context.database(), context.messages(), context.clock(),
                               context.user().id, owner->hook(), barcode, parent);
    owner->setParent(screen);
    return screen;
}

frmGoodsList* CatalogScreens::goodsList(AppContext& context, QWidget* parent) {
    auto* owner = new ScaleHookOwner(DeviceConfigs::scaleExport(context.machineSettings()),
                                     context.messages());
    auto* screen = new frmGoodsList(context.database(), context.messages(), context.clock(),
                                    context.user().id, owner->hook(), parent);
    owner->setParent(screen);
    return screen;
}

frmParties* CatalogScreens::parties(AppContext& context, int typeNo, QWidget* parent) {
    return new frmParties(context.database(), context.messages(), typeNo, parent);
}

frmCustomerGroup* CatalogScreens::customerGroups(AppContext& context, QWidget* parent) {
    return new frmCustomerGroup(context.database(), context.messages(), parent);
}

}  // namespace sandogh
