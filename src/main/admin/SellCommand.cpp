#include <QCoreApplication>
#include <QDate>
#include <chrono>

#include "AdminArgs.h"
#include "AdminCommand.h"
#include "common/AmountText.h"
#include "common/JalaliCalendar.h"
#include "data/ConnectionFile.h"
#include "data/ConnectionSettings.h"
#include "data/Database.h"
#include "data/ErrorLog.h"
#include "data/repositories/SaleCodes.h"
#include "data/repositories/UsersRepository.h"
#include "data/schema/Migrator.h"
#include "data/schema/ShopSchema.h"
#include "sales/SaleSaver.h"
#include "sales/SaleSession.h"
#include "sales/SaleSettlement.h"
#include "sales/SaleTexts.h"
#include "settings/Clock.h"
#include "settings/MachineSettings.h"
#include "settings/MessageService.h"
#include "settings/QSettingsStore.h"

namespace sandogh {

namespace {

const QString kMissingConnectionFile =
    QStringLiteral("فايل Provider.txt در مسير برنامه موجود نيست!");

const char* const kUsage =
    "usage: sandogh-admin sell [--dir D] [--user NAME] [--station ID] [--date YYYY/MM/DD]\n"
    "                          [--customer COUNTER] [--return] [--sales-type N]\n"
    "                          [--discount AMOUNT --discount-type ID] [--pay-type CODE]\n"
    "                          [--received AMOUNT] [--repeat N] [--dry-run] ENTRY...\n"
    "Each ENTRY is typed into the barcode box and ended with Enter. --dry-run prints the lines\n"
    "(barcode, quantity, unit price, tax percent, line total, tab-separated) and the total.\n"
    "Otherwise the sale is saved as the sale screen saves it and \"Code=<n> DocNo=<n>\n"
    "DocSum=<amount>\" is printed. The amount received is the amount payable unless\n"
    "--received is given (less is confirmed: the invoice is left owing); the payment kind is\n"
    "1 unless --pay-type is given. --repeat saves the same sale N times, each with its own\n"
    "number (a load on the shop's database). A refused check prints its message and exits 1.\n";

// Messages go to the error stream; prompts (the price, the quantity) are answered with
// nothing, that is, cancelled.
class ConsoleMessages final : public MessageService {
public:
    explicit ConsoleMessages(QTextStream& err) : m_err(err) {}
    bool show(const QString& text, MessageStyle, const QString& title) override {
        m_err << title << ' ' << text.trimmed() << '\n';
        m_err.flush();
        return true;
    }
    bool prompt(const QString& text, QString&, bool) override {
        m_err << text.trimmed() << ": " << QStringLiteral("(no answer)") << '\n';
        m_err.flush();
        return false;
    }

private:
    QTextStream& m_err;
};

QString todayJalali() {
    using namespace std::chrono;
    const QDate today = QDate::currentDate();
    const DaySerial serial = PlatformDate::fromDate(
        year_month_day{year{today.year()}, month{static_cast<unsigned>(today.month())},
                       day{static_cast<unsigned>(today.day())}});
    return QString::fromStdString(JalaliCalendar::toJalaliText(serial));
}

// A number as plain digits: "3", "10000", "0.75", "32700".
QString plain(double value) {
    QString text = QString::number(value, 'f', 6);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

int usage(AdminCall& call, const QString& problem) {
    call.err << "sandogh-admin sell: " << problem << '\n' << kUsage;
    return ExitUsage;
}

// The ID of an active user by login name; -1 when there is none.
int userIdOf(Database& database, const QString& userName) {
    Session s = database.session(QStringLiteral("sandogh-admin"), QStringLiteral("sell"));
    return UsersRepository::activeUserId(s, userName);
}

// The amounts and kinds of the command line; false with the problem in error.
bool readSettlement(const AdminArgs& args, SaleSettlement& settlement, QString& error) {
    bool ok = true;
    const auto number = [&](const char* name, double& value) {
        const QString key = QString::fromLatin1(name);
        if (ok && args.has(key)) {
            const QString typed = args.value(key);
            const std::optional<double> amount = AmountText::parseStrict(typed.toStdString());
            ok = amount && *amount >= 0;
            if (!ok) {
                error = QStringLiteral("--%1: ").arg(key) +
                        QString::fromStdString(AmountText::refusal(typed.toStdString()));
                return;
            }
            value = *amount;
        }
    };
    const auto code = [&](const char* name, std::optional<int>& value) {
        const QString key = QString::fromLatin1(name);
        if (ok && args.has(key)) {
            value = args.value(key).toInt(&ok);
            if (!ok) {
                error = QStringLiteral("--%1 needs a number").arg(key);
            }
        }
    };
    number("discount", settlement.discount);
    code("discount-type", settlement.discountTypeId);
    settlement.payType = 1;
    code("pay-type", settlement.payType);
    double received = 0;
    number("received", received);
    if (args.has(QStringLiteral("received"))) {
        settlement.received = received;
    }
    settlement.printReceipt = false;
    return ok;
}

int save(AdminCall& call, Database& database, const MachineSettings& settings,
         MessageService& messages, const Clock& clock, SaleSession& sale,
         const SaleSettlement& settlement, int times) {
    SaleSaver saver(database, settings, messages, clock);
    for (int i = 0; i < times; ++i) {
        SaleSettlement each = settlement;
        const SaleSaveResult r = saver.save(sale, each);
        if (!r.saved) {
            return ExitFailed;
        }
        call.out << "Code=" << r.code << " DocNo=" << r.docNo << " DocSum=" << plain(r.docSum)
                 << '\n';
        call.out.flush();  // a run killed later has printed every sale it saved
    }
    return ExitOk;
}

}  // namespace

// sandogh-admin sell: a sale rung up from the command line through the same sale session
// as the sale screen, on the shop database of the program folder.
int runSell(AdminCall& call) {
    const AdminArgs args(
        call.args,
        {QStringLiteral("user"), QStringLiteral("station"), QStringLiteral("date"),
         QStringLiteral("customer"), QStringLiteral("sales-type"), QStringLiteral("discount"),
         QStringLiteral("discount-type"), QStringLiteral("pay-type"), QStringLiteral("received"),
         QStringLiteral("repeat")},
        {QStringLiteral("return"), QStringLiteral("dry-run")});
    if (!args.ok()) {
        return usage(call, args.error());
    }
    if (args.positional().isEmpty()) {
        return usage(call, QStringLiteral("no ENTRY given"));
    }
    bool ok = true;
    QString error;
    const int station = args.value(QStringLiteral("station"), QStringLiteral("0")).toInt(&ok);
    if (!ok) {
        return usage(call, QStringLiteral("--station needs a number"));
    }
    const int customer = args.value(QStringLiteral("customer"), QStringLiteral("0")).toInt(&ok);
    if (!ok) {
        return usage(call, QStringLiteral("--customer needs a number (the customer's Counter)"));
    }
    const int salesType = args.value(QStringLiteral("sales-type"), QStringLiteral("1")).toInt(&ok);
    if (!ok ||
        (salesType != SaleSession::kFirstSalesType && salesType != SaleSession::kSecondSalesType)) {
        return usage(call, QStringLiteral("--sales-type is 1 or 2"));
    }
    const int repeat = args.value(QStringLiteral("repeat"), QStringLiteral("1")).toInt(&ok);
    if (!ok || repeat < 1) {
        return usage(call, QStringLiteral("--repeat needs a count of 1 or more"));
    }
    SaleSettlement settlement;
    if (!readSettlement(args, settlement, error)) {
        return usage(call, error);
    }
    QString date;
    if (args.has(QStringLiteral("date"))) {
        const std::optional<std::string> normal =
            JalaliCalendar::normalizeDateText(args.value(QStringLiteral("date")).toStdString());
        if (!normal) {
            return usage(call, QStringLiteral("--date is a Jalali date YYYY/MM/DD"));
        }
        date = QString::fromStdString(*normal);
    }

    ConsoleMessages messages(call.err);
    SystemClock clock;
    ErrorLog log(call.programDir, &messages, clock, todayJalali(),
                 QStringLiteral("sandogh-admin ") + QCoreApplication::applicationVersion());
    QSettingsStore store;
    MachineSettings settings(store);

    ConnectionFile file(call.programDir, &log);
    if (!file.LoadPrimary(settings.fiscalYearDatabase().trimmed())) {
        call.err << kMissingConnectionFile << '\n';
        return ExitFailed;
    }
    ConnectionSettings connection;
    if (!ConnectionSettings::parse(file.connectionString(), call.programDir, connection, &error)) {
        call.err << "sandogh-admin sell: " << error << '\n';
        return ExitFailed;
    }
    DatabaseOptions options;
    options.otherDatabases = Migrator::otherDatabasesOf(shopMigrations());
    Database database(connection, &messages, &log, options);

    if (!database.session(QStringLiteral("sandogh-admin"), QStringLiteral("sell"))) {
        return ExitFailed;  // the connection message has been shown
    }
    SaleSession sale(database, settings, messages, clock);
    if (args.has(QStringLiteral("user"))) {
        const QString name = args.value(QStringLiteral("user"));
        const int id = userIdOf(database, name);
        if (id < 0) {
            call.err << "sandogh-admin sell: no active user \"" << name << "\"\n";
            return ExitFailed;
        }
        sale.setUser(id, name);
    }
    if (station != 0) {
        sale.setStation(station);
    }
    if (!date.isEmpty()) {
        sale.setSaleDate(date);
    }
    if (args.flag(QStringLiteral("return"))) {
        sale.setMode(SaleMode::Return);
    }
    sale.setSalesType(salesType);
    if (customer != 0 && !sale.selectCustomer(customer)) {
        static_cast<MessageService&>(messages).show(SaleTexts::customerNotResolved(),
                                                    MessageStyle::Critical);
        return ExitFailed;
    }

    for (const QString& entry : args.positional()) {
        const EntryOutcome outcome = sale.enterText(entry);
        if (outcome.refused) {
            if (outcome.kind == EntryKind::CardNumber) {
                call.err << "sandogh-admin sell: card numbers are not looked up here (\""
                         << outcome.boxText << "\")\n";
            }
            return ExitFailed;
        }
        if (outcome.notFound) {
            call.err << "sandogh-admin sell: nothing found for \"" << outcome.boxText << "\"\n";
            return ExitFailed;
        }
    }

    if (!args.flag(QStringLiteral("dry-run"))) {
        const SaleCodes::Missing missing = SaleCodes(database).firstMissing(
            settlement.payType, settlement.discountTypeId, station, customer);
        if (missing != SaleCodes::Missing::None) {
            if (missing != SaleCodes::Missing::Unreachable) {
                static_cast<MessageService&>(messages).show(SaleCodes::message(missing),
                                                            MessageStyle::Critical);
            }
            return ExitFailed;
        }
        return save(call, database, settings, messages, clock, sale, settlement, repeat);
    }
    for (const SaleLine& line : sale.lines()) {
        call.out << line.barcode << '\t' << plain(line.quantity) << '\t' << plain(line.unitPrice)
                 << '\t' << plain(line.taxPercent) << '\t' << plain(line.total) << '\n';
    }
    call.out << plain(sale.total()) << '\n';
    return ExitOk;
}

}  // namespace sandogh
