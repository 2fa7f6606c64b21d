#include "data/repositories/InternalTransferRepository.h"

#include <QSet>

#include "data/Session.h"
#include "data/SqlInList.h"
#include "data/SqlQuery.h"

namespace sandogh {

namespace {

const QString kInvoiceColumns = QStringLiteral(
    "SELECT Code, COALESCE(DocNo, ''), COALESCE(DocDate, '____/__/__'), COALESCE(DocSum, 0), "
    "COALESCE(Discount, 0), COALESCE(Note, ''), COALESCE(Atf, '') FROM Whs_QTYDocHInternal "
    "WHERE TransType = 2 AND CompanyID = :branch");
const QString kLines = QStringLiteral(
    "SELECT Code, COALESCE(EAN_Code, ''), COALESCE(Qty, 0), COALESCE(Fee, 0), "
    "COALESCE(Price, 0) FROM Whs_QTYDocDInternal WHERE Code = :code ORDER BY ID");
const QString kMarkSent =
    QStringLiteral("UPDATE Whs_QTYDocHInternal SET Atf = :sent WHERE Code = :code");
const QString kKnownGoods = QStringLiteral("SELECT EAN_Code FROM Goods WHERE EAN_Code IN (%1)");
const QString kReceived = QStringLiteral(
    "SELECT COUNT(*) FROM Whs_QTYDocHInternal WHERE TransType = 1 AND Base = :reference");

// Barcodes per look-up, far below every backend's limit of bound values.
constexpr qsizetype kBarcodesPerStatement = 200;

InternalTransferRepository::Invoice invoiceOf(const SqlQuery& q) {
    return {q.int64(0),
            q.text(1),
            q.text(2),
            q.number(3),
            q.number(4),
            q.text(5),
            q.text(6).trimmed() == QLatin1String(InternalTransferRepository::kSentMark)};
}

}  // namespace

std::optional<QList<InternalTransferRepository::Invoice>> InternalTransferRepository::invoices(
    Session& session, int branchId) {
    SqlQuery q(session, kInvoiceColumns + QStringLiteral(" ORDER BY Code"));
    q.bind(QStringLiteral(":branch"), branchId);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<Invoice> rows;
    while (q.next()) {
        rows << invoiceOf(q);
    }
    return rows;
}

std::optional<InternalTransferRepository::Invoice> InternalTransferRepository::invoice(
    Session& session, int branchId, qint64 code, bool& failed) {
    SqlQuery q(session, kInvoiceColumns + QStringLiteral(" AND Code = :code"));
    q.bind(QStringLiteral(":branch"), branchId);
    q.bind(QStringLiteral(":code"), code);
    failed = !q.exec();
    if (failed || !q.next()) {
        return std::nullopt;
    }
    return invoiceOf(q);
}

std::optional<QList<InternalTransferRepository::Line>> InternalTransferRepository::lines(
    Session& session, qint64 code) {
    SqlQuery q(session, kLines);
    q.bind(QStringLiteral(":code"), code);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<Line> rows;
    while (q.next()) {
        rows << Line{q.int64(0), q.text(1), q.number(2), q.number(3), q.number(4)};
    }
    return rows;
}

bool InternalTransferRepository::markSent(Session& session, qint64 code) {
    return session.exec(kMarkSent, {{QStringLiteral(":sent"), QString::fromLatin1(kSentMark)},
                                    {QStringLiteral(":code"), code}});
}

std::optional<QStringList> InternalTransferRepository::missingGoods(Session& session,
                                                                    const QStringList& barcodes) {
    QStringList unique;
    for (const QString& b : barcodes) {
        if (!unique.contains(b)) {
            unique << b;
        }
    }
    QSet<QString> known;
    for (qsizetype from = 0; from < unique.size(); from += kBarcodesPerStatement) {
        const QStringList part = unique.mid(from, kBarcodesPerStatement);
        const SqlInList list = SqlInList::of(part);
        SqlQuery q(session, kKnownGoods.arg(list.names));
        for (const auto& [name, value] : list.binds) {
            q.bindValue(name, value);
        }
        if (!q.exec()) {
            return std::nullopt;
        }
        while (q.next()) {
            known.insert(q.text(0));
        }
    }
    QStringList missing;
    for (const QString& b : unique) {
        if (!known.contains(b)) {
            missing << b;
        }
    }
    return missing;
}

std::optional<bool> InternalTransferRepository::received(Session& session,
                                                         const QString& reference) {
    SqlQuery q(session, kReceived);
    q.bind(QStringLiteral(":reference"), reference);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return q.int64(0) > 0;
}

}  // namespace sandogh
