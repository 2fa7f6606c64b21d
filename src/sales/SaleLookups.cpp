#include "sales/SaleLookups.h"

#include "data/repositories/ItemLockRepository.h"
#include "data/repositories/PriceChangesRepository.h"
#include "data/repositories/RelatedCodesRepository.h"

namespace sandogh {

std::optional<qint64> SaleLookups::activeCount(Session& session, const QString& barcode) {
    return GoodsLookups::activeCount(session, barcode);
}

std::optional<QString> SaleLookups::firstActiveBySpecCode(Session& session,
                                                          const QString& specCode) {
    return GoodsLookups::firstActiveBySpecCode(session, specCode);
}

SaleLookups::Flag SaleLookups::asksQuantity(Session& session, const QString& barcode) {
    return GoodsLookups::asksQuantity(session, barcode);
}

std::optional<std::optional<double>> SaleLookups::lockedQuantity(Session& session,
                                                                 const QString& barcode) {
    return ItemLockRepository::lockedQuantity(session, barcode);
}

std::optional<double> SaleLookups::priceChangeCost(Session& session, const QString& saleDate,
                                                   const QString& barcode) {
    return PriceChangesRepository::costInForce(session, saleDate, barcode);
}

std::optional<SaleLookups::GoodsRow> SaleLookups::goodsRow(Session& session, const QString& barcode,
                                                           PriceColumn column) {
    return GoodsLookups::goodsRow(session, barcode, column);
}

std::optional<QList<double>> SaleLookups::prices(Session& session, const QString& barcode) {
    const std::optional<QList<double>> master = GoodsLookups::masterPrices(session, barcode);
    if (!master) {
        return std::nullopt;
    }
    const std::optional<QList<double>> related = RelatedCodesRepository::prices(session, barcode);
    if (!related) {
        return std::nullopt;
    }
    QList<double> found;
    for (const double price : *master + *related) {
        if (price != 0 && !found.contains(price)) {
            found << price;
        }
    }
    return found;
}

std::optional<QList<SaleLookups::TicketLine>> SaleLookups::mizanTicketLines(Session& session,
                                                                            const QString& key) {
    return ScaleTickets::mizanLines(session, key);
}

std::optional<SaleLookups::TicketGoods> SaleLookups::goodsByBarcode(Session& session,
                                                                    const QString& barcode) {
    return GoodsLookups::goodsByBarcode(session, barcode);
}

std::optional<QList<SaleLookups::TicketLine>> SaleLookups::onlineSalesLines(Session& session,
                                                                            const QString& date,
                                                                            int receipt,
                                                                            int scale) {
    return ScaleTickets::onlineSalesLines(session, date, receipt, scale);
}

std::optional<SaleLookups::TicketGoods> SaleLookups::goodsBySpecCode(Session& session,
                                                                     const QString& specCode) {
    return GoodsLookups::goodsBySpecCode(session, specCode);
}

}  // namespace sandogh
