#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace sandogh {

// The words of one sandogh-admin command: options with a value ("--dir D"),
// bare flags ("--dry-run") and positional arguments, in any order.
class AdminArgs {
public:
    // Splits args; valueOptions and flags name what the command accepts (without "--").
    // Anything else starting with "--" is an error, reported by error().
    AdminArgs(const QStringList& args, const QStringList& valueOptions, const QStringList& flags);

    bool ok() const { return m_error.isEmpty(); }
    const QString& error() const { return m_error; }

    bool has(const QString& option) const;
    QString value(const QString& option, const QString& fallback = {}) const;
    bool flag(const QString& name) const { return m_flags.contains(name); }
    const QStringList& positional() const { return m_positional; }

private:
    QHash<QString, QString> m_values;
    QSet<QString> m_flags;
    QStringList m_positional;
    QString m_error;
};

}  // namespace sandogh
