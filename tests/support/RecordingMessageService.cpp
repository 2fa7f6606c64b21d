#include "support/RecordingMessageService.h"

#include <QMutexLocker>

namespace sandogh::test {

bool RecordingMessageService::isQuestion(MessageStyle style) {
    switch (style) {
        case MessageStyle::QuestionYesNo:
        case MessageStyle::QuestionYesNoDefaultNo:
        case MessageStyle::QuestionOkCancel:
        case MessageStyle::QuestionCritical:
            return true;
        default:
            return false;
    }
}

bool RecordingMessageService::show(const QString& text, MessageStyle style, const QString& title) {
    QMutexLocker lock(&m_mutex);
    m_shown.append({text, style, title});
    if (isQuestion(style) && !m_answers.isEmpty()) {
        return m_answers.takeFirst();
    }
    return true;
}

bool RecordingMessageService::prompt(const QString& text, QString& answer, bool /*password*/) {
    QMutexLocker lock(&m_mutex);
    m_prompts << text;
    if (m_promptAnswers.isEmpty()) {
        return false;
    }
    const std::optional<QString> scripted = m_promptAnswers.takeFirst();
    if (!scripted) {
        return false;
    }
    answer = *scripted;
    return true;
}

void RecordingMessageService::queueAnswer(bool yes) {
    QMutexLocker lock(&m_mutex);
    m_answers << yes;
}

void RecordingMessageService::queuePromptAnswer(std::optional<QString> answer) {
    QMutexLocker lock(&m_mutex);
    m_promptAnswers << std::move(answer);
}

QList<RecordingMessageService::Shown> RecordingMessageService::messages() const {
    QMutexLocker lock(&m_mutex);
    return m_shown;
}

QStringList RecordingMessageService::prompts() const {
    QMutexLocker lock(&m_mutex);
    return m_prompts;
}

int RecordingMessageService::count() const {
    QMutexLocker lock(&m_mutex);
    return int(m_shown.size());
}

int RecordingMessageService::countOf(const QString& text) const {
    QMutexLocker lock(&m_mutex);
    int n = 0;
    for (const Shown& s : m_shown) {
        n += s.text == text ? 1 : 0;
    }
    return n;
}

void RecordingMessageService::clear() {
    QMutexLocker lock(&m_mutex);
    m_shown.clear();
    m_prompts.clear();
}

}  // namespace sandogh::test
