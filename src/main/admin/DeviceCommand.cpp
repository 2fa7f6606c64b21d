#include <QEventLoop>
#include <QTimer>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "devices/CashDrawer.h"
#include "devices/CustomerDisplay.h"
#include "devices/DetachedProgramLauncher.h"
#include "devices/DeviceConfigs.h"
#include "devices/DisplayFrames.h"
#include "devices/PecRequest.h"
#include "devices/PecResponse.h"
#include "devices/PecTerminal.h"
#include "devices/SpoolerRawPrinter.h"
#include "settings/QSettingsStore.h"

namespace sandogh {

namespace {

constexpr int kDrainMs = 1000;
constexpr int kDefaultPecTimeoutS = 60;

QByteArray hex(const QByteArray& bytes) {
    return bytes.toHex(' ').toUpper();
}

// Messages the devices would show, kept to be printed.
class KeptMessages final : public MessageService {
public:
    bool show(const QString& text, MessageStyle, const QString&) override {
        texts << text;
        return true;
    }
    bool prompt(const QString&, QString&, bool) override { return false; }
    QStringList texts;
};

// The self-test talks to the terminal only; an approval is reported, not recorded.
class ReportedOnly final : public PosPaymentRecorder {
public:
    Result record(const PosPayment&) override { return Result::Recorded; }
};

// The real launcher, remembering whether the program started.
class CheckedLauncher final : public ProgramLauncher {
public:
    bool startDetached(const QString& program, const QStringList& arguments,
                       const QString& workingDirectory, bool hidden) override {
        started = m_real.startDetached(program, arguments, workingDirectory, hidden);
        return started;
    }
    bool started = false;

private:
    DetachedProgramLauncher m_real;
};

void wait(int ms) {
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin device: " << problem << '\n'
             << "usage: sandogh-admin device display --kind K --total TEXT [--greeting TEXT]"
                " [--port PATH] [--hex]\n"
                "       sandogh-admin device drawer\n"
                "       sandogh-admin device pec --amount TEXT --invoice N [--port PATH]"
                " [--timeout S] [--hex]\n"
                "       sandogh-admin device ports\n";
    return ExitUsage;
}

QByteArray displayBytes(int kind, const QString& total, const QString& greeting) {
    if (kind == 3)
        return DisplayFrames::priceDisplay(total);
    if (kind == 1)
        return DisplayFrames::lineDisplayClear() + DisplayFrames::lineDisplayAmount(total);
    return DisplayFrames::twoLineDisplay(total, greeting);
}

int runDisplay(AdminCall& call, const QStringList& words, const MachineSettings& settings) {
    const AdminArgs args(words,
                         {QStringLiteral("kind"), QStringLiteral("total"),
                          QStringLiteral("greeting"), QStringLiteral("port")},
                         {QStringLiteral("hex")});
    if (!args.ok())
        return usage(call, args.error());
    bool kindOk = false;
    const int kind = args.value(QStringLiteral("kind")).toInt(&kindOk);
    if (!kindOk || !args.has(QStringLiteral("total"))) {
        return usage(call, QStringLiteral("display needs --kind K and --total TEXT"));
    }
    const QString total = args.value(QStringLiteral("total"));
    DisplayConfig config = DeviceConfigs::display(settings);
    config.enabled = true;
    config.kind = kind;
    if (args.has(QStringLiteral("greeting")))
        config.greeting = args.value(QStringLiteral("greeting"));
    const QByteArray bytes = displayBytes(kind, total, config.greeting);
    if (args.flag(QStringLiteral("hex"))) {
        call.out << hex(bytes) << '\n';
        return ExitOk;
    }

    GeneralPortsConfig portsConfig = DeviceConfigs::generalPorts(settings);
    portsConfig.portsActive = kind != 3;
    portsConfig.portNo = settings.portNo() > 0 ? settings.portNo() : 1;
    portsConfig.portNo2 = 0;
    if (kind == 3) {
        if (args.has(QStringLiteral("port")))
            config.devicePath = args.value(QStringLiteral("port"));
    } else if (args.has(QStringLiteral("port"))) {
        portsConfig.port1Device = args.value(QStringLiteral("port"));
    }
    GeneralPorts ports(portsConfig);
    if (kind == 1)
        ports.MSComm1().setSettings(QStringLiteral("2400,n,8,1"));
    CustomerDisplay display(config, ports);
    SerialLine& line = kind == 3 ? display.port() : ports.MSComm1();
    if (kind == 3) {
        display.openPort();
    } else {
        ports.OpenPort();
    }
    if (!line.isOpen()) {
        call.err << "sandogh-admin device: cannot open " << line.deviceName() << ": "
                 << line.errorString() << '\n';
        return ExitFailed;
    }
    display.ShowOnCustomerDisplay(total);
    if (kind == 1)
        wait(display.singleLinePauseMs() + 50);
    line.drain(kDrainMs);
    line.close();
    call.out << "display kind " << kind << " on " << line.deviceName() << " (" << line.settings()
             << "): " << hex(bytes) << '\n';
    return ExitOk;
}

int runDrawer(AdminCall& call, const QStringList& words, const MachineSettings& settings) {
    const AdminArgs args(words, {}, {});
    if (!args.ok())
        return usage(call, args.error());
    SpoolerRawPrinter printer;
    CheckedLauncher launcher;
    KeptMessages messages;
    CashDrawer drawer(DeviceConfigs::drawer(settings, call.programDir), printer, launcher,
                      messages);
    drawer.open();
    if (!messages.texts.isEmpty()) {
        call.err << "sandogh-admin device: " << messages.texts.join(QLatin1Char('\n')) << '\n';
        return ExitFailed;
    }
    if (drawer.drawerOnPrinter()) {
        call.out << "drawer: " << hex(CashDrawer::kickBytes()) << " sent as job \""
                 << CashDrawer::kJobName << "\" to printer " << SpoolerRawPrinter::defaultPrinter()
                 << '\n';
        return ExitOk;
    }
    if (!launcher.started) {
        call.err << "sandogh-admin device: cannot start " << drawer.drawerProgram() << '\n';
        return ExitFailed;
    }
    call.out << "drawer: started " << drawer.drawerProgram() << " 0\n";
    return ExitOk;
}

int runPec(AdminCall& call, const QStringList& words, const MachineSettings& settings) {
    const AdminArgs args(words,
                         {QStringLiteral("amount"), QStringLiteral("invoice"),
                          QStringLiteral("port"), QStringLiteral("timeout")},
                         {QStringLiteral("hex")});
    if (!args.ok())
        return usage(call, args.error());
    if (!args.has(QStringLiteral("amount")) || !args.has(QStringLiteral("invoice"))) {
        return usage(call, QStringLiteral("pec needs --amount TEXT and --invoice N"));
    }
    const QString amount = args.value(QStringLiteral("amount"));
    const QString invoice = args.value(QStringLiteral("invoice"));
    const QByteArray request = PecRequest::build(amount, invoice);
    if (args.flag(QStringLiteral("hex"))) {
        call.out << hex(request) << '\n';
        return ExitOk;
    }
    bool timeoutOk = true;
    const int timeoutS = args.has(QStringLiteral("timeout"))
                             ? args.value(QStringLiteral("timeout")).toInt(&timeoutOk)
                             : kDefaultPecTimeoutS;
    if (!timeoutOk || timeoutS <= 0)
        return usage(call, QStringLiteral("--timeout needs seconds"));

    PecConfig config = DeviceConfigs::pec(settings);
    if (args.has(QStringLiteral("port")))
        config.devicePath = args.value(QStringLiteral("port"));
    ReportedOnly recorder;
    KeptMessages messages;
    SystemClock clock;
    PecTerminal terminal(config, recorder, messages, clock, [] { return QString(); });
    if (!terminal.sendPaymentRequest(amount, invoice)) {
        call.err << "sandogh-admin device: cannot open " << terminal.MSCommPec().deviceName()
                 << ": " << terminal.MSCommPec().errorString() << '\n';
        return ExitFailed;
    }
    call.out << "sent " << request.size() << " bytes to " << terminal.MSCommPec().deviceName()
             << ", waiting up to " << timeoutS << " s\n";
    call.out.flush();

    QByteArray answer;
    bool answered = false;
    QEventLoop loop;
    QObject::connect(&terminal, &PecTerminal::answerRead, &loop, [&](const QByteArray& got) {
        answer = got;
        answered = true;
        loop.quit();
    });
    QTimer::singleShot(timeoutS * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    if (!answered) {
        call.err << "sandogh-admin device: no answer within " << timeoutS << " s\n";
        return ExitFailed;
    }
    const auto code = PecResponse::code(answer);
    if (!code) {
        call.err << "sandogh-admin device: answer without a response code: " << hex(answer) << '\n';
        return ExitFailed;
    }
    const QString message = PecResponse::message(*code);
    call.out << "code " << *code << ": "
             << (*code == QLatin1String(PecResponse::kApproved) ? QStringLiteral("approved")
                 : message.isEmpty()                            ? QStringLiteral("(no message)")
                                                                : message)
             << '\n';
    return ExitOk;
}

int runPorts(AdminCall& call, const QStringList& words, const MachineSettings& settings) {
    const AdminArgs args(words, {}, {});
    if (!args.ok())
        return usage(call, args.error());
    struct Row {
        const char* name;
        SerialPortConfig config;
        int number;
        QString device;
    };
    const Row rows[] = {
        {"MSComm1", SerialPortConfig::MSComm1(), settings.portNo(), settings.mscomm1Device()},
        {"MSComm2", SerialPortConfig::MSComm2(), settings.portNo2(), settings.mscomm2Device()},
        {"MSCommCustomerDisplay", SerialPortConfig::port(), settings.displayPort(),
         settings.customerDisplayDevice()},
        {"MSCommPec", SerialPortConfig::MSCommPec(), settings.pecPort(), settings.pecDevice()},
    };
    call.out << "general ports (IsActivePort.Enable): "
             << (settings.generalPortsEnabled() ? "on" : "off") << '\n';
    for (const Row& row : rows) {
        SerialPortConfig config = row.config;
        config.commPort = row.number;
        config.devicePath = row.device;
        SerialLine line(config);
        call.out << row.name << "\tCOM" << row.number << '\t';
        if (line.deviceName().isEmpty()) {
            call.out << "no port\n";
            continue;
        }
        call.out << line.deviceName() << '\t';
        if (line.open()) {
            line.close();
            call.out << "opens\n";
        } else {
            call.out << "does not open: " << line.errorString() << '\n';
        }
    }
    return ExitOk;
}

}  // namespace

// sandogh-admin device display|drawer|pec|ports: self-tests of the cash desk's
// devices with this machine's settings.
int runDevice(AdminCall& call) {
    QStringList words = call.args;
    if (words.isEmpty())
        return usage(call, QStringLiteral("which device?"));
    const QString which = words.takeFirst();
    QSettingsStore store;
    const MachineSettings settings(store);
    if (which == QLatin1String("display"))
        return runDisplay(call, words, settings);
    if (which == QLatin1String("drawer"))
        return runDrawer(call, words, settings);
    if (which == QLatin1String("pec"))
        return runPec(call, words, settings);
    if (which == QLatin1String("ports"))
        return runPorts(call, words, settings);
    return usage(call, QStringLiteral("unknown device \"%1\"").arg(which));
}

}  // namespace sandogh
