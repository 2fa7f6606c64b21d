#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <cstdio>

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

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
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
