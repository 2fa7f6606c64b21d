#include "ui/settings/frmSetUp.h"

#include <array>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "settings/MessageService.h"
#include "settings/SettingKeys.h"
#include "settings/SettingsCatalogue.h"
#include "settings/SettingsStore.h"
#include "ui/settings/ChoiceSettingField.h"
#include "ui/settings/FlagSettingField.h"
#include "ui/settings/NumberSettingField.h"
#include "ui/settings/PortSettingField.h"
#include "ui/settings/ProgramSettingField.h"
#include "ui/settings/TextSettingField.h"
#include "ui/settings/TrueFalseSettingField.h"

namespace sandogh {

namespace {

namespace k = settingkeys;

// COM numbers, shown as ports, and the device path that stands in for the COM number of
// the ports the program opens itself.
struct PortKey {
    SettingKey com;
    const SettingKey* device;
};
constexpr std::array<PortKey, 8> kPorts{{
    {k::PortNo, &k::MSComm1Device},
    {k::PortNo2, &k::MSComm2Device},
    {k::DisplayPort, &k::CustomerDisplayDevice},
    {k::PecPort, &k::PecDevice},
    {k::SamanPort, nullptr},
    {k::PasargadPort, nullptr},
    {k::RfidCardPort, nullptr},
    {k::GsmModemPort, nullptr},
}};

constexpr std::array<SettingKey, 2> kProgramKeys{{k::DrawerProgram, k::CompanionProgram}};
constexpr std::array<SettingKey, 1> kTrueFalseKeys{{k::PrinterPortUsb}};

constexpr std::array<SettingGroup, 12> kPages{{
    SettingGroup::Session,
    SettingGroup::Ports,
    SettingGroup::Display,
    SettingGroup::Drawer,
    SettingGroup::Scale,
    SettingGroup::Sale,
    SettingGroup::Receipt,
    SettingGroup::Customers,
    SettingGroup::Messaging,
    SettingGroup::Branches,
    SettingGroup::System,
    SettingGroup::Appearance,
}};

bool sameKey(const SettingDescriptor& row, const SettingKey& key) {
    return row.application().compare(QString::fromLatin1(key.application), Qt::CaseInsensitive) ==
               0 &&
           row.section().compare(QString::fromLatin1(key.section), Qt::CaseInsensitive) == 0 &&
           row.name().compare(QString::fromLatin1(key.key), Qt::CaseInsensitive) == 0;
}

const PortKey* portOf(const SettingDescriptor& row) {
    for (const PortKey& port : kPorts) {
        if (sameKey(row, port.com)) {
            return &port;
        }
    }
    return nullptr;
}

bool isPortDevice(const SettingDescriptor& row) {
    for (const PortKey& port : kPorts) {
        if (port.device && sameKey(row, *port.device)) {
            return true;
        }
    }
    return false;
}

template <std::size_t N>
bool isOneOf(const SettingDescriptor& row, const std::array<SettingKey, N>& keys) {
    for (const SettingKey& key : keys) {
        if (sameKey(row, key)) {
            return true;
        }
    }
    return false;
}

const SettingDescriptor* descriptorOf(const SettingKey& key) {
    return SettingsCatalogue::find(QString::fromLatin1(key.application),
                                   QString::fromLatin1(key.section), QString::fromLatin1(key.key));
}

}  // namespace

frmSetUp::frmSetUp(const QList<SettingsStore*>& stores, const QString& programFolder,
                   MessageService& messages, QWidget* parent)
    : QWidget(parent)
    , m_stores(stores)
    , m_messages(messages)
    , lstPages(new QListWidget(this))
    , stkPages(new QStackedWidget(this))
    , cmdSave(new QPushButton(QStringLiteral("ذخيره"), this))
    , cmdExit(new QPushButton(QStringLiteral("خروج"), this)) {
    setObjectName(QStringLiteral("frmSetUp"));
    setWindowTitle(QStringLiteral("تنظیمات"));
    setLayoutDirection(Qt::RightToLeft);
    m_stores.removeAll(nullptr);

    lstPages->setObjectName(QStringLiteral("lstPages"));
    lstPages->setMinimumWidth(170);
    lstPages->setMaximumWidth(220);
    stkPages->setObjectName(QStringLiteral("stkPages"));
    cmdSave->setObjectName(QStringLiteral("cmdSave"));
    cmdSave->setDefault(true);
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cmdExit->setShortcut(Qt::Key_Escape);

    buildPages(programFolder);
    connect(lstPages, &QListWidget::currentRowChanged, stkPages, &QStackedWidget::setCurrentIndex);
    lstPages->setCurrentRow(0);

    auto* pages = new QHBoxLayout;
    pages->addWidget(lstPages);
    pages->addWidget(stkPages, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExit);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(pages, 1);
    layout->addLayout(buttons);

    connect(cmdSave, &QPushButton::clicked, this, [this] { save(); });
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);

