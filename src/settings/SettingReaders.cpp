#include "settings/SettingReaders.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace sandogh {

namespace {

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

}  // namespace

double SettingReaders::numericValue(QStringView text) {
    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n && isBlank(text[i])) {
        ++i;
    }
    bool negative = false;
    if (i < n && (text[i] == u'+' || text[i] == u'-')) {
        negative = text[i] == u'-';
        ++i;
    }
    std::string whole;
    std::string fraction;
    bool point = false;
    for (; i < n; ++i) {
        const QChar c = text[i];
        if (isDigit(c)) {
            (point ? fraction : whole) += static_cast<char>(c.unicode());
        } else if (c == u'.' && !point) {
            point = true;
        } else {
            break;
        }
    }
    if (whole.empty() && fraction.empty()) {
        return 0.0;
    }
    // Rebuilt in the one shape every parser agrees on, away from any locale.
    const std::string plain =
        (whole.empty() ? std::string("0") : whole) + "." + (fraction.empty() ? "0" : fraction);
    double value = 0.0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = std::numeric_limits<double>::max();
    } else if (result.ec != std::errc()) {
        return 0.0;
    }
    // Adding 0.0 turns a negative zero ("-0") into a plain one.
    return (negative ? -value : value) + 0.0;
}

bool SettingReaders::flagOn(QStringView text) {
    return numericValue(text) > 0.0;
}

int SettingReaders::toInteger(double value) {
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    if (value <= lowest) {
        return std::numeric_limits<int>::min();
    }
    if (value >= highest) {
        return std::numeric_limits<int>::max();
    }
    return static_cast<int>(std::nearbyint(value));
}

QString SettingReaders::numberText(double value) {
    constexpr double exactLimit = 9007199254740992.0;  // 2^53: every whole double below is exact
    if (std::trunc(value) == value && std::fabs(value) < exactLimit) {
        return QString::number(static_cast<qint64>(value));
    }
    QString text = QString::number(value, 'f', 15);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return text;
}

QString SettingReaders::orDefault(const QString& kept, const QString& defaultText) {
    return kept.trimmed().isEmpty() ? defaultText : kept;
}

}  // namespace sandogh
