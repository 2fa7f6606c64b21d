#include <gtest/gtest.h>

#include <QSet>

#include "settings/SettingReaders.h"
#include "settings/SettingsCatalogue.h"
#include "settings/SettingsStore.h"

namespace sandogh {
namespace {

TEST(SettingsCatalogue, EachKeyIsListedOnce) {
    QSet<QString> seen;
    for (const SettingDescriptor& row : SettingsCatalogue::all()) {
        const QString name =
            (row.application() + u'/' + row.section() + u'/' + row.name()).toCaseFolded();
        EXPECT_FALSE(seen.contains(name)) << name.toStdString();
        seen.insert(name);
        EXPECT_TRUE(SettingsStore::validName(row.section())) << name.toStdString();
        EXPECT_TRUE(SettingsStore::validName(row.name())) << name.toStdString();
        EXPECT_TRUE(row.application() == QStringLiteral("Retail") ||
                    row.application() == QStringLiteral("Factortransfer"))
            << name.toStdString();
    }
}

TEST(SettingsCatalogue, DefaultsOfFlagsAndNumbersAreNumbers) {
    for (const SettingDescriptor& row : SettingsCatalogue::all()) {
        if (row.key.form == SettingForm::Text || row.defaultText().isEmpty()) {
            continue;
        }
        const double value = SettingReaders::numericValue(row.defaultText());
        EXPECT_EQ(SettingReaders::numberText(value), row.defaultText())
            << row.key.section << '/' << row.key.key;
    }
}

TEST(SettingsCatalogue, FindIgnoresCase) {
    const struct {
        const char* application;
        const char* section;
        const char* key;
        bool found;
    } cases[] = {
        {"Retail", "IsActivePoolDisplay", "Port", true},
        {"retail", "ISACTIVEPOOLDISPLAY", "port", true},
        {"Retail", "PrinterPort", "usb", true},
        {"Factortransfer", "fc", "SHOWPRICE", true},
        {"Retail", "FC", "ShowPrice", false},
        {"Retail", "PortNo", "Nope", false},
        {"Other", "PortNo", "No", false},
    };
    for (const auto& c : cases) {
        const SettingDescriptor* row =
            SettingsCatalogue::find(QString::fromLatin1(c.application),
                                    QString::fromLatin1(c.section), QString::fromLatin1(c.key));
        const QString asked = QLatin1String(c.application) + u'/' + QLatin1String(c.section) +
                              u'/' + QLatin1String(c.key);
        EXPECT_EQ(row != nullptr, c.found) << asked.toStdString();
        // The row found is the one asked for.
        if (row != nullptr) {
            const QString found = row->application() + u'/' + row->section() + u'/' + row->name();
            EXPECT_EQ(found.compare(asked, Qt::CaseInsensitive), 0) << asked.toStdString();
        }
    }
}

}  // namespace
}  // namespace sandogh
