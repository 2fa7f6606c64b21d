#include "AdminArgs.h"

namespace sandogh {

AdminArgs::AdminArgs(const QStringList& args, const QStringList& valueOptions,
                     const QStringList& flags) {
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args.at(i);
        if (!a.startsWith(QLatin1String("--")) || a == QLatin1String("--")) {
            m_positional << a;
            continue;
        }
        QString name = a.mid(2);
        QString inlineValue;
        const bool hasInline = name.contains(QLatin1Char('='));
        if (hasInline) {
            inlineValue = name.section(QLatin1Char('='), 1);
            name = name.section(QLatin1Char('='), 0, 0);
        }
        if (valueOptions.contains(name)) {
            if (hasInline) {
                m_values.insert(name, inlineValue);
            } else if (i + 1 < args.size()) {
                m_values.insert(name, args.at(++i));
            } else {
                m_error = QStringLiteral("option --%1 needs a value").arg(name);
                return;
            }
        } else if (flags.contains(name) && !hasInline) {
            m_flags.insert(name);
        } else {
            m_error = QStringLiteral("unknown option --%1").arg(name);
            return;
        }
    }
}

bool AdminArgs::has(const QString& option) const {
    return m_values.contains(option);
}

QString AdminArgs::value(const QString& option, const QString& fallback) const {
    return m_values.value(option, fallback);
}

}  // namespace sandogh
