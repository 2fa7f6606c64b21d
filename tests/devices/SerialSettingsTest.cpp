#include <gtest/gtest.h>

#include "devices/SerialSettings.h"

using sandogh::SerialSettings;

namespace {

TEST(SerialSettings, ParsesEveryPartAndWritesItBackNormalised) {
    using P = QSerialPort;
    const struct {
        const char* text;
        qint32 baud;
        P::Parity parity;
        P::DataBits bits;
        P::StopBits stop;
        const char* normalised;
    } cases[] = {
        {"9600,n,8,1", 9600, P::NoParity, P::Data8, P::OneStop, "9600,n,8,1"},
        {"19200,N,8,1", 19200, P::NoParity, P::Data8, P::OneStop, "19200,n,8,1"},
        {"115200,n,8,1", 115200, P::NoParity, P::Data8, P::OneStop, "115200,n,8,1"},
        {"1200,E,7,2", 1200, P::EvenParity, P::Data7, P::TwoStop, "1200,e,7,2"},
        {"300,o,5,1.5", 300, P::OddParity, P::Data5, P::OneAndHalfStop, "300,o,5,1.5"},
        {"4800,M,6,1", 4800, P::MarkParity, P::Data6, P::OneStop, "4800,m,6,1"},
        {" 57600 , s , 8 , 1 ", 57600, P::SpaceParity, P::Data8, P::OneStop, "57600,s,8,1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const auto s = SerialSettings::parse(QString::fromLatin1(c.text));
        ASSERT_TRUE(s.has_value());
        EXPECT_EQ(s->baudRate, c.baud);
        EXPECT_EQ(s->parity, c.parity);
        EXPECT_EQ(s->dataBits, c.bits);
        EXPECT_EQ(s->stopBits, c.stop);
        EXPECT_EQ(s->toText(), QString::fromLatin1(c.normalised));
    }
}

TEST(SerialSettings, RefusesWhatIsNotFourValidParts) {
    for (const char* text :
         {"", "9600", "9600,n,8", "9600,n,8,1,1", "fast,n,8,1", "0,n,8,1", "-9600,n,8,1",
          "9600,x,8,1", "9600,n,9,1", "9600,n,4,1", "9600,n,8,3", "9600,n,8,0", "9600,,8,1"}) {
        EXPECT_FALSE(SerialSettings::parse(QString::fromLatin1(text)).has_value()) << text;
    }
}

}  // namespace
