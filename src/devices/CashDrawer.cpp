#include "CashDrawer.h"

#include <QDir>

namespace sandogh {

namespace {

// The drawer program's one parameter.
const QString kDrawerParameter = QStringLiteral("0");
// The working directory handed to the drawer program is the program folder with
// the file name appended directly ("...\ShopTamvex.exe"); the drawer program has
// always been started so, and is left to find its way from there.
const QString kDrawerWorkingDirSuffix = QStringLiteral("Tamvex.exe");

QString withoutTrailingSeparator(QString folder) {
    while (folder.size() > 1 &&
           (folder.endsWith(QLatin1Char('/')) || folder.endsWith(QLatin1Char('\\')))) {
        folder.chop(1);
    }
    return folder;
}

}  // namespace

QByteArray CashDrawer::kickBytes() {
    return QByteArray("\x1b\x70\x00\x19\x1e", 5);
}

CashDrawer::CashDrawer(const DrawerConfig& config, RawPrinter& printer, ProgramLauncher& launcher,
                       MessageService& messages)
    : m_config(config), m_printer(printer), m_launcher(launcher), m_messages(messages) {}

bool CashDrawer::drawerOnPrinter() const {
    return m_config.printerPortUsb.trimmed().compare(QLatin1String("True"), Qt::CaseInsensitive) ==
           0;
}

QString CashDrawer::drawerProgram() const {
    if (!m_config.drawerProgram.isEmpty()) {
        return QDir(m_config.programFolder).absoluteFilePath(m_config.drawerProgram);
    }
    return QDir::toNativeSeparators(
        QDir(m_config.programFolder).filePath(QStringLiteral("Program/Tamvex.exe")));
}

QString CashDrawer::drawerWorkingDirectory() const {
    return withoutTrailingSeparator(m_config.programFolder) + kDrawerWorkingDirSuffix;
}

void CashDrawer::open() {
    if (drawerOnPrinter()) {
        OpenCashDrawer();
        return;
    }
    // Not waited for and not checked: a missing drawer program goes unnoticed.
    m_launcher.startDetached(drawerProgram(), {kDrawerParameter}, drawerWorkingDirectory(), true);
}

void CashDrawer::OpenCashDrawer() {
    if (!m_printer.printRaw(QString::fromLatin1(kJobName), kickBytes())) {
        m_messages.show(QString::fromLatin1(kPrinterNotRecognized), MessageStyle::CriticalPlain);
    }
}

}  // namespace sandogh
