#include "ui/widgets/AmountValidator.h"

#include <algorithm>
#include <vector>

namespace sandogh {

namespace {

// One character that carries meaning, and whether it stood before the cursor.
struct Significant {
    QChar ch;
    bool beforeCursor;
};

// The ASCII digit of an ASCII, Persian or Arabic-Indic digit; a null char otherwise.
QChar asciiDigit(QChar c) {
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9') {
        return c;
    }
    if (u >= 0x06F0 && u <= 0x06F9) {
        return QChar(u'0' + (u - 0x06F0));
    }
    if (u >= 0x0660 && u <= 0x0669) {
        return QChar(u'0' + (u - 0x0660));
    }
    return {};
}

bool isSeparator(QChar c) {
    const char16_t u = c.unicode();
    return u == u',' || u == 0x066C || u == 0x060C || c.isSpace();
}

bool isDecimalPoint(QChar c) {
    return c == u'.' || c.unicode() == 0x066B;
}

}  // namespace

AmountValidator::AmountValidator(QObject* parent) : QValidator(parent) {}

void AmountValidator::setDecimals(int decimals) {
    m_decimals = std::clamp(decimals, 0, 6);
}

std::optional<AmountValidator::Formatted> AmountValidator::reformat(QStringView input, int cursor,
                                                                    int decimals,
                                                                    bool negativeAllowed) {
    std::vector<Significant> kept;
    bool hasPoint = false;
    int wholeDigits = 0;
    int fractionDigits = 0;
    for (qsizetype i = 0; i < input.size(); ++i) {
        const QChar c = input[i];
        const bool before = i < cursor;
        if (isSeparator(c)) {
            // A separator after the point would hide a mistake; before it, it is ours.
            if (hasPoint) {
                return std::nullopt;
            }
            continue;
        }
        if (const QChar digit = asciiDigit(c); !digit.isNull()) {
            kept.push_back({digit, before});
            (hasPoint ? fractionDigits : wholeDigits) += 1;
            continue;
        }
        if (isDecimalPoint(c) && decimals > 0 && !hasPoint) {
            hasPoint = true;
            kept.push_back({QChar(u'.'), before});
            continue;
        }
        if (c == u'-' && negativeAllowed && kept.empty()) {
            kept.push_back({c, before});
            continue;
        }
        return std::nullopt;
    }
    if (fractionDigits > decimals) {
        return std::nullopt;
    }

    // Leading zeros of the whole part go, all but the one in front of a point or alone.
    const auto firstDigit =
        std::find_if(kept.begin(), kept.end(), [](const Significant& s) { return s.ch != u'-'; });
    auto zeroEnd = firstDigit;
    while (zeroEnd != kept.end() && zeroEnd->ch == u'0' && std::next(zeroEnd) != kept.end() &&
           std::next(zeroEnd)->ch.isDigit()) {
        ++zeroEnd;
    }
    wholeDigits -= static_cast<int>(zeroEnd - firstDigit);
    kept.erase(firstDigit, zeroEnd);
    if (wholeDigits > kMaxWholeDigits) {
        return std::nullopt;
    }

    Formatted out;
    const auto keptBefore = static_cast<int>(std::count_if(
        kept.begin(), kept.end(), [](const Significant& s) { return s.beforeCursor; }));
    int written = 0;
    int wholeLeft = wholeDigits;
    bool inFraction = false;
    for (const Significant& s : kept) {
        if (s.ch == u'.') {
            inFraction = true;
        }
        out.text.append(s.ch);
        ++written;
        if (written == keptBefore) {
            out.cursor = static_cast<int>(out.text.size());
        }
        if (!inFraction && s.ch.isDigit()) {
            --wholeLeft;
            if (wholeLeft > 0 && wholeLeft % 3 == 0) {
                out.text.append(u',');
            }
        }
    }
    return out;
}

QValidator::State AmountValidator::validate(QString& input, int& pos) const {
    const std::optional<Formatted> formatted = reformat(input, pos, m_decimals, m_negativeAllowed);
    if (!formatted) {
        return Invalid;
    }
    input = formatted->text;
    pos = formatted->cursor;
    const bool hasDigit =
        std::any_of(input.cbegin(), input.cend(), [](QChar c) { return c.isDigit(); });
    return hasDigit ? Acceptable : Intermediate;
}

}  // namespace sandogh
