#include "reports/ReportKind.h"

namespace sandogh {

QList<ReportKind> ReportKinds::all() {
    return {ReportKind::SalesByDay,   ReportKind::SalesByMonth,    ReportKind::BestByQuantity,
            ReportKind::BestByAmount, ReportKind::WorstByQuantity, ReportKind::WorstByAmount,
            ReportKind::Profit,       ReportKind::Stock,           ReportKind::Payments,
            ReportKind::Desks};
}

QString ReportKinds::title(ReportKind kind) {
    switch (kind) {
        case ReportKind::SalesByDay:
            return QStringLiteral("فروش روزانه");
        case ReportKind::SalesByMonth:
            return QStringLiteral("فروش ماهانه");
        case ReportKind::BestByQuantity:
            return QStringLiteral("پرفروش‌ترین کالاها (تعداد)");
        case ReportKind::BestByAmount:
            return QStringLiteral("پرفروش‌ترین کالاها (مبلغ)");
        case ReportKind::WorstByQuantity:
            return QStringLiteral("کم‌فروش‌ترین کالاها (تعداد)");
        case ReportKind::WorstByAmount:
            return QStringLiteral("کم‌فروش‌ترین کالاها (مبلغ)");
        case ReportKind::Profit:
            return QStringLiteral("سود هر کالا");
        case ReportKind::Stock:
            return QStringLiteral("موجودی و ارزش کالا");
        case ReportKind::Payments:
            return QStringLiteral("دریافت‌ها به تفکیک نوع");
        case ReportKind::Desks:
            return QStringLiteral("نقدینگی صندوق‌ها و شیفت‌ها");
    }
    return {};
}

}  // namespace sandogh
