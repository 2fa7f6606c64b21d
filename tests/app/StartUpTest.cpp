// The start-up step: the fiscal-year choice, the connection file and the database built
// from them. A connection file that cannot be read fails the step and is logged; a good
// one gives a database that can be reached.

#include <gtest/gtest.h>

#include <QFile>

#include "app/DemoShop.h"
#include "app/StartUp.h"
#include "data/ErrorLog.h"
#include "data/ShopFixture.h"
#include "support/AppTestContext.h"

namespace sandogh {
namespace {

QByteArray lines(const QStringList& list) {
    return (list.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

QString errorLogText(const test::AppTestContext& app) {
    QFile log(app.path(QString::fromLatin1(ErrorLog::kFileName)));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
}

TEST(StartUpTest, AConnectionFileThatCannotBeReadFailsTheStep) {
    const QStringList six = DemoShop::sqliteProviderLines();
    // A file that is not there fails at reading it, one of an unknown provider at
    // parsing it; the file's other faults are the connection file's own tests.
    const struct {
        const char* what;
        bool write;
        QStringList content;
    } cases[] = {
        {"missing", false, {}},
        {"an unknown provider", true,
         QStringList{QStringLiteral("Provider=Access;")} << six.mid(1)},
    };
    for (const auto& c : cases) {
        test::AppTestContext app;
        if (c.write) {
            ASSERT_TRUE(app.writeFile(QStringLiteral("Provider.txt"), lines(c.content)));
        }
        StartUp startUp(app.context);
        EXPECT_FALSE(startUp.run()) << c.what;
        EXPECT_FALSE(app.context.hasDatabase()) << c.what;
        EXPECT_FALSE(startUp.failure().isEmpty()) << c.what;
        // The failure is in the error log under the connection file's routine.
        EXPECT_TRUE(errorLogText(app).contains(QLatin1String("RoutineName : LoadPrimary")))
            << c.what;
    }
}

class StartUpDatabaseTest : public test::ShopBackendTest {};

TEST_P(StartUpDatabaseTest, AGoodConnectionFileOpensTheShopDatabase) {
    test::AppTestContext app(testDatabase().programDir());
    ASSERT_TRUE(
        app.writeFile(QStringLiteral("Provider.txt"), testDatabase().providerText().toUtf8()));
    StartUp startUp(app.context);
    ASSERT_TRUE(startUp.run()) << startUp.failure().toStdString();
    ASSERT_TRUE(app.context.hasDatabase());
    EXPECT_EQ(app.context.database().backend(), backend());
    Session session = app.context.database().session();
    ASSERT_TRUE(session.isValid());
    EXPECT_EQ(session.scalarInt64(QStringLiteral("SELECT COUNT(*) FROM Users"), {}, -1), 0);
    EXPECT_TRUE(app.messages.messages().isEmpty());
}

SANDOGH_INSTANTIATE_BACKENDS(StartUpDatabaseTest);

}  // namespace
}  // namespace sandogh
