#include "app/DemoPurchases.h"

#include <QDate>
#include <QMap>
#include <cmath>

#include "app/DemoGoods.h"
#include "data/Database.h"
#include "data/JalaliDay.h"
#include "data/procedures/PaymentProcedures.h"
#include "data/procedures/StockDocumentHeader.h"
#include "data/repositories/DocumentNumbering.h"
#include "data/repositories/PartiesRepository.h"
#include "data/repositories/PurchaseDocuments.h"
#include "purchase/PurchaseSaver.h"
#include "purchase/PurchaseSession.h"
#include "settings/Clock.h"
#include "settings/MessageService.h"

namespace sandogh {

namespace {

constexpr int kSuppliersGroup = 40;
constexpr int kFirstSupplierLedger = 401;
constexpr int kPurchasesGroup = 50;
constexpr int kPurchasesLedger = 501;
constexpr int kPurchases = 4;  // suppliers the history buys from
constexpr int kLinesPerPurchase = 8;

// Keeps the first message a step shows, to report it.
class KeptMessages final : public MessageService {
public:
    bool show(const QString& text, MessageStyle, const QString&) override {
        if (first.isEmpty()) {
            first = text.trimmed();
        }
        return false;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }
    QString first;
};

// The accounts by code, from the purchase screen's picker ("code - name").
QMap<int, int> accountsByCode(Database& database) {
    QMap<int, int> ids;
    for (const PurchaseDocuments::Item& item :
         PurchaseDocuments(database).lists().accountingGroups) {
        ids.insert(item.name.section(QStringLiteral(" - "), 0, 0).toInt(), item.key);
    }
    return ids;
}

}  // namespace

bool DemoPurchases::seed(DemoShop::Report& report) {
    QMap<int, int> accounts = accountsByCode(m_database);
    Session s = m_database.session(QStringLiteral("DemoPurchases"), QStringLiteral("Accounts"));
    const auto account = [&](int code, int parent, const QString& name) {
        if (!accounts.contains(code)) {
            procedures::AccountingGroupRow row;
            row.code = code;
            row.parentCode = parent;
            row.name = name;
            const qint64 id = procedures::sp_tblAccountingGroup_Insert(s, row);
            if (id <= 0) {
                return 0;
            }
            accounts.insert(code, static_cast<int>(id));
            ++report.added[QStringLiteral("tblAccountingGroup")];
        }
        return accounts.value(code);
    };
    account(kSuppliersGroup, 4, QStringLiteral("بستانکاران تجاری"));
    account(kPurchasesGroup, 5, QStringLiteral("خرید"));
    const int purchaseAccount =
        account(kPurchasesLedger, kPurchasesGroup, QStringLiteral("خريد کالا"));

    PartiesRepository parties(m_database);
    QList<Party> suppliers =
        parties.list(Party::kCompany, PartiesRepository::SearchColumn::None, {}, false);
    int ledger = kFirstSupplierLedger;
    for (Party& supplier : suppliers) {
        while (accounts.contains(ledger) && supplier.accountingGroupId == 0) {
            ++ledger;
        }
        if (supplier.accountingGroupId != 0) {
            continue;
        }
        supplier.accountingGroupId = account(ledger, kSuppliersGroup, supplier.name);
        if (supplier.accountingGroupId == 0 || !parties.save(supplier).ok) {
            report.error = QStringLiteral("no account for the supplier %1").arg(supplier.name);
            return false;
        }
    }
    s.release();
    if (purchaseAccount == 0) {
        report.error = QStringLiteral("no purchase account");
        return false;
    }
    if (DocumentNumbering(m_database).nextDocNo(procedures::kPurchase) != 1) {
        return true;  // the shop has bought already
    }

    KeptMessages messages;
    SystemClock clock;
    const QList<DemoGoods::Article> goods = DemoGoods::articles();
    PurchaseSession purchase(m_database, messages, clock);
    PurchaseLinesModel& model = purchase.lines();
    for (int p = 0; p < std::min<int>(kPurchases, suppliers.size()); ++p) {
        purchase.newDocument(false);
        PurchaseHeader& h = purchase.header();
        h.supplier = suppliers.at(p).counter;
        h.accountingGroupId = purchaseAccount;
        h.docDate = JalaliDay::dateText(QDate::currentDate().addDays(-30 + p * 9));
        h.payType = 1;
        for (int l = 0; l < kLinesPerPurchase; ++l) {
            const DemoGoods::Article& a = goods.at((p * kLinesPerPurchase + l) % goods.size());
            if (!purchase.addBarcode(a.barcode)) {
                report.error = messages.first;
                return false;
            }
            const int row = model.lineCount() - 1;
            // Bought at about three quarters of the sale price, in whole hundreds of rials.
            model.setData(model.index(row, PurchaseLinesModel::ColQty),
                          a.weighed ? 25.5 : 24.0 + l * 6);
            model.setData(model.index(row, PurchaseLinesModel::ColMFee),
                          std::round(a.price * 0.75 / 100) * 100);
            model.setData(model.index(row, PurchaseLinesModel::ColDiscount),
                          p % 2 == 0 ? 0.0 : 5.0);
            model.setData(model.index(row, PurchaseLinesModel::ColTaxValue),
                          static_cast<double>(a.taxPercent));
        }
        if (!PurchaseSaver(m_database, messages, clock).save(purchase).saved) {
            report.error = messages.first;
            return false;
        }
        ++report.added[QStringLiteral("Whs_QTYDocH")];
    }
    return true;
}

}  // namespace sandogh
