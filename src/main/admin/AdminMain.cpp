#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QTextStream>
#include <cstdio>
#include <cstring>
#include <memory>

#include "AdminCommand.h"

using namespace sandogh;

namespace {

void printUsage(QTextStream& s) {
    s << "usage: sandogh-admin COMMAND [--dir PROGRAM_DIR] [ARGS...]\n";
    for (const AdminCommand& c : adminCommands()) {
        s << "  " << c.usage << '\n';
    }
}

// Pulls "--dir D" (or "--dir=D") out of the words; every command accepts it.
QString takeProgramDir(QStringList& args, bool& ok) {
    QString dir = QCoreApplication::applicationDirPath();
    ok = true;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--dir")) {
            if (i + 1 >= args.size()) {
                ok = false;
                return dir;
            }
            dir = args[i + 1];
            args.remove(i, 2);
            --i;
        } else if (args[i].startsWith(QLatin1String("--dir="))) {
            dir = args[i].mid(6);
            args.remove(i);
            --i;
        }
    }
    return QDir(dir).absolutePath();
}

// Commands that lay text out with fonts need the GUI application, offscreen by default.
bool needsFonts(int argc, char** argv) {
    return argc > 1 &&
           (std::strcmp(argv[1], "receipt") == 0 || std::strcmp(argv[1], "report") == 0);
}

}  // namespace

int main(int argc, char** argv) {
    std::unique_ptr<QCoreApplication> application;
    if (needsFonts(argc, argv)) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication& app = *application;
    QCoreApplication::setApplicationName(QStringLiteral("sandogh-admin"));
    QTextStream out(stdout);
    QTextStream err(stderr);

    QStringList args = app.arguments().mid(1);
    if (args.isEmpty() || args.first() == QLatin1String("help") ||
        args.first() == QLatin1String("--help")) {
        printUsage(args.isEmpty() ? err : out);
        return args.isEmpty() ? ExitUsage : ExitOk;
    }
    const QString name = args.takeFirst();
    bool dirOk = false;
    const QString dir = takeProgramDir(args, dirOk);
    if (!dirOk) {
        err << "sandogh-admin: option --dir needs a value\n";
        return ExitUsage;
    }
    for (const AdminCommand& c : adminCommands()) {
        if (name == QLatin1String(c.name)) {
            AdminCall call{args, dir, out, err};
            const int rc = c.run(call);
            out.flush();
            err.flush();
            return rc;
        }
    }
    err << "sandogh-admin: unknown command \"" << name << "\"\n";
    printUsage(err);
    return ExitUsage;
}
