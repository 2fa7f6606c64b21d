#include <gtest/gtest.h>

#include "devices/SerialSettings.h"

using sandogh::SerialSettings;

namespace {

struct ValidCase {
    const char* text;
    qint32 baud;
    QSerialPort::Parity parity;
    QSerialPort::DataBits bits;
    QSerialPort::StopBits stop;
    const char* normalised;
};

class SerialSettingsValid : public ::testing::TestWithParam<ValidCase> {};

TEST_P(SerialSettingsValid, ParsesEveryPart) {
    const ValidCase& c = GetParam();
    const auto s = SerialSettings::parse(QString::fromLatin1(c.text));
    ASSERT_TRUE(s.has_value()) << c.text;
    EXPECT_EQ(s->baudRate, c.baud);
    EXPECT_EQ(s->parity, c.parity);
    EXPECT_EQ(s->dataBits, c.bits);
    EXPECT_EQ(s->stopBits, c.stop);
    EXPECT_EQ(s->toText(), QString::fromLatin1(c.normalised));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, SerialSettingsValid,
    ::testing::Values(ValidCase{"9600,n,8,1", 9600, QSerialPort::NoParity, QSerialPort::Data8,
                                QSerialPort::OneStop, "9600,n,8,1"},
                      ValidCase{"19200,N,8,1", 19200, QSerialPort::NoParity, QSerialPort::Data8,
                                QSerialPort::OneStop, "19200,n,8,1"},
                      ValidCase{"2400,N,8,1", 2400, QSerialPort::NoParity, QSerialPort::Data8,
                                QSerialPort::OneStop, "2400,n,8,1"},
                      ValidCase{"115200,n,8,1", 115200, QSerialPort::NoParity, QSerialPort::Data8,
                                QSerialPort::OneStop, "115200,n,8,1"},
                      ValidCase{"1200,E,7,2", 1200, QSerialPort::EvenParity, QSerialPort::Data7,
                                QSerialPort::TwoStop, "1200,e,7,2"},
                      ValidCase{"300,o,5,1.5", 300, QSerialPort::OddParity, QSerialPort::Data5,
                                QSerialPort::OneAndHalfStop, "300,o,5,1.5"},
                      ValidCase{"4800,M,6,1", 4800, QSerialPort::MarkParity, QSerialPort::Data6,
                                QSerialPort::OneStop, "4800,m,6,1"},
                      ValidCase{" 57600 , s , 8 , 1 ", 57600, QSerialPort::SpaceParity,
                                QSerialPort::Data8, QSerialPort::OneStop, "57600,s,8,1"}));

class SerialSettingsInvalid : public ::testing::TestWithParam<const char*> {};

TEST_P(SerialSettingsInvalid, IsRefused) {
    EXPECT_FALSE(SerialSettings::parse(QString::fromLatin1(GetParam())).has_value()) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Texts, SerialSettingsInvalid,
                         ::testing::Values("", "9600", "9600,n,8", "9600,n,8,1,1", "fast,n,8,1",
                                           "0,n,8,1", "-9600,n,8,1", "9600,x,8,1", "9600,n,9,1",
                                           "9600,n,4,1", "9600,n,8,3", "9600,n,8,0", "9600,,8,1"));

}  // namespace