    resize(820, 560);
    reload();
}

frmSetUp::~frmSetUp() = default;

QString frmSetUp::savedMessage() {
    return QStringLiteral("اطلاعات جديد با موفقيت ذخيره گرديد.");
}

QString frmSetUp::savedTitle() {
    return QStringLiteral("توجه!");
}

QString frmSetUp::notSavedMessage() {
    return QStringLiteral("تنظیمات ذخیره نشد؛ دسترسی به پرونده تنظیمات را بررسی کنید.");
}

SettingsStore* frmSetUp::storeFor(const SettingDescriptor& row) const {
    for (SettingsStore* store : m_stores) {
        if (store->application().compare(row.application(), Qt::CaseInsensitive) == 0) {
            return store;
        }
    }
    return nullptr;
}

void frmSetUp::buildPages(const QString& programFolder) {
    for (SettingGroup group : kPages) {
        std::vector<SettingDescriptor> rows;
        for (const SettingDescriptor& row : SettingsCatalogue::inGroup(group)) {
            // Who logged in last is the program's own record, not for editing.
            if (storeFor(row) && !isPortDevice(row) &&
                !SettingsCatalogue::writtenByProgram(row.key)) {
                rows.push_back(row);
            }
        }
        if (rows.empty()) {
            continue;
        }
        QWidget* page = buildPage(rows, programFolder);
        page->setObjectName(QStringLiteral("page%1").arg(static_cast<int>(group)));
        lstPages->addItem(SettingsCatalogue::groupCaption(group));
        stkPages->addWidget(page);
    }
}

QWidget* frmSetUp::buildPage(const std::vector<SettingDescriptor>& rows,
                             const QString& programFolder) {
    auto* scroll = new QScrollArea(stkPages);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* page = new QWidget(scroll);
    auto* form = new QFormLayout(page);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    for (const SettingDescriptor& row : rows) {
        std::unique_ptr<SettingField> field = makeField(row, programFolder, page);
        if (!field) {
            continue;
        }
        if (field->label().isEmpty()) {
            form->addRow(field->editor());
        } else {
            form->addRow(field->label(), field->editor());
        }
        m_fields.push_back(std::move(field));
    }
    scroll->setWidget(page);
    return scroll;
}

std::unique_ptr<SettingField> frmSetUp::makeField(const SettingDescriptor& row,
                                                  const QString& programFolder,
                                                  QWidget* page) const {
    SettingsStore& store = *storeFor(row);
    if (const PortKey* port = portOf(row)) {
        const SettingDescriptor* device = port->device ? descriptorOf(*port->device) : nullptr;
        if (device && storeFor(*device) != &store) {
            device = nullptr;
        }
        return std::make_unique<PortSettingField>(row, device, store, page);
    }
    if (isOneOf(row, kProgramKeys)) {
        return std::make_unique<ProgramSettingField>(row, store, programFolder, page);
    }
    if (isOneOf(row, kTrueFalseKeys)) {
        return std::make_unique<TrueFalseSettingField>(row, store, page);
    }
    if (QList<SettingsCatalogue::Choice> choices = SettingsCatalogue::choices(row.key);
        !choices.isEmpty()) {
        return std::make_unique<ChoiceSettingField>(row, std::move(choices), store, page);
    }
    switch (row.key.form) {
        case SettingForm::Flag:
            return std::make_unique<FlagSettingField>(row, store, page);
        case SettingForm::Number:
            return std::make_unique<NumberSettingField>(row, store, page);
        case SettingForm::Text:
            return std::make_unique<TextSettingField>(row, store, page);
    }
    return nullptr;
}

void frmSetUp::reload() {
    for (const auto& field : m_fields) {
        field->load();
    }
}

bool frmSetUp::hasChanges() const {
    for (const auto& field : m_fields) {
        if (field->isChanged()) {
            return true;
        }
    }
    return false;
}

bool frmSetUp::save() {
    for (SettingsStore* store : std::as_const(m_stores)) {
        store->beginBatch();
    }
    bool kept = true;
    for (const auto& field : m_fields) {
        if (field->isChanged()) {
            kept = field->save() && kept;
        }
    }
    for (SettingsStore* store : std::as_const(m_stores)) {
        kept = store->endBatch() && kept;
    }
    if (!kept) {
        m_messages.show(notSavedMessage(), MessageStyle::Critical);
        return false;
    }
    reload();
    m_messages.show(savedMessage(), MessageStyle::Information, savedTitle());
    emit saved();
    return true;
}

}  // namespace sandogh
