#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace sandogh {

// The card terminal's answer: the response field "RS" with length "002" and
// a two-character response code somewhere in what the terminal sent.
class PecResponse {
public:
    static constexpr const char* kResponseField = "RS002";
    static constexpr const char* kApproved = "00";

    // The two characters after the first "RS002", or nothing when the answer
    // holds no response field.
    static std::optional<QString> code(const QByteArray& received);

    // The message for a refusal code, compared as a number ("12" is 12);
    // empty for approval and for codes without a message.
    static QString message(const QString& code);
};

}  // namespace sandogh
