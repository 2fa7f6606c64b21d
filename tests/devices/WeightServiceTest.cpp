#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTcpSocket>

#include "WaitUntil.h"
#include "devices/WeightService.h"

namespace sandogh::test {
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

    QByteArray head;  // the request line and headers of the last request, each ending in CRLF
    int requests = 0;

private:
    void onData(QTcpSocket* s) {
        m_pending[s] += s->readAll();
        const qsizetype end = m_pending[s].indexOf("\r\n\r\n");
        if (end < 0)
            return;
        head = m_pending[s].left(end + 2);
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

TEST(WeightService, AsksTheServiceAsTheScaleExpectsAndReadsAWeightOrNothing) {
    const struct {
        int status;
        const char* body;
        bool has;
        double weight;
    } cases[] = {
        {200, "1.250", true, 1.25}, {200, " 12 \r\n", true, 12.0}, {200, "\"2.75\"", true, 2.75},
        {200, "0", true, 0.0},      {200, "", false, 0},           {200, "abc", false, 0},
        {200, "1.5kg", false, 0},   {500, "1.5", false, 0},        {404, "", false, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.body);
        ScaleServer server(c.status, QByteArray(c.body));
        WeightService service(WeightServiceConfig{server.host(), 5000});
        const auto weight = service.readWeight();
        ASSERT_EQ(weight.has_value(), c.has);
        if (weight) {
            EXPECT_DOUBLE_EQ(*weight, c.weight);
        }
        EXPECT_EQ(server.requests, 1);
        EXPECT_TRUE(server.head.startsWith("GET /ScaleTools/GetWeight HTTP/"))
            << server.head.toStdString();
        EXPECT_TRUE(server.head.toLower().contains(
            "\r\ncontent-type: application/x-www-form-urlencoded\r\n"))
            << server.head.toStdString();
    }
}

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

TEST(WeightService, PutsThePathOnTheConfiguredHost) {
    const struct {
        const char* host;
        const char* url;
    } cases[] = {{"192.168.1.20", "http://192.168.1.20/ScaleTools/GetWeight"},
                 {"scale:8080", "http://scale:8080/ScaleTools/GetWeight"},
                 {" http://scale:8080/ ", "http://scale:8080/ScaleTools/GetWeight"},
                 {"https://scale", "https://scale/ScaleTools/GetWeight"}};
    for (const auto& c : cases) {
        WeightService service(WeightServiceConfig{QString::fromLatin1(c.host), 1000});
        EXPECT_EQ(service.url().toString(), QString::fromLatin1(c.url));
    }
}

}  // namespace
}  // namespace sandogh::test
