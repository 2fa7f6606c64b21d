#include "DisplayGreeting.h"

#include "data/Database.h"

namespace sandogh {

QString DisplayGreeting::read(Database& database) {
    Session session = database.session(QStringLiteral("frmMain"), QStringLiteral("Form_Load"));
    const Dialect& dialect = database.dialect();
    return session.scalarText(
        QStringLiteral("SELECT %1%2 FROM Display%3")
            .arg(dialect.top(1), dialect.isNull(QStringLiteral("Display"), QStringLiteral("''")),
                 dialect.limit(1)),
        {}, QString::fromLatin1(kDefault));
}

}  // namespace sandogh
