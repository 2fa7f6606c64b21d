#pragma once

// The shop fixture (data/ShopFixture.h) on SQLite for the catalogue, party and purchase
// screens, with helpers to find the named controls and type into them.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include "TypeText.h"
#include "data/ShopFixture.h"

namespace sandogh::test {

class CatalogScreenFixture : public ShopFixture {
protected:
    void TearDown() override {
        // Windows the screens left open close before the database goes.
        QList<QPointer<QWidget>> left;
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (w->parentWidget() == nullptr && w->objectName().startsWith(QLatin1String("frm"))) {
                left << w;
            }
        }
        qDeleteAll(left);
        ShopFixture::TearDown();
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
        box->clear();
        typeText(box, text);
    }
    template <typename T>
    static void typeInto(const QObject* screen, const QString& name, const QString& text) {
        typeInto(control<T>(screen, name), text);
    }

    // The messages shown so far, text only.
    QStringList shownTexts() {
        QStringList texts;
        for (const auto& m : messages().messages()) {
            texts << m.text;
        }
        return texts;
    }
};

}  // namespace sandogh::test

// The screens do not depend on the backend: their suites run on SQLite.
#define SANDOGH_INSTANTIATE_SQLITE_ONLY(Suite)                                               \
    INSTANTIATE_TEST_SUITE_P(Backends, Suite, ::testing::Values(::sandogh::Backend::SQLite), \
                             ::sandogh::test::backendParamName)
