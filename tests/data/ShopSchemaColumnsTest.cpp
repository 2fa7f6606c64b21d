// What the program's statements need from the shop schema: every column they name,
// the keys that make racing cash desks collide, the row numbers the database must
// allocate, and indexes for what the screens search.

#include <gtest/gtest.h>

#include <ostream>

#include "data/schema/ShopSchema.h"

namespace sandogh {
namespace {

const ColumnDef* columnOf(const TableDef& t, const QString& name) {
    for (const ColumnDef& c : t.columns) {
        if (c.name == name) {
            return &c;
        }
    }
    return nullptr;
}

QList<IndexDef> indexesOf(const TableDef& t) {
    QList<IndexDef> found;
    for (const MigrationStep& step : shopMigrations()) {
        for (const IndexDef& i : step.indexes) {
            if (i.table == t.name && i.database == t.database) {
                found << i;
            }
        }
    }
    return found;
}

// ---------------------------------------------------------------------------------------
// Column lists of the statements the program runs, with the names' capitalisation.

struct StatementColumns {
    const char* database;  // "" for the shop database
    const char* table;
    const char* columns;  // comma separated, as the statement names them
};

void PrintTo(const StatementColumns& s, std::ostream* os) {
    *os << s.database << "." << s.table << " (" << s.columns << ")";
}

class RequiredColumns : public testing::TestWithParam<StatementColumns> {};

TEST_P(RequiredColumns, Exist) {
    const StatementColumns& s = GetParam();
    const TableDef* t =
        findShopTable(QString::fromLatin1(s.database), QString::fromLatin1(s.table));
    ASSERT_NE(t, nullptr) << s.database << "." << s.table;
    EXPECT_EQ(t->name, QString::fromLatin1(s.table));
    EXPECT_EQ(t->database, QString::fromLatin1(s.database));
    for (const QString& raw : QString::fromLatin1(s.columns).split(QLatin1Char(','))) {
        const QString name = raw.trimmed();
        EXPECT_NE(columnOf(*t, name), nullptr) << s.table << "." << name.toStdString();
    }
}

constexpr StatementColumns kStatements[] = {
    // Sale header and lines, written in one batch.
    {"", "Whs_QTYDocH",
     "Code, DocNo, TransType, CompanyID, DocDate, UserID, DocSum, Discount, DocTime, Sarbar, "
     "ReceivedPrice, StationID, Note, SalesType, ShiftCode, PayType, DocumentHID, WarehouseCode, "
     "DiscountTypeId, CarId, Transporter, KilometerEntry, Base, ReturnCauseId, OverheadID"},
    // Purchase header, the edit check and the list filter.
    {"", "Whs_QTYDocH",
     "Code, DocNo, TransType, CompanyID, DocDate, UserID, DocSum, Discount, DocTime, Sarbar, "
     "PayType, Base, Note, DocumentHID, IsUpdatable, WarehouseCode, DocType"},
    {"", "Whs_QTYDocD", "ID, Code, EAN_Code, Qty, Fee, Price, UserID, TaxValue"},
    {"", "Whs_QTYDocD", "Code, EAN_Code, Qty, MFee, Discount, Fee, Price, TaxValue"},
    {"", "Whs_QTYDocHInternal",
     "Code, DocNo, TransType, CompanyID, DocDate, UserID, DocSum, Discount, DocTime, Sarbar, "
     "ReceivedPrice, StationID, Note, SalesType, Atf, PayType, IsUpdatable, Base"},
    {"", "Whs_QTYDocDInternal",
     "ID, Code, EAN_Code, Qty, QtyR, MFee, Discount, Fee, Price, TaxValue"},
    // Goods, as the goods insert names them, and the level columns of structured codes.
    {"", "Goods",
     "ID, EAN_Code, Spec_Code, Name, C_In_Paket, G_Min, G_Max, Note, Spec_Group, Cost, Cost2, "
     "ComplexCode, Unit, Type, Pic, AQIS, ArticlePrice, TaxValue, ISFavorite, FavoriteTab, GType, "
     "EnName, StockNo1, StockNo2, SyncInsert, ISActive"},
    {"", "Goods",
     "LevelID1, LevelID2, LevelID3, LevelID4, LevelID5, LevelID6, LevelID7, LevelID8, LevelID9, "
     "LevelID10"},
    {"", "Stock", "Barcode, Import, Export, Stock, Branch"},
    {"", "Price_History", "Id, EAN_CODE, UserID, DateTime, Price"},
    {"", "tblRelatedCode", "Ean_Code, Price"},
    {"", "Serial", "Id, SerialNo, Ean_Code, Code, ExpireDate, Note"},
    {"", "Set", "Id, Ean_Code"},
    {"", "SetItem", "SetId, Ean_Code"},
    {"", "ItemLock", "Ean_Code, Qty, IsLock"},
    {"", "DiscountH", "Code, FDate, SDate"},
    {"", "DiscountD", "Code, Ean_Code, NewCost"},
    {"", "DiscountFactor", "IsActive, StartDate, EndDate, FactorAmount, DiscountPercent"},
    {"", "Whs_Warehousing", "ID, Barcode, Qty"},
    {"", "tblWarehouse", "Code, Name, ISActive"},
    {"", "BarcodeWarehouse", "EanCode, WarehouseCode, Note"},
    {"", "UserWarehouse", "UserID, WarehouseCode, ISActive"},
    // Parameter table: list rows, party rows, the row read by Counter.
    {"", "Types", "Counter, TypeNo, Name, NameEng, Code, Note, Link"},
    {"", "Types",
     "Value1, Value2, Value3, Value4, Value5, Value6, Value7, Value8, Value9, Value10, Value12, "
     "Value13, ID1, ID2, ID3, ID4, ID5, ID6"},
    {"", "Types",
     "Account, Credit, CstGrpCode, DiscountTakenTotal, LastDiscountTakenDate, AccountingGroupID, "
     "Active, EconomicCode, NationalId, RegistrationNumber, PostalCode"},
    {"", "TypesLink", "Counter, Link"},
    {"", "Code_Parameters", "Counter, TypeNo, Name, NameEnglish, DigitQty, ParameterLevel"},
    {"", "Acc_Code",
     "LevelID1, LevelID2, LevelID3, LevelID4, LevelID5, LevelID6, LevelID7, LevelID8, LevelID9, "
     "LevelID10"},
    {"", "tblCustomerGroup", "Code, Name, Color, DiscountPercent, BuyFactor, AmountRebate"},
    {"", "CustomerTag", "Counter, IsSMSSend"},
    // Accounts, vouchers and payments.
    {"", "tblAccountingGroup", "ID, Code, ParentCode, Name, IsOpen"},
    {"", "tblDocumentH", "ID, Code, Date, Time, UserID, Transfer, Permanent, Serial, Note"},
    {"", "tblDocumentD", "DocumentHID, AccountingGroupID, Debt, Credit, Comment"},
    {"", "tblChequeAndTravel", "DocumentHID, TransType, Price"},
    {"", "tblSourcePayment", "Code, TypesCounter, PaymentKind, Amount, DocumentHID"},
    {"", "OtherPayment", "Code, CompanyID, TransType, ReceivedPrice"},
    {"", "tblBanks", "AccountingGroupId, PosId"},
    {"", "tblPaymentType", "Code, Name"},
    {"", "tblPOS",
     "ID, MerchantId, TerminalId, DocNo, DateTime, TranType, PaymentAmount, PRN, Stan, ErrorCode, "
     "ErrorDiscription, PosId"},
    // Gift cards and the movement insert.
    {"", "tblGiftCard",
     "ID, CardID, Password, Amount, Discount, AllowedMonth, ExpireDate, CustomerID, DateCreation, "
     "DateToCustomer"},
    {"", "tblGiftCardItem", "ID, GiftCardID, Date, Time, Amount, UserID, CustomerID, DocHCode"},
    // Site, cash desks and lists.
    {"", "Stations", "ID, Station_Name"},
    {"", "Users", "ID, Name, UserName, Password, PermissionLevel, Location, Active, UserGroupId"},
    {"", "Company",
     "Company_Name, Company_Tel, Company_Address, Company_Logo, Company_Reg, Background"},
    {"", "Display", "Display"},
    {"", "Supplier_Std", "Supp_Std"},
    {"", "tblShift", "Code, Name, LastActiveShift"},
    {"", "tblCenterBranches", "ID, Name, TypeNo"},
    {"", "Sentences", "Description, Author"},
    {"", "Car",
     "Id, Type, System, Tip, Color, Fuel, Capacity, Cylinder, Axis, Wheel, MotorNo, ChassisNo, "
     "PelakNo, Counter"},
    {"", "DiscountType", "Id, Name, IsImpactGift"},
    {"", "Overhead", "Id, Name"},
    {"", "ReturnCause", "Id, Name"},
    {"", "tblPreFactorH", "ID, Code, DocSum, Discount, Note, CompanyID, IsTrenchant"},
    {"", "tblPreFactorD", "PreFactorHID, EAN_Code, Qty, Price"},
    {"", "tblOrders",
     "Code, CustomerName, CustomerTel, CustomerAdd, OrderDate, OrderTime, DeliverDate, "
     "DeliverTime, Weight, Deposit, GetOrderName, Note, PicCode"},
    {"", "tblOrdersItem", "Code, Path, Name, Note, Order"},
    {"", "RequestH", "DocType, DocNo, BranchCode"},
    {"", "RequestD", "BranchCode, EAN_Code, Qty"},
    // Scale vendors' databases.
    {"MizanNet", "MizanNetItem", "PluNo, WeightUnit, UPrice, ItemCode, CommodityName"},
    {"MizanNet", "MizanNetDetail", "PluNo, Weight, Qty, TotalBarcode"},
    {"Sadr", "SADR_Item", "PluNo, UnitPrice, ItemCode, PluName, PluUnit"},
    {"Sadr", "SADR_KeyAssignment", "ItemClassCode, PageNo, KeyNo, PluNo"},
    {"OnlineSales", "Items",
     "ID, Code, Name1, Name2, BarCode, IranCode, Type, Price, ItemCode, AlterPrice, Sect, Grp, "
     "Vat, Logo"},
    {"OnlineSales", "Sales", "ItemCode, Amount, Date, Receipt, ScaleNo"},
};

INSTANTIATE_TEST_SUITE_P(ShopSchema, RequiredColumns, testing::ValuesIn(kStatements));

// Tables carried into a new fiscal year, plus the ones the program only empties or counts.
TEST(ShopSchemaTables, MasterTablesExist) {
    const char* names[] = {
        "Code_Parameters", "Company",        "CostDocs",  "Display",
        "Goods",           "Price_History",  "Sentences", "Set",
        "SetItem",         "Stations",       "Stock",     "Supplier_Std",
        "Types",           "TypesLink",      "Users",     "tblCustomerGroup",
        "tblPaymentType",  "tblRelatedCode", "tblShift",  "tblUser",
        "tblWarehouse",    "TransferTemp",
    };
    for (const char* name : names) {
        EXPECT_NE(findShopTable(QString(), QString::fromLatin1(name)), nullptr) << name;
    }
}

// ---------------------------------------------------------------------------------------
// Keys the program allocates as Max + 1 (a second desk allocating the same value must
// fail on a key instead of writing a duplicate) and natural keys rows are found by.

struct TableColumn {
    const char* table;
    const char* column;
};

void PrintTo(const TableColumn& k, std::ostream* os) {
    *os << k.table << "." << k.column;
}

class UniqueKeys : public testing::TestWithParam<TableColumn> {};

TEST_P(UniqueKeys, AreUnique) {
    const TableColumn& k = GetParam();
    const TableDef* t = findShopTable(QString(), QString::fromLatin1(k.table));
    ASSERT_NE(t, nullptr) << k.table;
    const QStringList key{QString::fromLatin1(k.column)};
    const ColumnDef* c = columnOf(*t, key.first());
    ASSERT_NE(c, nullptr) << k.table << "." << k.column;
    EXPECT_FALSE(c->identity) << "the program, not the database, allocates " << k.column;
    bool unique = t->primaryKey == key;
    for (const IndexDef& i : indexesOf(*t)) {
        unique = unique || (i.unique && i.columns == key);
    }
    EXPECT_TRUE(unique) << k.table << "." << k.column;
}

constexpr TableColumn kUniqueKeys[] = {
    {"Whs_QTYDocH", "Code"}, {"Whs_QTYDocHInternal", "Code"}, {"Types", "Counter"},
    {"Serial", "SerialNo"},  {"tblDocumentH", "Code"},        {"Code_Parameters", "TypeNo"},
    {"Goods", "EAN_Code"},   {"Stations", "Station_Name"},    {"Supplier_Std", "Supp_Std"},
    {"tblShift", "Code"},    {"tblWarehouse", "Code"},        {"tblCustomerGroup", "Code"},
};

INSTANTIATE_TEST_SUITE_P(ShopSchema, UniqueKeys, testing::ValuesIn(kUniqueKeys));

// Row numbers that the statements leave to the database: their inserts do not name them.
class DatabaseNumberedRows : public testing::TestWithParam<TableColumn> {};

TEST_P(DatabaseNumberedRows, AreIdentity) {
    const TableColumn& k = GetParam();
    const TableDef* t = findShopTable(QString(), QString::fromLatin1(k.table));
    ASSERT_NE(t, nullptr) << k.table;
    const ColumnDef* c = columnOf(*t, QString::fromLatin1(k.column));
    ASSERT_NE(c, nullptr) << k.table << "." << k.column;
    EXPECT_TRUE(c->identity) << k.table << "." << k.column;
}

constexpr TableColumn kIdentities[] = {
    {"Whs_QTYDocD", "ID"},      {"Whs_QTYDocDInternal", "ID"},  {"Goods", "ID"},
    {"Price_History", "Id"},    {"Code_Parameters", "Counter"}, {"tblCenterBranches", "ID"},
    {"BarcodeWarehouse", "ID"}, {"UserWarehouse", "ID"},        {"tblDocumentH", "ID"},
    {"tblDocumentD", "ID"},     {"tblGiftCardItem", "ID"},      {"tblPOS", "ID"},
};

INSTANTIATE_TEST_SUITE_P(ShopSchema, DatabaseNumberedRows, testing::ValuesIn(kIdentities));

// ---------------------------------------------------------------------------------------
// What the screens search must be the leading columns of an index (or the primary key).

struct Searched {
    const char* database;
    const char* table;
    const char* columns;
};

void PrintTo(const Searched& s, std::ostream* os) {
    *os << s.database << "." << s.table << " (" << s.columns << ")";
}

class SearchedColumns : public testing::TestWithParam<Searched> {};

TEST_P(SearchedColumns, LeadAnIndex) {
    const Searched& s = GetParam();
    const TableDef* t =
        findShopTable(QString::fromLatin1(s.database), QString::fromLatin1(s.table));
    ASSERT_NE(t, nullptr) << s.table;
    QStringList wanted;
    for (const QString& raw : QString::fromLatin1(s.columns).split(QLatin1Char(','))) {
        wanted << raw.trimmed();
    }
    bool indexed = t->primaryKey.mid(0, wanted.size()) == wanted;
    for (const IndexDef& i : indexesOf(*t)) {
        indexed = indexed || i.columns.mid(0, wanted.size()) == wanted;
    }
    EXPECT_TRUE(indexed) << s.table << " (" << s.columns << ")";
}

constexpr Searched kSearched[] = {
    {"", "Goods", "EAN_Code"},
    {"", "Goods", "Spec_Code"},
    {"", "Goods", "Name"},
    {"", "Stock", "Barcode"},
    {"", "Whs_QTYDocD", "EAN_Code"},
    {"", "Whs_QTYDocD", "Code"},
    {"", "Whs_QTYDocH", "TransType, DocDate"},
    {"", "Whs_QTYDocH", "TransType, DocType, DocNo"},
    {"", "Whs_QTYDocH", "TransType, Code"},
    {"", "Whs_QTYDocDInternal", "Code"},
    {"", "Whs_QTYDocHInternal", "TransType, DocDate"},
    {"", "Types", "TypeNo, Code"},
    {"", "TypesLink", "Link"},
    {"", "Price_History", "EAN_CODE"},
    {"", "tblGiftCard", "CardID"},
    {"", "tblGiftCardItem", "GiftCardID"},
    {"", "ItemLock", "Ean_Code"},
    {"", "DiscountD", "Ean_Code"},
    {"", "Serial", "Code"},
    {"", "OtherPayment", "Code"},
    {"", "tblDocumentD", "DocumentHID"},
    {"MizanNet", "MizanNetItem", "PluNo"},
    {"MizanNet", "MizanNetDetail", "TotalBarcode"},
    {"Sadr", "SADR_Item", "PluNo"},
    {"Sadr", "SADR_Item", "ItemCode"},
    {"OnlineSales", "Items", "Code"},
    {"OnlineSales", "Sales", "Date, Receipt, ScaleNo"},
};

INSTANTIATE_TEST_SUITE_P(ShopSchema, SearchedColumns, testing::ValuesIn(kSearched));

// ---------------------------------------------------------------------------------------
// Flags that inserts leave out but reads filter on: a new row must count as in use.

TEST(ShopSchemaDefaults, NewRowsAreActive) {
    const TableColumn flags[] = {
        {"Goods", "ISActive"},        {"Types", "Active"},           {"Users", "Active"},
        {"tblWarehouse", "ISActive"}, {"UserWarehouse", "ISActive"},
    };
    for (const TableColumn& f : flags) {
        const TableDef* t = findShopTable(QString(), QString::fromLatin1(f.table));
        ASSERT_NE(t, nullptr) << f.table;
        const ColumnDef* c = columnOf(*t, QString::fromLatin1(f.column));
        ASSERT_NE(c, nullptr) << f.table << "." << f.column;
        EXPECT_EQ(c->defaultValue, QStringLiteral("1")) << f.table << "." << f.column;
    }
}

}  // namespace
}  // namespace sandogh
