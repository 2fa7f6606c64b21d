#pragma once

#include <QString>

#include "settings/MessageService.h"

namespace sandogh {

// The answer of a check or a save of the back office lists: whether to go on, and what
// to show the person at the screen (message under title; no message means nothing to
// show, for instance when a database failure has been reported already).
struct CheckResult {
    bool ok = false;
    QString message;
    QString title = warningTitle();

    static CheckResult passed(const QString& message = {}, const QString& title = warningTitle()) {
        return {true, message, title};
    }
    static CheckResult refused(const QString& message, const QString& title = warningTitle()) {
        return {false, message, title};
    }
    // A database failure: already shown and logged by the session.
    static CheckResult failed() { return {false, {}, warningTitle()}; }

    explicit operator bool() const { return ok; }
};

}  // namespace sandogh
