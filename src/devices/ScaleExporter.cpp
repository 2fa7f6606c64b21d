#include "ScaleExporter.h"

#include <cmath>

#include "common/AmountText.h"
#include "data/Database.h"
#include "data/scales/MizanNetItems.h"
#include "data/scales/OnlineSalesItems.h"
#include "data/scales/SadrItems.h"

namespace sandogh {

namespace {

// OnlineSales Type and MizanNet and Sadr weight unit of weighed and counted goods.
constexpr int kTakinWeighed = 2;
constexpr int kTakinCounted = 1;
constexpr int kWeightUnitWeighed = 1;
constexpr int kWeightUnitCounted = 0;

qint64 wholeValue(const QString& text) {
    return static_cast<qint64>(std::llround(AmountText::parse(text.trimmed().toStdString())));
}

// The values of the good's scale record, with the vendor's kind code.
ScaleItemValues values(const ScaleGood& good, int kind) {
    return {wholeValue(good.plu),
            good.name,
            good.barcode,
            wholeValue(good.barcode),
            AmountText::parse(good.cost.toStdString()),
            kind};
}

}  // namespace

ScaleExporter::ScaleExporter(const ScaleExportConfig& config, MessageService& messages)
    : m_config(config), m_messages(messages) {}

bool ScaleExporter::failed() {
    m_messages.show(Database::connectionFailureMessage(), MessageStyle::CriticalPlain);
    return false;
}

bool ScaleExporter::goodSaved(Session& session, const ScaleGood& good) {
    if (m_config.takin && !exportTakin(session, good))
        return failed();
    if (m_config.mizan && !exportMizan(session, good))
        return failed();
    if (m_config.sadr && !exportSadr(session, good))
        return failed();
    return true;
}

bool ScaleExporter::goodDeleted(Session& session, const QString& plu) {
    return OnlineSalesItems::remove(session, wholeValue(plu)) || failed();
}

bool ScaleExporter::exportTakin(Session& session, const ScaleGood& good) {
    const ScaleItemValues item = values(good, good.weighed ? kTakinWeighed : kTakinCounted);
    const qint64 found = OnlineSalesItems::countByCode(session, item.plu);
    if (found < 0)
        return false;
    return found > 0 ? OnlineSalesItems::update(session, item)
                     : OnlineSalesItems::insert(session, item);
}

bool ScaleExporter::exportMizan(Session& session, const ScaleGood& good) {
    const ScaleItemValues item =
        values(good, good.weighed ? kWeightUnitWeighed : kWeightUnitCounted);
    qint64 found = MizanNetItems::countByBarcodeValue(session, item.barcodeValue);
    if (found == 0)
        found = MizanNetItems::countByPlu(session, item.plu);
    if (found < 0)
        return false;
    return found > 0 ? MizanNetItems::update(session, item) : MizanNetItems::insert(session, item);
}

bool ScaleExporter::exportSadr(Session& session, const ScaleGood& good) {
    const ScaleItemValues item =
        values(good, good.weighed ? kWeightUnitWeighed : kWeightUnitCounted);
    const qint64 found = SadrItems::countByItemCode(session, item.barcodeValue);
    if (found < 0)
        return false;
    return found > 0 ? SadrItems::update(session, item) : SadrItems::insert(session, item);
}

}  // namespace sandogh
