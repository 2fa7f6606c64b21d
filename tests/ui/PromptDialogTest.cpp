// The prompt of the message service: its dialog, and the answer typed into it.

#include <gtest/gtest.h>

#include <functional>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "ui/widgets/PromptDialog.h"
#include "ui/widgets/QtMessageService.h"

namespace sandogh {
namespace {

// Runs an action on the modal prompt once prompt() has put it up.
void inModal(std::function<void(QLineEdit*)> action) {
    QTimer::singleShot(0, [action = std::move(action)] {
        auto* dialog = qobject_cast<PromptDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("txtAnswer"));
        ASSERT_NE(edit, nullptr);
        action(edit);
    });
}

TEST(PromptDialog, BuildsARightToLeftDialogWithTheQuestion) {
    const auto dialog = QtMessageService::buildPrompt(QStringLiteral("قیمت را وارد کنید"),
                                                      QStringLiteral("12000"), false);
    EXPECT_EQ(dialog->layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("اخطار!"));
    const auto* label = dialog->findChild<QLabel*>(QStringLiteral("lblPrompt"));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), QStringLiteral("قیمت را وارد کنید"));
    EXPECT_EQ(dialog->answer(), QStringLiteral("12000"));
    EXPECT_FALSE(dialog->isPassword());
}

struct PromptCase {
    const char* typed;  // replaces the selected starting answer ("7", or none for a password)
    Qt::Key key;
    bool password;
    bool accepted;
    const char* answer;
};

class PromptDialogAnswers : public ::testing::TestWithParam<PromptCase> {};

TEST_P(PromptDialogAnswers, ComeBackOnlyWhenAccepted) {
    const PromptCase& c = GetParam();
    QtMessageService messages;
    QString answer = c.password ? QString() : QStringLiteral("7");
    inModal([&c](QLineEdit* edit) {
        EXPECT_EQ(edit->echoMode(), c.password ? QLineEdit::Password : QLineEdit::Normal);
        QTest::keyClicks(edit, QString::fromLatin1(c.typed));
        EXPECT_EQ(edit->displayText() == QString::fromLatin1(c.typed), !c.password);
        QTest::keyClick(edit, c.key);
    });
    EXPECT_EQ(messages.prompt(QStringLiteral("تعداد"), answer, c.password), c.accepted);
    EXPECT_EQ(answer, QString::fromLatin1(c.answer));
}

INSTANTIATE_TEST_SUITE_P(Keys, PromptDialogAnswers,
                         ::testing::Values(PromptCase{"25", Qt::Key_Return, false, true, "25"},
                                           PromptCase{"4321", Qt::Key_Enter, true, true, "4321"},
                                           PromptCase{"99", Qt::Key_Escape, false, false, "7"}));

}  // namespace
}  // namespace sandogh
