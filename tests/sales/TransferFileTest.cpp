// The record layout of RptFactors.txt: what is written reads back the same, and a file
// that is not whole, changed or malformed is refused.

#include <gtest/gtest.h>

#include <QCryptographicHash>

#include "sales/TransferFile.h"

namespace sandogh {
namespace {

TransferBatch sample() {
    return {QStringLiteral("فروشگاه, مرکزي %2C"),
            4,
            {{17,
              QStringLiteral("12"),
              QStringLiteral("1404/01/05"),
              12500.5,
              0,
              QStringLiteral("سطر اول\r\nسطر دوم, 100%"),
              {{QStringLiteral("6260000000017"), 2.125, 5000, 10625},
               {QStringLiteral("A,B"), 1, 1875.5, 1875.5}}},
             {18, QStringLiteral("13"), QStringLiteral("1404/01/06"), 0, 0, {}, {}}}};
}

// The file with its body replaced and the trailer made to match again.
QByteArray resealed(const QByteArray& body, int records) {
    return body + "END," + QByteArray::number(records) + ',' +
           QCryptographicHash::hash(body, QCryptographicHash::Sha256).toHex() + '\n';
}

TEST(TransferFileTest, WhatIsWrittenReadsBackTheSame) {
    const QByteArray bytes = TransferFile::write(sample());
    QString problem;
    const std::optional<TransferBatch> back = TransferFile::parse(bytes, &problem);
    ASSERT_TRUE(back.has_value()) << problem.toStdString();
    EXPECT_EQ(*back, sample());
    // Separators inside fields are escaped: every record keeps its number of fields.
    const QList<QByteArray> lines = bytes.split('\n');
    EXPECT_EQ(lines.at(0).count(','), 4);
    EXPECT_EQ(lines.at(1).count(','), 7);
    EXPECT_EQ(lines.at(3).count(','), 4);
}

TEST(TransferFileTest, AFileNotWholeOrChangedIsRefused) {
    const QByteArray good = TransferFile::write(sample());
    const QByteArray body = good.left(good.lastIndexOf("END"));
    QByteArray flipped = good;
    flipped[good.size() / 2] = static_cast<char>(flipped.at(good.size() / 2) ^ 1);
    QByteArray crlf = good;
    crlf.replace('\n', "\r\n");
    const struct {
        const char* name;
        QByteArray bytes;
    } cases[] = {
        {"empty", {}},
        {"a line break only", QByteArrayLiteral("\n")},
        {"last newline lost", good.chopped(1)},
        {"cut in the middle", good.left(good.size() / 2)},
        {"no trailer", body},
        {"one bit changed", flipped},
        {"line ends changed", crlf},
        {"trailer count wrong", resealed(body, 5)},
        {"a line record dropped",
         resealed(QByteArray(body).replace("L,A%2CB,1,1875.5,1875.5\n", ""), 3)},
        {"unknown version", resealed(QByteArray(body).replace(",1,", ",2,"), 4)},
        {"bad escape", resealed(QByteArray(body).replace("%2C", "%2X"), 4)},
        {"a number not canonical", resealed(QByteArray(body).replace(",17,", ",017,"), 4)},
        {"not a number", resealed(QByteArray(body).replace(",2.125,", ",nan,"), 4)},
        {"a quantity below zero", resealed(QByteArray(body).replace(",2.125,", ",-2.125,"), 4)},
        {"a quantity of zero", resealed(QByteArray(body).replace(",2.125,", ",0,"), 4)},
        {"invoice given twice", resealed(QByteArray(body).replace("H,18,", "H,17,"), 4)},
        {"not UTF-8", resealed(QByteArray(body).replace("1404/01/06", "\xff\xfe"), 4)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QString problem;
        EXPECT_FALSE(TransferFile::parse(c.bytes, &problem).has_value());
        EXPECT_FALSE(problem.isEmpty());
    }
}

}  // namespace
}  // namespace sandogh
