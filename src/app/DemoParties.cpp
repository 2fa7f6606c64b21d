#include "app/DemoParties.h"

#include <QStringList>

namespace sandogh {

namespace {

constexpr int kCustomers = 48;

}  // namespace

QList<DemoParties::Group> DemoParties::groups() {
    return {
        {1, QStringLiteral("مشتریان عادی"), 0xffffff, 0},
        {2, QStringLiteral("مشتریان نقره‌ای"), 0xc0c0c0, 2},
        {3, QStringLiteral("مشتریان طلایی"), 0xffd700, 5},
    };
}

QList<DemoParties::Party> DemoParties::parties() {
    const QStringList firstNames{"علی",  "مریم",   "رضا",   "زهرا", "حسین", "فاطمه", "محمد",
                                 "سارا", "مهدی",   "نرگس",  "امیر", "لیلا", "حمید",  "شیرین",
                                 "کاوه", "پروانه", "بهرام", "مینا", "سعید", "الهام"};
    const QStringList familyNames{"محمدی", "حسینی", "احمدی", "رضایی", "کریمی", "موسوی",
                                  "جعفری", "نوری",  "صادقی", "رحیمی", "کاظمی", "قاسمی"};
    const QStringList streets{"خیابان آزادی", "خیابان انقلاب", "خیابان ولیعصر",
                              "بلوار کشاورز", "خیابان شریعتی", "میدان هفت تیر"};
    const QStringList suppliers{"شرکت پخش البرز",        "شرکت لبنیات پاک",
                                "شرکت صنایع غذایی بهار", "بازرگانی برنج شمال",
                                "شرکت پخش گلرنگ",        "تره‌بار مرکزی"};

    QList<Party> list;
    int code = 0;
    for (int i = 0; i < kCustomers; ++i) {
        Party p;
        p.typeNo = 10;
        p.code = QString::number(++code);
        p.name = firstNames.at(i % firstNames.size());
        p.familyName = familyNames.at((i * 7) % familyNames.size());
        p.telephone = QStringLiteral("021%1").arg(88000000 + i * 137);
        p.mobile = QStringLiteral("0912%1").arg(3000000 + i * 4211, 7, 10, QLatin1Char('0'));
        p.address =
            QStringLiteral("تهران، %1، پلاک %2").arg(streets.at(i % streets.size())).arg(i + 3);
        p.birthday = QStringLiteral("%1/%2/%3")
                         .arg(1340 + (i * 3) % 45)
                         .arg(i % 12 + 1, 2, 10, QLatin1Char('0'))
                         .arg((i * 5) % 28 + 1, 2, 10, QLatin1Char('0'));
        // Most customers are ordinary; every fifth is silver and every eleventh gold.
        p.groupCode = i % 11 == 10 ? 3 : (i % 5 == 4 ? 2 : 1);
        list << p;
    }
    for (const QString& supplier : suppliers) {
        Party p;
        p.typeNo = 11;
        p.code = QString::number(++code);
        p.name = supplier;
        p.telephone = QStringLiteral("021%1").arg(66000000 + code * 311);
        p.address = QStringLiteral("تهران، %1").arg(streets.at(code % streets.size()));
        list << p;
    }
    return list;
}

}  // namespace sandogh
