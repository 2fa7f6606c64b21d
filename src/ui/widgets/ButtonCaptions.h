#pragma once

#include <QString>

namespace sandogh {

// Persian captions of the standard dialog buttons; the buttons keep their Qt roles.
struct ButtonCaptions {
    static QString yes() { return QStringLiteral("بله"); }
    static QString no() { return QStringLiteral("خیر"); }
    static QString ok() { return QStringLiteral("تأیید"); }
    static QString cancel() { return QStringLiteral("انصراف"); }
};

}  // namespace sandogh
