#include "sales/SaleChecks.h"

#include "common/AmountText.h"
#include "data/procedures/StockDocumentProcedures.h"
#include "data/procedures/StockProcedures.h"
#include "sales/SaleLookups.h"
#include "sales/SaleTexts.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

QString quantityText(double value) {
    return QString::fromStdString(AmountText::formatDecimals(value));
}

double quantityOf(const QList<SaleLine>& lines, const QString& barcode) {
    double sum = 0;
    for (const SaleLine& l : lines) {
        if (l.barcode.compare(barcode, Qt::CaseInsensitive) == 0) {
            sum += l.quantity;
        }
    }
    return sum;
}

}  // namespace

SaleChecks::SaleChecks(MessageService& messages) : m_messages(messages) {}

QString SaleChecks::lockedMessage(double locked, double saleable) {
    return SaleTexts::lockedGoods() + QStringLiteral("\r\n") + SaleTexts::lockedQuantity() +
           quantityText(locked) + SaleTexts::saleableQuantity() + quantityText(saleable);
}

bool SaleChecks::allowsLocked(Session& session, const QString& barcode, double quantity,
                              const QString& warehouse) {
    const std::optional<std::optional<double>> locked =
        SaleLookups::lockedQuantity(session, barcode);
    if (!locked) {
        return false;
    }
    if (!locked->has_value()) {
        return true;
    }
    const double onHand = procedures::SP_ComputeWarehouseQtyByEanCode(session, barcode, warehouse);
    const double saleable = onHand - **locked;
    if (quantity <= saleable) {
        return true;
    }
    m_messages.show(lockedMessage(**locked, saleable), MessageStyle::Critical);
    return false;
}

SaleChecks::Result SaleChecks::lockedGoods(Session& session, const QList<SaleLine>& lines,
                                           const QString& warehouse) {
    QStringList seen;
    for (int row = 0; row < lines.size(); ++row) {
        const QString& barcode = lines.at(row).barcode;
        if (seen.contains(barcode, Qt::CaseInsensitive)) {
            continue;
        }
        seen << barcode;
        if (!allowsLocked(session, barcode, quantityOf(lines, barcode), warehouse)) {
            return {false, row};
        }
    }
    return {};
}

SaleChecks::Result SaleChecks::stock(Session& session, const QList<SaleLine>& lines,
                                     const QString& warehouse) {
    for (int row = 0; row < lines.size(); ++row) {
        const SaleLine& l = lines.at(row);
        if (l.stockFlag < 0) {
            continue;
        }
        const double onHand =
            procedures::SP_ComputeWarehouseQtyByEanCode(session, l.barcode, warehouse);
        if (l.quantity > onHand) {
            m_messages.show(SaleTexts::quantityNotAllowed(), MessageStyle::Critical);
            return {false, row};
        }
    }
    return {};
}

SaleChecks::Result SaleChecks::priceFloor(Session& session, const QList<SaleLine>& lines) {
    for (int row = 0; row < lines.size(); ++row) {
        const SaleLine& l = lines.at(row);
        const double lastBuy = procedures::sp_tblWhs_QTYDocD_GetLastBuyPrice(session, l.barcode);
        if (l.unitPrice < lastBuy) {
            m_messages.show(SaleTexts::belowPurchasePrice(), MessageStyle::Critical);
            return {false, row};
        }
    }
    return {};
}

}  // namespace sandogh
