#pragma once

#include <QString>

#include "data/repositories/ListMessages.h"

namespace sandogh::goodsmessages {

// The texts of the goods screen and the goods list. The name check and the delete
// question are those of the other lists (ListMessages.h).

// The barcode is empty.
inline const QString kEnterBarcode = QStringLiteral("بارکد کالا را وارد نمائيد");
// A new article's barcode is held by another article already.
inline const QString kBarcodeTaken = QStringLiteral("اين بارکد قبلاً براي کالاي ديگري ثبت شده است.");
// An article named by its barcode is not in the catalogue (any more).
inline const QString kArticleNotFound = QStringLiteral("کالايي با اين بارکد پيدا نشد.");
// Second line of a refused delete: documents name the article.
inline const QString kInDocuments = QStringLiteral(
    "اين کالا در اسناد خريد يا فروش آمده است و فقط غيرفعال "
    "مي‌شود.");
// Asked after that refusal.
inline const QString kDeactivateQuestion = QStringLiteral("آيا کالا غيرفعال شود؟");
// Asked before an article is taken out of use from the list.
inline const QString kDeactivateConfirm =
    QStringLiteral("آيا براي غيرفعال کردن کالا اطمينان داريد؟");
// After an article was taken out of use.
inline const QString kDeactivated = QStringLiteral("کالا غيرفعال شد.");

// The refusal of a delete, as its message box shows it.
inline QString inDocumentsRefusal() {
    return listmessages::twoLines(listmessages::kCannotDelete, kInDocuments);
}

}  // namespace sandogh::goodsmessages
