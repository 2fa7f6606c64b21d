#include "InternalCommand.h"

namespace sandogh {

namespace {

struct InternalWord {
    const char* word;
    AdminRun run;
};

const InternalWord kWords[] = {
    {"sell", runInternalSell},
    {"send", runInternalSend},
    {"receive", runInternalReceive},
};

const char* const kUsage =
    "usage: sandogh-admin internal sell --branch ID [--return --of N] ENTRY...\n"
    "       sandogh-admin internal send --branch ID [--all-unsent] [--out FILE] [NUMBER ...]\n"
    "       sandogh-admin internal receive FILE\n";

}  // namespace

// sandogh-admin internal: dispatches on the word after "internal".
int runInternal(AdminCall& call) {
    const QString word = call.args.isEmpty() ? QString() : call.args.first();
    for (const InternalWord& w : kWords) {
        if (word == QLatin1String(w.word)) {
            AdminCall rest{call.args.mid(1), call.programDir, call.out, call.err};
            return w.run(rest);
        }
    }
    call.err << "sandogh-admin internal: "
             << (word.isEmpty() ? QStringLiteral("expected a word")
                                : QStringLiteral("unknown word ") + word)
             << '\n'
             << kUsage;
    return ExitUsage;
}

}  // namespace sandogh
