#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include "app/AppContext.h"
#include "devices/DetachedProgramLauncher.h"
#include "devices/SpoolerRawPrinter.h"
#include "settings/Clock.h"
#include "settings/QSettingsStore.h"
#include "ui/app/StartUpFlow.h"
#include "ui/widgets/AppStyle.h"
#include "ui/widgets/QtMessageService.h"

using namespace sandogh;

// sandogh [--dir PROGRAM_DIR]: the program folder (Provider.txt, ErrorLog.txt, Program/)
// is the executable's folder unless --dir names another.
int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Sandogh"));
    QApplication::setApplicationVersion(QStringLiteral(SANDOGH_VERSION));
    AppStyle::apply(app);

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dirOption(QStringLiteral("dir"), QStringLiteral("The program folder."),
                                       QStringLiteral("PROGRAM_DIR"));
    parser.addOption(dirOption);
    parser.process(app);
    const QString programFolder =
        QDir(parser.isSet(dirOption) ? parser.value(dirOption) : QApplication::applicationDirPath())
            .absolutePath();

    QSettingsStore settings;
    QSettingsStore transferSettings(QStringLiteral("Factortransfer"));
    SystemClock clock;
    QtMessageService messages;
    DetachedProgramLauncher launcher;
    SpoolerRawPrinter printer;
    AppContext context(programFolder, settings, clock, messages, launcher, printer,
                       QStringLiteral("Sandogh ") + QApplication::applicationVersion());
    context.setTransferSettingsStore(&transferSettings);

    StartUpFlow flow(context);
    QObject::connect(&flow, &StartUpFlow::finished, &app, &QApplication::exit);
    QMetaObject::invokeMethod(&flow, &StartUpFlow::start, Qt::QueuedConnection);
    return QApplication::exec();
}
