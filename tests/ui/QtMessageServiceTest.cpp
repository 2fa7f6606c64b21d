#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "ui/widgets/QtMessageService.h"

namespace sandogh {
namespace {

using B = QMessageBox;

struct StyleCase {
    const char* name;
    MessageStyle style;
    B::Icon icon;
    B::StandardButtons buttons;
    B::StandardButton defaultButton;
    B::StandardButton escapeButton;
    bool rightToLeft;

    friend void PrintTo(const StyleCase& c, std::ostream* out) { *out << c.name; }
};

const StyleCase kStyles[] = {
    {"CriticalPlain", MessageStyle::CriticalPlain, B::Critical, B::Ok, B::Ok, B::Ok, false},
    {"Information", MessageStyle::Information, B::Information, B::Ok, B::Ok, B::Ok, true},
    {"Critical", MessageStyle::Critical, B::Critical, B::Ok, B::Ok, B::Ok, true},
    {"Warning", MessageStyle::Warning, B::Warning, B::Ok, B::Ok, B::Ok, true},
    {"QuestionYesNo", MessageStyle::QuestionYesNo, B::Information, B::Yes | B::No, B::Yes, B::No,
     true},
    {"QuestionYesNoDefaultNo", MessageStyle::QuestionYesNoDefaultNo, B::Information, B::Yes | B::No,
     B::No, B::No, true},
    {"QuestionOkCancel", MessageStyle::QuestionOkCancel, B::Information, B::Ok | B::Cancel, B::Ok,
     B::Cancel, true},
    {"QuestionCritical", MessageStyle::QuestionCritical, B::Critical, B::Yes | B::No, B::Yes, B::No,
     true},
};

class MessageBoxStyle : public ::testing::TestWithParam<StyleCase> {};

TEST_P(MessageBoxStyle, BuildsTheBoxOfItsStyle) {
    const StyleCase& c = GetParam();
    const QString text = QStringLiteral("کالا با این بارکد وجود ندارد <b>");
    const auto box = QtMessageService::buildBox(text, c.style);

    EXPECT_EQ(box->icon(), c.icon);
    EXPECT_EQ(box->standardButtons(), c.buttons);
    ASSERT_NE(box->defaultButton(), nullptr);
    EXPECT_EQ(box->standardButton(box->defaultButton()), c.defaultButton);
    ASSERT_NE(box->escapeButton(), nullptr);
    EXPECT_EQ(box->standardButton(box->escapeButton()), c.escapeButton);

    EXPECT_EQ(box->windowTitle(), QStringLiteral("اخطار!"));
    EXPECT_EQ(box->text(), text);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    const auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    ASSERT_NE(label, nullptr);
    if (c.rightToLeft) {
        EXPECT_EQ(box->layoutDirection(), Qt::RightToLeft);
        EXPECT_TRUE(label->alignment().testFlag(Qt::AlignRight));
        EXPECT_TRUE(label->alignment().testFlag(Qt::AlignAbsolute));
    } else {
        EXPECT_EQ(box->layoutDirection(), Qt::LeftToRight);
        EXPECT_FALSE(label->alignment().testFlag(Qt::AlignRight));
    }
}

TEST_P(MessageBoxStyle, ButtonsCarryPersianCaptions) {
    const auto box = QtMessageService::buildBox(QStringLiteral("متن"), GetParam().style);
    for (QAbstractButton* button : box->buttons()) {
        EXPECT_FALSE(button->text().isEmpty());
        EXPECT_TRUE(button->text().at(0).script() == QChar::Script_Arabic)
            << button->text().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(AllStyles, MessageBoxStyle, ::testing::ValuesIn(kStyles),
                         [](const auto& param) { return std::string(param.param.name); });

TEST(QtMessageService, TakesTheTitleItIsGiven) {
    const auto box = QtMessageService::buildBox(QStringLiteral("متن"), MessageStyle::Information,
                                                QStringLiteral("توجه!"));
    EXPECT_EQ(box->windowTitle(), QStringLiteral("توجه!"));
}

struct AnswerCase {
    MessageStyle style;
    B::StandardButton button;
    bool answer;
};

TEST(QtMessageService, AnswersTrueOnlyForYesOrOkOfAQuestion) {
    const AnswerCase cases[] = {
        {MessageStyle::QuestionYesNo, B::Yes, true},
        {MessageStyle::QuestionYesNo, B::No, false},
        {MessageStyle::QuestionYesNoDefaultNo, B::Yes, true},
        {MessageStyle::QuestionYesNoDefaultNo, B::No, false},
        {MessageStyle::QuestionOkCancel, B::Ok, true},
        {MessageStyle::QuestionOkCancel, B::Cancel, false},
        {MessageStyle::QuestionCritical, B::Yes, true},
        {MessageStyle::QuestionCritical, B::No, false},
        {MessageStyle::Information, B::Ok, true},
        {MessageStyle::CriticalPlain, B::Ok, true},
        {MessageStyle::Warning, B::NoButton, true},
    };
    for (const AnswerCase& c : cases) {
        EXPECT_EQ(QtMessageService::answerFor(c.style, c.button), c.answer)
            << static_cast<int>(c.style) << " " << c.button;
    }
}

// Presses a key in the modal box show() runs once it is up.
void pressInModal(Qt::Key key) {
    QTimer::singleShot(0, [key] {
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        QTest::keyClick(modal, key);
    });
}

TEST(QtMessageService, ShowRunsTheBoxAndReturnsTheAnswer) {
    QtMessageService messages;

    pressInModal(Qt::Key_Return);  // the default button
    EXPECT_TRUE(messages.show(QStringLiteral("حذف شود؟"), MessageStyle::QuestionYesNo));

    pressInModal(Qt::Key_Return);
    EXPECT_FALSE(messages.show(QStringLiteral("حذف شود؟"), MessageStyle::QuestionYesNoDefaultNo));

    pressInModal(Qt::Key_Escape);
    EXPECT_FALSE(messages.show(QStringLiteral("ادامه؟"), MessageStyle::QuestionOkCancel));

    pressInModal(Qt::Key_Escape);
    EXPECT_TRUE(messages.show(QStringLiteral("ذخیره شد"), MessageStyle::Information));
}

}  // namespace
}  // namespace sandogh
