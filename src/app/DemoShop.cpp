#include "app/DemoShop.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include "app/DemoCatalogue.h"
#include "app/DemoPurchases.h"
#include "app/PasswordHasher.h"
#include "data/ConnectionFile.h"
#include "data/Database.h"
#include "data/DemoSeeder.h"
#include "data/Transaction.h"
#include "sales/SaleSaveTexts.h"

namespace sandogh {

namespace {

using Row = DemoSeeder::Row;

QString key(const QString& text) {
    return text.trimmed().toLower();
}

// A pick list keyed by a fixed number: the rows whose number is not there yet.
void seedNumbered(DemoSeeder& seeder, const QString& table, const QString& keyColumn,
                  const QList<QPair<int, QString>>& rows, const Row& extra = {}) {
    const QSet<QString> present = seeder.keys(table, keyColumn);
    for (const auto& [number, name] : rows) {
        if (!present.contains(QString::number(number))) {
            seeder.insert(table, Row{{keyColumn, number}, {QStringLiteral("Name"), name}} + extra);
        }
    }
}

void seedShop(DemoSeeder& seeder) {
    if (seeder.count(QStringLiteral("Company")) == 0) {
        seeder.insert(
            QStringLiteral("Company"),
            {{QStringLiteral("Company_Name"), DemoShop::shopName()},
             {QStringLiteral("Company_Tel"), QStringLiteral("021-88001234")},
             {QStringLiteral("Company_Address"), QStringLiteral("تهران، خیابان ولیعصر، پلاک ۱۴۰۴")},
             {QStringLiteral("Company_Reg"), QStringLiteral("14041")}});
    }
    if (seeder.count(QStringLiteral("Display")) == 0) {
        seeder.insert(QStringLiteral("Display"),
                      {{QStringLiteral("Display"), QString::fromLatin1(DemoShop::kGreeting)}});
    }
    if (seeder.count(QStringLiteral("Sentences")) == 0) {
        const QStringList sentences{
            QStringLiteral("از خرید شما سپاسگزاریم."),
            QStringLiteral("کیفیت را با ما تجربه کنید."),
            QStringLiteral("سلامتی شما، آرزوی ماست."),
            QStringLiteral("منتظر دیدار دوباره‌ی شما هستیم."),
            QStringLiteral("رسید خرید خود را تا پایان روز نگه دارید."),
        };
        for (const QString& sentence : sentences) {
            seeder.insert(QStringLiteral("Sentences"),
                          {{QStringLiteral("Description"), sentence},
                           {QStringLiteral("Author"), DemoShop::shopName()}});
        }
    }

    const QSet<QString> stations =
        seeder.keys(QStringLiteral("Stations"), QStringLiteral("Station_Name"));
    for (const QString& name : {QStringLiteral("صندوق ۱"), QStringLiteral("صندوق ۲")}) {
        if (!stations.contains(key(name))) {
            seeder.insert(QStringLiteral("Stations"), {{QStringLiteral("Station_Name"), name}});
        }
    }

    seedNumbered(seeder, QStringLiteral("tblWarehouse"), QStringLiteral("Code"),
                 {{DemoCatalogue::kWarehouseCode, QStringLiteral("انبار مرکزی")}},
                 {{QStringLiteral("ISActive"), 1}});

    // Exactly one shift is the open one; shifts are only added to a shop that has none.
    if (seeder.count(QStringLiteral("tblShift")) == 0) {
        seeder.insert(QStringLiteral("tblShift"),
                      {{QStringLiteral("Code"), 1},
                       {QStringLiteral("Name"), QStringLiteral("شیفت صبح")},
                       {QStringLiteral("LastActiveShift"), 1}});
        seeder.insert(QStringLiteral("tblShift"),
                      {{QStringLiteral("Code"), 2},
                       {QStringLiteral("Name"), QStringLiteral("شیفت عصر")},
                       {QStringLiteral("LastActiveShift"), 0}});
    }

    seedNumbered(seeder, QStringLiteral("tblPaymentType"), QStringLiteral("Code"),
                 {{1, QStringLiteral("نقدی")},
                  {2, QStringLiteral("کارت‌خوان")},
                  {3, QStringLiteral("نسیه")},
                  {4, QStringLiteral("کارت هدیه")},
                  {5, QStringLiteral("چک")}});
    // Id 1 is the reason every sale without one is given; it counts towards gifts and is
    // typed by hand. The fifth kind is the loyalty gift, given only by the gift button.
    seedNumbered(seeder, QStringLiteral("DiscountType"), QStringLiteral("Id"),
                 {{1, QStringLiteral("تخفیف عادی")}, {5, QStringLiteral("هدیه خرید")}},
                 {{QStringLiteral("IsImpactGift"), 1}});
    seedNumbered(seeder, QStringLiteral("DiscountType"), QStringLiteral("Id"),
                 {{2, QStringLiteral("تخفیف مشتری ویژه")},
                  {3, QStringLiteral("تخفیف مدیریتی")},
                  {4, QStringLiteral("تخفیف مناسبتی")}},
                 {{QStringLiteral("IsImpactGift"), 0}});
    seedNumbered(seeder, QStringLiteral("Overhead"), QStringLiteral("Id"),
                 {{1, QStringLiteral("کرایه حمل")},
                  {2, QStringLiteral("تخلیه و بارگیری")},
                  {3, QStringLiteral("بسته‌بندی")}});
    seedNumbered(seeder, QStringLiteral("ReturnCause"), QStringLiteral("Id"),
                 {{1, QStringLiteral("خرابی کالا")},
                  {2, QStringLiteral("گذشتن تاریخ مصرف")},
                  {3, QStringLiteral("انصراف مشتری")},
                  {4, QStringLiteral("اشتباه در فروش")}});
}

// A small chart of accounts for the cash desk's vouchers: the cash box (code 12, offered by
// the payment split with the banks of group 9), two banks with their card terminals, and
// the sales income and sales return accounts that the sale's voucher credits and debits.
// Only a shop without any account is given it.
void seedAccounts(DemoSeeder& seeder) {
    if (seeder.count(QStringLiteral("tblAccountingGroup")) != 0) {
        return;
    }
    struct Account {
        int code;
        int parentCode;
        QString name;
        qint64 posId;  // 0: not a bank
    };
    const QList<Account> accounts{
        {12, 1, SaleSaveTexts::cashBoxAccount(), 0},
        {901, 9, QStringLiteral("بانک ملت - کارت‌خوان"), 31001234},
        {902, 9, QStringLiteral("بانک ملی - کارت‌خوان"), 31005678},
        {601, 6, SaleSaveTexts::salesIncomeAccount(), 0},
        {602, 6, SaleSaveTexts::salesReturnAccount(), 0},
    };
    for (const Account& account : accounts) {
        if (!seeder.insert(QStringLiteral("tblAccountingGroup"),
                           {{QStringLiteral("Code"), account.code},
                            {QStringLiteral("ParentCode"), account.parentCode},
                            {QStringLiteral("Name"), account.name},
                            {QStringLiteral("IsOpen"), 1}}) ||
            account.posId == 0) {
            continue;
        }
        const qint64 id = seeder.largest(QStringLiteral("tblAccountingGroup"), QStringLiteral("ID"),
                                         {QStringLiteral("Code"), {account.code}});
        seeder.insert(QStringLiteral("tblBanks"), {{QStringLiteral("AccountingGroupId"), id},
                                                   {QStringLiteral("PosId"), account.posId}});
    }
}

void seedUsers(DemoSeeder& seeder, QList<DemoShop::DemoUser>& created) {
    const QSet<QString> present = seeder.keys(QStringLiteral("Users"), QStringLiteral("UserName"));
    for (const DemoShop::DemoUser& user : DemoShop::users()) {
        if (present.contains(key(user.userName))) {
            continue;
        }
        const QString hash = PasswordHasher::hash(user.password);
        if (hash.isEmpty() ||
            !seeder.insert(QStringLiteral("Users"),
                           {{QStringLiteral("Name"), user.name},
                            {QStringLiteral("UserName"), user.userName},
                            {QStringLiteral("Password"), hash},
                            {QStringLiteral("PermissionLevel"), static_cast<int>(user.level)},
                            {QStringLiteral("Location"), QString()},
                            {QStringLiteral("Active"), 1},
                            {QStringLiteral("UserGroupId"), 0}})) {
            continue;
        }
        created << user;
    }
    // Every user may work in the central warehouse.
    const QSet<QString> linked =
        seeder.keys(QStringLiteral("UserWarehouse"), QStringLiteral("UserID"),
                    {QStringLiteral("WarehouseCode"), {DemoCatalogue::kWarehouseCode}});
    for (const QString& id : seeder.keys(QStringLiteral("Users"), QStringLiteral("ID"))) {
        if (!linked.contains(id)) {
            seeder.insert(QStringLiteral("UserWarehouse"),
                          {{QStringLiteral("UserID"), id.toInt()},
                           {QStringLiteral("WarehouseCode"), DemoCatalogue::kWarehouseCode},
                           {QStringLiteral("ISActive"), 1}});
        }
    }
}

}  // namespace

int DemoShop::Report::totalAdded() const {
    int total = 0;
    for (int n : added) {
        total += n;
    }
    return total;
}

const QList<DemoShop::DemoUser>& DemoShop::users() {
    static const QList<DemoUser> list{
        {QStringLiteral("admin"), QStringLiteral("مدیر فروشگاه"), QStringLiteral("1234"),
         PermissionLevel::Administrator},
        {QStringLiteral("cashier"), QStringLiteral("صندوق‌دار"), QStringLiteral("1111"),
         PermissionLevel::Cashier},
    };
    return list;
}

const QString& DemoShop::shopName() {
    static const QString name = QStringLiteral("فروشگاه نمونه صندوق");
    return name;
}

QStringList DemoShop::sqliteProviderLines() {
    return {QStringLiteral("Provider=SQLite;"),
            QStringLiteral("Data Source=Data;"),
            QStringLiteral("Initial Catalog=Shop;"),
            QStringLiteral("User ID=;"),
            QStringLiteral("Password=;"),
            QStringLiteral("Persist Security Info=False;")};
}

DemoShop::ProviderFile DemoShop::ensureProviderFile(const QString& programDir, QString* error) {
    const QString path = QDir(programDir).filePath(QString::fromLatin1(ConnectionFile::kFileName));
    if (QFile::exists(path)) {
        return ProviderFile::Existed;
    }
    QSaveFile file(path);
    if (!QDir().mkpath(programDir) || !file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        if (error != nullptr) {
            *error = file.errorString();
        }
        return ProviderFile::Failed;
    }
    file.write((sqliteProviderLines().join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8());
    if (!file.commit()) {
        if (error != nullptr) {
            *error = file.errorString();
        }
        return ProviderFile::Failed;
    }
    return ProviderFile::Written;
}

DemoShop::Report DemoShop::seed() {
    Report report;
    Session session = m_database.session(QStringLiteral("DemoShop"), QStringLiteral("Seed"));
    if (!session) {
        report.error = session.lastError().text();
        return report;
    }
    Transaction tx(session);
    if (!tx.isActive()) {
        report.error = tx.error().text();
        return report;
    }
    DemoSeeder seeder(session, report.added);
    seedShop(seeder);
    seedAccounts(seeder);
    seedUsers(seeder, report.createdUsers);
    DemoCatalogue::seed(seeder);
    if (!seeder.ok()) {
        report.error = seeder.error();
        report.createdUsers.clear();
        return report;  // the transaction rolls back
    }
    if (!tx.commit()) {
        report.error = tx.error().text();
        report.createdUsers.clear();
        return report;
    }
    report.ok = DemoPurchases(m_database).seed(report);
    return report;
}

}  // namespace sandogh
