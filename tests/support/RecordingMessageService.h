#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <optional>

#include "settings/MessageService.h"

namespace sandogh::test {

// A message service for tests: remembers every message and prompt instead of showing
// it, and answers questions and prompts from a script (Yes and a cancelled prompt when
// the script has run out). Safe to use from several threads.
class RecordingMessageService final : public MessageService {
public:
    struct Shown {
        QString text;
        MessageStyle style;
        QString title;
    };

    bool show(const QString& text, MessageStyle style, const QString& title) override;
    bool prompt(const QString& text, QString& answer, bool password) override;

    // The answer to the next question (Yes/OK = true).
    void queueAnswer(bool yes);
    // The text typed into the next prompt; std::nullopt cancels it.
    void queuePromptAnswer(std::optional<QString> answer);

    QList<Shown> messages() const;
    QStringList prompts() const;
    int count() const;
    // How many messages had exactly this text.
    int countOf(const QString& text) const;
    void clear();

private:
    static bool isQuestion(MessageStyle style);

    mutable QMutex m_mutex;
    QList<Shown> m_shown;
    QStringList m_prompts;
    QList<bool> m_answers;
    QList<std::optional<QString>> m_promptAnswers;
};

}  // namespace sandogh::test
