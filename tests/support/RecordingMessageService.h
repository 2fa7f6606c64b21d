#pragma once

#include <algorithm>

#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QStringList>
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

    bool show(const QString& text, MessageStyle style, const QString& title) override {
        QMutexLocker lock(&m_mutex);
        m_shown.append({text, style, title});
        const bool question =
            style == MessageStyle::QuestionYesNo || style == MessageStyle::QuestionYesNoDefaultNo ||
            style == MessageStyle::QuestionOkCancel || style == MessageStyle::QuestionCritical;
        return question && !m_answers.isEmpty() ? m_answers.takeFirst() : true;
    }
    bool prompt(const QString& text, QString& answer, bool /*password*/) override {
        QMutexLocker lock(&m_mutex);
        m_prompts << text;
        const std::optional<QString> scripted =
            m_promptAnswers.isEmpty() ? std::nullopt : m_promptAnswers.takeFirst();
        if (scripted) {
            answer = *scripted;
        }
        return scripted.has_value();
    }

    // The answer to the next question (Yes/OK = true).
    void queueAnswer(bool yes) {
        QMutexLocker lock(&m_mutex);
        m_answers << yes;
    }
    // The text typed into the next prompt; std::nullopt cancels it.
    void queuePromptAnswer(std::optional<QString> answer) {
        QMutexLocker lock(&m_mutex);
        m_promptAnswers << std::move(answer);
    }

    QList<Shown> messages() const {
        QMutexLocker lock(&m_mutex);
        return m_shown;
    }
    QStringList prompts() const {
        QMutexLocker lock(&m_mutex);
        return m_prompts;
    }
    int count() const {
        QMutexLocker lock(&m_mutex);
        return int(m_shown.size());
    }
    // How many messages had exactly this text.
    int countOf(const QString& text) const {
        QMutexLocker lock(&m_mutex);
        return int(std::count_if(m_shown.cbegin(), m_shown.cend(),
                                 [&text](const Shown& s) { return s.text == text; }));
    }
    void clear() {
        QMutexLocker lock(&m_mutex);
        m_shown.clear();
        m_prompts.clear();
    }

private:
    mutable QMutex m_mutex;
    QList<Shown> m_shown;
    QStringList m_prompts;
    QList<bool> m_answers;
    QList<std::optional<QString>> m_promptAnswers;
};

}  // namespace sandogh::test
