#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTcpSocket>

#include "WaitUntil.h"
#include "devices/WeightService.h"

using sandogh::WeightService;
using sandogh::WeightServiceConfig;
using sandogh::test::waitUntil;

namespace {

// A minimal scale service: answers every request with the given status and
// body and remembers what it was asked.
class ScaleServer : public QObject {
public:
    ScaleServer(int status, QByteArray body, bool answer = true)
        : m_status(status), m_body(std::move(body)), m_answer(answer) {
        m_server.listen(QHostAddress::LocalHost, 0);
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* s = m_server.nextPendingConnection()) {
                connect(s, &QTcpSocket::readyRead, this, [this, s] { onData(s); });
            }
        });
    }

    QString host() const { return QStringLiteral("127.0.0.1:%1").arg(m_server.serverPort()); }

    QByteArray method;
    QByteArray path;
    QByteArray contentType;
    int requests = 0;

private:
    void onData(QTcpSocket* s) {
        m_pending[s] += s->readAll();
        const QByteArray& got = m_pending[s];
        const qsizetype end = got.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        const QList<QByteArray> lines = got.left(end).split('\n');
        const QList<QByteArray> first = lines.value(0).trimmed().split(' ');
        method = first.value(0);
        path = first.value(1);
        for (const QByteArray& line : lines.mid(1)) {
            const qsizetype colon = line.indexOf(':');
            if (colon > 0 && line.left(colon).trimmed().toLower() == "content-type") {
                contentType = line.mid(colon + 1).trimmed();
            }
        }
        ++requests;
        if (!m_answer)
            return;  // a service that hangs
        s->write("HTTP/1.1 " + QByteArray::number(m_status) + " X\r\nContent-Length: " +
                 QByteArray::number(m_body.size()) + "\r\nConnection: close\r\n\r\n" + m_body);
        s->disconnectFromHost();
    }

    QTcpServer m_server;
    int m_status;
    QByteArray m_body;
    bool m_answer;
    QHash<QTcpSocket*, QByteArray> m_pending;
};

TEST(WeightService, AsksTheServiceAsTheScaleExpects) {
    ScaleServer server(200, "1.250");
    WeightService service(WeightServiceConfig{server.host(), 5000});
    const auto weight = service.readWeight();
    ASSERT_TRUE(weight.has_value());
    EXPECT_DOUBLE_EQ(*weight, 1.25);
    EXPECT_EQ(server.method, QByteArray("GET"));
    EXPECT_EQ(server.path, QByteArray("/ScaleTools/GetWeight"));
    EXPECT_EQ(server.contentType, QByteArray("application/x-www-form-urlencoded"));
}

struct AnswerCase {
    int status;
    const char* body;
    bool has;
    double weight;
};

class WeightAnswers : public ::testing::TestWithParam<AnswerCase> {};

TEST_P(WeightAnswers, AreReadAsAWeightOrNothing) {
    const AnswerCase& c = GetParam();
    ScaleServer server(c.status, QByteArray(c.body));
    WeightService service(WeightServiceConfig{server.host(), 5000});
    const auto weight = service.readWeight();
    ASSERT_EQ(weight.has_value(), c.has) << c.body;
    if (weight) {
        EXPECT_DOUBLE_EQ(*weight, c.weight);
    }
    EXPECT_EQ(server.requests, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, WeightAnswers,
    ::testing::Values(AnswerCase{200, "0.5", true, 0.5}, AnswerCase{200, " 12 \r\n", true, 12.0},
                      AnswerCase{200, "\"2.75\"", true, 2.75}, AnswerCase{200, "0", true, 0.0},
                      AnswerCase{200, "", false, 0}, AnswerCase{200, "abc", false, 0},
                      AnswerCase{200, "1.5kg", false, 0}, AnswerCase{500, "1.5", false, 0},
                      AnswerCase{404, "", false, 0}));

TEST(WeightService, SilentServiceEndsAtTheTimeOut) {
    ScaleServer server(200, "1", false);
    WeightService service(WeightServiceConfig{server.host(), 200});
    QString reason;
    QObject::connect(&service, &WeightService::noWeight, [&](const QString& r) { reason = r; });
    EXPECT_FALSE(service.readWeight().has_value());
    EXPECT_EQ(server.requests, 1);
    EXPECT_FALSE(reason.isEmpty());
}

TEST(WeightService, NoServiceListeningGivesNoWeight) {
    quint16 port = 0;
    {
        QTcpServer probe;
        ASSERT_TRUE(probe.listen(QHostAddress::LocalHost, 0));
        port = probe.serverPort();
    }
    WeightService service(WeightServiceConfig{QStringLiteral("127.0.0.1:%1").arg(port), 2000});
    EXPECT_FALSE(service.readWeight().has_value());
}

struct UrlCase {
    const char* host;
    const char* url;
};

class WeightUrl : public ::testing::TestWithParam<UrlCase> {};

TEST_P(WeightUrl, PutsThePathOnTheConfiguredHost) {
    WeightService service(WeightServiceConfig{QString::fromLatin1(GetParam().host), 1000});
    EXPECT_EQ(service.url().toString(), QString::fromLatin1(GetParam().url));
}

INSTANTIATE_TEST_SUITE_P(
    Hosts, WeightUrl,
    ::testing::Values(UrlCase{"192.168.1.20", "http://192.168.1.20/ScaleTools/GetWeight"},
                      UrlCase{"scale:8080", "http://scale:8080/ScaleTools/GetWeight"},
                      UrlCase{" http://scale:8080/ ", "http://scale:8080/ScaleTools/GetWeight"},
                      UrlCase{"https://scale", "https://scale/ScaleTools/GetWeight"}));

}  // namespace
