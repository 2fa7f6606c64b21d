#pragma once

#include <QString>

#include "data/repositories/ListMessages.h"

namespace sandogh::partymessages {

// The texts of the customer, supplier and customer group screens. The name check, the
// repeat of a code and the delete question are those of the other lists (ListMessages.h).

// The party code is empty.
inline const QString kEnterCode = QStringLiteral("کد را وارد نمائيد");
// Party codes are numbers of one run; a dash may stand between the digits.
inline const QString kCodeDigitsOnly =
    QStringLiteral("کد فقط از رقم و خط تيره (-) تشکيل مي‌شود.");
// The birthday is not a day of the calendar.
inline const QString kBadBirthday = QStringLiteral("تاريخ تولد درست نيست.");
// The credit is below zero.
inline const QString kBadCredit =
    QStringLiteral("اعتبار نمي‌تواند منفي باشد.");
// Second line of a refused delete: documents or payments name the party.
inline const QString kPartyInUse = QStringLiteral(
    "براي اين طرف حساب سند يا پرداخت ثبت شده است و فقط غيرفعال "
    "مي‌شود.");
// Asked after that refusal.
inline const QString kDeactivateQuestion = QStringLiteral("آيا طرف حساب غيرفعال شود؟");

// A customer group code is a number above zero.
inline const QString kEnterGroupCode =
    QStringLiteral("کد گروه بايد عددي بزرگ‌تر از صفر باشد.");
// The discount of a group is a percent.
inline const QString kBadDiscountPercent = QStringLiteral("درصد تخفيف بايد بين 0 و 100 باشد.");
// Second line of a refused delete: customers belong to the group.
inline const QString kGroupInUse = QStringLiteral("اين گروه به مشترياني داده شده است.");

inline QString partyInUseRefusal() {
    return listmessages::twoLines(listmessages::kCannotDelete, kPartyInUse);
}
inline QString groupInUseRefusal() {
    return listmessages::twoLines(listmessages::kCannotDelete, kGroupInUse);
}

}  // namespace sandogh::partymessages
