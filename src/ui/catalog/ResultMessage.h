#pragma once

namespace sandogh {

class MessageService;
struct CheckResult;

// Shows the answer of a check or a save: a refusal as an error found on the screen, a
// passed answer's message as a notice, each under the answer's title. An answer without
// a message (a database failure, reported already) shows nothing.
class ResultMessage {
public:
    static void show(MessageService& messages, const CheckResult& result);
};

}  // namespace sandogh
