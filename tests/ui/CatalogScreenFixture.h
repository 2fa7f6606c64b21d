#pragma once

// A fresh SQLite shop database for the catalogue and party screen tests: every migration
// applied, the shared recorded messages, a fixed clock, and helpers to find the named controls,
// type into them and read the database back.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "TypeText.h"
#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/DatabaseProvisioner.h"
#include "data/SqlQuery.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "support/FixedClock.h"
#include "support/RecordingMessageService.h"

namespace sandogh::test {

class CatalogScreenFixture : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.isValid());
        QString reason;
        ASSERT_TRUE(ConnectionSettings::parse(
            QStringLiteral("Provider=SQLite;Data Source=Data;Initial Catalog=Shop;User ID=;"
                           "Password=;Persist Security Info=False;"),
            folder.path(), settings, &reason))
            << reason.toStdString();
        ASSERT_EQ(DatabaseProvisioner::ensureExists(settings, &reason),
                  DatabaseProvisioner::Outcome::Created)
            << reason.toStdString();
        database = std::make_unique<Database>(settings, &messages);
        const Migrator::Result applied = Migrator(*database).apply(shopMigrations());
        ASSERT_TRUE(applied.ok) << applied.message.toStdString();
    }

    void TearDown() override {
        // Windows the screens left open close before the database goes.
        QList<QPointer<QWidget>> left;
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->parentWidget() == nullptr && w->objectName().startsWith(QLatin1String("frm"))) {
                left << w;
            }
        }
        for (const QPointer<QWidget>& w : left) {
            delete w.data();
        }
        database.reset();
    }

    template <typename T>
    static T* control(const QObject* screen, const QString& name) {
        T* found = screen->findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    // The open window of a kind among a screen's children: dialogs that closed are
    // deleted first.
    template <typename T>
    static T* openChild(const QObject* screen) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        for (T* child : screen->findChildren<T*>()) {
            if (child->isVisible()) {
                return child;
            }
        }
        ADD_FAILURE() << "no open " << T::staticMetaObject.className();
        return nullptr;
    }

    // Empties a box and types text into it key by key.
    static void typeInto(QLineEdit* box, const QString& text) {
        ASSERT_NE(box, nullptr);
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Delete);
        box->clear();
        typeText(box, text);
    }
    template <typename T>
    static void typeInto(const QObject* screen, const QString& name, const QString& text) {
        typeInto(control<T>(screen, name), text);
    }

    qint64 number(const QString& sql, const SqlBinds& binds = {}) {
        Session s = database->session();
        const QVariant v = s.scalar(sql, binds);
        return v.isValid() ? v.toLongLong() : -1;
    }
    QString text(const QString& sql, const SqlBinds& binds = {}) {
        Session s = database->session();
        return s.scalarText(sql, binds);
    }
    bool exec(const QString& sql, const SqlBinds& binds = {}) {
        Session s = database->session();
        return s.exec(sql, binds);
    }

    // The messages shown so far, text only.
    QStringList shownTexts() const {
        QStringList texts;
        for (const auto& m : messages.messages()) {
            texts << m.text;
        }
        return texts;
    }

    QTemporaryDir folder;
    ConnectionSettings settings;
    RecordingMessageService messages;
    FixedClock clock;
    std::unique_ptr<Database> database;
};

}  // namespace sandogh::test
