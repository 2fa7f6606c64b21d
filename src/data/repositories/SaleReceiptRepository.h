#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "data/repositories/ReceiptLine.h"

namespace sandogh {

class Session;

// A saved sale as its receipt reads it (Whs_QTYDocH with its discount kind, overhead and
// payment kind, and its lines Whs_QTYDocD with the goods' names), with the shop's heading
// (Company) and the sentence of the day (Sentences), on the caller's session.
class SaleReceiptRepository {
public:
    struct Header {
        qint64 code = 0;
        int customerId = 0;
        QString discountName;
        QString overheadName;
        QString docNo;
        QString docDate;
        QString docTime;
        int transType = 0;
        double docSum = 0;
        double discount = 0;
        double overhead = 0;
        double received = 0;
        QString payTypeName;
        int discountTypeId = 0;
        int overheadId = 0;
        bool discountIsGift = false;  // a discount kind is chosen and it counts as a gift
    };
    struct Shop {
        QString name;
        QString tel;
        QString address;
    };
    struct Sentence {
        QString description;
        QString author;
    };

    // The header by Code: nothing inside when there is no row; nullopt when the read failed.
    static std::optional<std::optional<Header>> header(Session& session, qint64 code);
    // DocSum by Code, read without logging a failure (the caller reports it): nothing inside
    // when there is no row; nullopt when the read failed.
    static std::optional<std::optional<double>> docSum(Session& session, qint64 code);
    // The lines by ID.
    static std::optional<QList<ReceiptLine>> lines(Session& session, qint64 code);
    // Name and family of a person or company (TypeNo 10 or 11); empty without one.
    static std::optional<QString> customerName(Session& session, int counter);
    // The first Company row; nothing when there is none or the read failed.
    static std::optional<Shop> shop(Session& session);
    // A random sentence; nothing when there is none or the read failed.
    static std::optional<Sentence> randomSentence(Session& session);
};

}  // namespace sandogh
