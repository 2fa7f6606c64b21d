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

TEST(PromptDialog, AcceptedAnswerComesBack) {
    QtMessageService messages;
    QString answer = QStringLiteral("1");
    inModal([](QLineEdit* edit) {
        QTest::keyClicks(edit, QStringLiteral("25"));  // replaces the selected starting text
        QTest::keyClick(edit, Qt::Key_Return);
    });
    EXPECT_TRUE(messages.prompt(QStringLiteral("تعداد"), answer));
    EXPECT_EQ(answer, QStringLiteral("25"));
}

TEST(PromptDialog, PasswordIsTypedHiddenAndReturned) {
    QtMessageService messages;
    QString answer;
    inModal([](QLineEdit* edit) {
        EXPECT_EQ(edit->echoMode(), QLineEdit::Password);
        QTest::keyClicks(edit, QStringLiteral("4321"));
        EXPECT_NE(edit->displayText(), QStringLiteral("4321"));
        QTest::keyClick(edit, Qt::Key_Enter);
    });
    EXPECT_TRUE(messages.prompt(QStringLiteral("رمز کارت"), answer, true));
    EXPECT_EQ(answer, QStringLiteral("4321"));
}

TEST(PromptDialog, CancelLeavesTheAnswerAlone) {
    QtMessageService messages;
    QString answer = QStringLiteral("7");
    inModal([](QLineEdit* edit) {
        QTest::keyClicks(edit, QStringLiteral("99"));
        QTest::keyClick(edit, Qt::Key_Escape);
    });
    EXPECT_FALSE(messages.prompt(QStringLiteral("تعداد"), answer));
    EXPECT_EQ(answer, QStringLiteral("7"));
}

}  // namespace
}  // namespace sandogh
