#pragma once

#include <QString>
#include <optional>

namespace sandogh::procedures {

// The transaction types of stock documents (Whs_QTYDocH.TransType and the same codes in
// the internal documents).
enum TransType : int {
    kPurchase = 1,        // خريد: goods in, from a supplier
    kSale = 2,            // فروش: goods out, to a customer
    kSaleReturn = 3,      // مرجوعي فروش: goods back in
    kPurchaseReturn = 4,  // مرجوعي خريد: goods back out to the supplier
};

// One header row of Whs_QTYDocH, or of Whs_QTYDocHInternal, which has the columns up to
// Base and Atf but none from ShiftCode on. Empty optionals are written as NULL: a sale
// without a customer, shift, warehouse or car, and every DocType the screens write.
struct StockDocumentHeader {
    qint64 code = 0;  // allocated when the header is written
    QString docNo;
    int transType = kSale;
    std::optional<int> companyId;
    QString docDate;  // Jalali; read back as "____/__/__" when empty
    int userId = 0;
    double docSum = 0;
    double discount = 0;
    QString docTime;
    double sarbar = 0;
    double receivedPrice = 0;
    std::optional<int> stationId;
    QString note;
    std::optional<int> salesType;
    std::optional<int> shiftCode;
    std::optional<int> payType;
    std::optional<qint64> documentHId;
    std::optional<int> warehouseCode;
    std::optional<int> discountTypeId;
    std::optional<int> carId;
    QString transporter;
    std::optional<double> kilometerEntry;
    QString base;
    std::optional<int> returnCauseId;
    std::optional<int> overheadId;
    std::optional<int> isUpdatable;
    std::optional<int> docType;
    QString atf;  // internal documents only
};

}  // namespace sandogh::procedures
