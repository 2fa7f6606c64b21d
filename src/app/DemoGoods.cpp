#include "app/DemoGoods.h"

#include <QStringList>

namespace sandogh {

namespace {

struct Family {
    const char* name;
    const char* latin;
    QStringList products;
    QStringList variants;
    DemoGoods::Unit unit;
    bool weighed;
    int taxPercent;
    int lowPrice;   // rials
    int highPrice;  // rials
};

QList<Family> families() {
    using U = DemoGoods::Unit;
    return {
        {"لبنیات",
         "Dairy",
         {"شیر پرچرب", "شیر کم‌چرب", "ماست همزده", "ماست پرچرب", "پنیر سفید",
          "پنیر لیقوان", "دوغ", "کره", "خامه", "کشک"},
         {"پاک", "کاله", "دامداران", "میهن", "رامک"},
         U::Piece,
         false,
         9,
         180000,
         1200000},
        {"نان",
         "Bread",
         {"نان بربری", "نان سنگک", "نان تافتون", "نان لواش", "نان باگت", "نان تست"},
         {"ساده", "کنجدی", "سبوس‌دار"},
         U::Piece,
         false,
         0,
         40000,
         250000},
        {"برنج",
         "Rice",
         {"برنج هاشمی", "برنج طارم", "برنج فجر", "برنج دم‌سیاه", "برنج شیرودی",
          "برنج هندی", "برنج پاکستانی"},
         {"درجه یک", "اعلا", "معطر"},
         U::Kilogram,
         true,
         0,
         900000,
         2600000},
        {"روغن",
         "Oil",
         {"روغن آفتابگردان", "روغن سرخ‌کردنی", "روغن کنجد", "روغن زیتون", "روغن جامد",
          "روغن کانولا"},
         {"لادن", "بهار", "اویلا", "فامیلا", "غنچه"},
         U::Bottle,
         false,
         9,
         650000,
         4800000},
        {"چای",
         "Tea",
         {"چای ایرانی", "چای سیاه", "چای سبز", "چای کیسه‌ای", "چای عطری"},
         {"گلستان", "احمد", "دوغزال", "شهرزاد", "محمود"},
         U::Pack,
         false,
         9,
         450000,
         3500000},
        {"میوه",
         "Fruit",
         {"سیب قرمز", "سیب زرد", "پرتقال", "نارنگی", "موز", "انار", "انگور", "هندوانه", "خربزه",
          "گلابی", "کیوی", "لیمو شیرین", "هلو", "زردآلو", "آلبالو", "گیلاس"},
         {"درجه یک", "درجه دو"},
         U::Kilogram,
         true,
         0,
         150000,
         1400000},
        {"سبزیجات",
         "Vegetables",
         {"سیب‌زمینی", "پیاز", "گوجه‌فرنگی", "خیار", "هویج", "بادمجان",
          "کدو سبز", "فلفل دلمه‌ای", "کاهو", "کلم"},
         {"درجه یک", "محلی"},
         U::Kilogram,
         true,
         0,
         90000,
         600000},
        {"حبوبات",
         "Legumes",
         {"عدس", "لوبیا قرمز", "لوبیا چیتی", "نخود", "لپه", "ماش", "لوبیا سفید"},
         {"بسته ۵۰۰ گرمی", "بسته ۹۰۰ گرمی"},
         U::Pack,
         false,
         0,
         350000,
         1500000},
        {"نوشیدنی",
         "Drinks",
         {"نوشابه کولا", "نوشابه پرتقالی", "آب معدنی", "ماء‌الشعیر", "آبمیوه پرتقال",
          "آبمیوه سیب", "آبمیوه انبه"},
         {"قوطی", "بطری یک و نیم لیتری"},
         U::Bottle,
         false,
         9,
         60000,
         450000},
        {"تنقلات",
         "Snacks",
         {"چیپس ساده", "چیپس سرکه", "پفک", "بیسکویت ساقه‌طلایی", "ویفر شکلاتی",
          "کیک یزدی", "شکلات تلخ", "آدامس نعنایی"},
         {"مزمز", "چی‌توز", "گرجی", "شیرین‌عسل"},
         U::Pack,
         false,
         9,
         50000,
         600000},
        {"شوینده",
         "Detergents",
         {"مایع ظرفشویی", "پودر لباسشویی", "شامپو", "صابون", "مایع دستشویی", "سفیدکننده"},
         {"گلرنگ", "اکتیو", "سافتلن", "پریل"},
         U::Bottle,
         false,
         9,
         200000,
         2200000},
        {"کنسرو",
         "Canned food",
         {"تن ماهی", "کنسرو لوبیا", "رب گوجه‌فرنگی", "خیارشور", "کنسرو ذرت"},
         {"طبیعت", "چین‌چین", "مهرام", "یک و یک"},
         U::Box,
         false,
         9,
         250000,
         1600000},
        {"ادویه و شیرینی‌جات",
         "Spices and sugar",
         {"زردچوبه", "فلفل سیاه", "دارچین", "زعفران", "نمک", "شکر", "قند"},
         {"بسته کوچک", "بسته بزرگ"},
         U::Pack,
         false,
         9,
         80000,
         5000000},
        {"گوشت و مرغ",
         "Meat",
         {"گوشت گوسفندی", "گوشت گوساله", "مرغ کامل", "سینه مرغ", "ران مرغ",
          "گوشت چرخ‌کرده", "ماهی قزل‌آلا"},
         {"تازه", "منجمد"},
         U::Kilogram,
         true,
         0,
         1100000,
         6500000},
    };
}

// A small fixed sequence, so that prices look scattered but never change between runs.
class PriceSequence {
public:
    int next(int low, int high) {
        m_state = m_state * 1103515245u + 12345u;
        const unsigned span = static_cast<unsigned>(high - low);
        const int price = low + static_cast<int>((m_state >> 8) % (span + 1));
        return price - price % 5000;  // prices end in round thousands of rials
    }

private:
    unsigned m_state = 1404u;
};

}  // namespace

QList<QString> DemoGoods::unitNames() {
    return {QStringLiteral("عدد"), QStringLiteral("کیلوگرم"), QStringLiteral("بسته"),
            QStringLiteral("بطری"), QStringLiteral("جعبه")};
}

int DemoGoods::ean13CheckDigit(const QString& twelveDigits) {
    int sum = 0;
    for (qsizetype i = 0; i < twelveDigits.size(); ++i) {
        const int digit = twelveDigits.at(i).digitValue();
        sum += (i % 2 == 0) ? digit : digit * 3;
    }
    return (10 - sum % 10) % 10;
}

QList<DemoGoods::Article> DemoGoods::articles() {
    QList<Article> list;
    PriceSequence prices;
    int serial = 0;
    int familyIndex = 0;
    for (const Family& family : families()) {
        ++familyIndex;
        int inFamily = 0;
        for (const QString& product : family.products) {
            for (const QString& variant : family.variants) {
                ++serial;
                ++inFamily;
                Article a;
                // Goods sold by weight carry an in-store prefix (20), the others Iran's (626).
                const QString prefix =
                    family.weighed ? QStringLiteral("2000000") : QStringLiteral("6260000");
                const QString twelve =
                    prefix + QStringLiteral("%1").arg(serial, 5, 10, QLatin1Char('0'));
                a.barcode = twelve + QString::number(ean13CheckDigit(twelve));
                a.specCode = QString::number(serial);
                a.name = product + QLatin1Char(' ') + variant;
                a.latinName =
                    QStringLiteral("%1 %2").arg(QLatin1String(family.latin)).arg(inFamily);
                a.family = QString::fromUtf8(family.name);
                a.unit = family.unit;
                a.weighed = family.weighed;
                a.price = prices.next(family.lowPrice, family.highPrice);
                a.taxPercent = family.taxPercent;
                // The first few of each family sit on the favourites pad, one tab per family.
                a.favourite = inFamily <= 4;
                a.favouriteTab = a.favourite ? familyIndex : 0;
                a.shelf = QStringLiteral("%1-%2")
                              .arg(familyIndex, 2, 10, QLatin1Char('0'))
                              .arg((inFamily - 1) / 10 + 1, 2, 10, QLatin1Char('0'));
                list << a;
            }
        }
    }
    return list;
}

}  // namespace sandogh
