#pragma once

#include <QList>
#include <QString>

namespace sandogh {

// What the price chooser is shown with: the article, the customer, the sales type and
// the prices the goods master holds for the article.
struct PriceChoice {
    QString barcode;
    int companyId = 0;  // CompanyId; 0 without a customer
    int salesType = 0;
    QList<double> prices;  // distinct, more than one
};

}  // namespace sandogh
