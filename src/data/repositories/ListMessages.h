#pragma once

#include <QString>

namespace sandogh::listmessages {

// The texts the parameter and code level lists show, and their notice title.

// A code family with all its levels (nine for goods, ten for accounts) takes no more.
inline const QString kAllLevelsDefined =
    QStringLiteral("همه سطوح اين کد تعريف شده است؛ سطح ديگري نمي توان افزود.");
// Asked before a row is deleted.
inline const QString kDeleteQuestion = QStringLiteral("آيا براي حذف اطمينان داريد؟");
// First line of every refused delete.
inline const QString kCannotDelete = QStringLiteral("! قادر به حذف نميباشيد");
// Second line: a value of a list is in use.
inline const QString kTiedToGoods = QStringLiteral(".رديف مورد نظر با كالايي مرتبط است ");
// Second line: a code level still has values.
inline const QString kDefinitionsMade =
    QStringLiteral(".جهت رديف مورد نظر در منوي مشخصات تعاريفي صورت گرفته است ");
// The name is empty.
inline const QString kEnterName = QStringLiteral("نام را وارد نمائيد");
// The code is empty.
inline const QString kEnterCode = QStringLiteral("كد كالا را وارد نمائيد");
// The code has not the digit count of its level: before the count...
inline const QString kCodeMustBe = QStringLiteral(" كد بايد ");
// ...and after it.
inline const QString kDigitsOrLetters = QStringLiteral("رقم يا حرف باشد.");
// The code is taken in its list.
inline const QString kRepeatedCode = QStringLiteral("! كد وارد شده تكراري است  ");
// A save went through.
inline const QString kSaved = QStringLiteral("اطلاعات جديد با موفقيت ذخيره گرديد.");
// The title of notices.
inline const QString kNoticeTitle = QStringLiteral("توجه!");

// Two lines of a refusal, as the message box shows them.
inline QString twoLines(const QString& first, const QString& second) {
    return first + QLatin1Char('\n') + second;
}

}  // namespace sandogh::listmessages
