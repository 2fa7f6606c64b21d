#include "WeightService.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include "common/AmountText.h"

namespace sandogh {

WeightService::WeightService(const WeightServiceConfig& config, QObject* parent)
    : QObject(parent), m_config(config), m_network(new QNetworkAccessManager(this)) {}

QUrl WeightService::url() const {
    QString base = m_config.host.trimmed();
    if (base.isEmpty())
        return {};
    if (!base.contains(QLatin1String("://")))
        base.prepend(QLatin1String("http://"));
    while (base.endsWith(QLatin1Char('/')))
        base.chop(1);
    return QUrl(base + QLatin1String(kPath));
}

QNetworkReply* WeightService::startRequest() {
    const QUrl address = url();
    if (!address.isValid() || address.host().isEmpty()) {
        emit noWeight(QStringLiteral("no scale service configured"));
        return nullptr;
    }
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/x-www-form-urlencoded"));
    request.setTransferTimeout(m_config.timeoutMs);
    return m_network->get(request);
}

void WeightService::requestWeight() {
    QNetworkReply* reply = startRequest();
    if (reply)
        connect(reply, &QNetworkReply::finished, this, [this, reply] { finish(reply); });
}

std::optional<double> WeightService::readWeight() {
    QNetworkReply* reply = startRequest();
    if (!reply)
        return std::nullopt;
    if (!reply->isFinished()) {
        // Bounded by the transfer time-out, which ends the reply.
        QEventLoop loop;
        connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return finish(reply);
}

std::optional<double> WeightService::finish(QNetworkReply* reply) {
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        emit noWeight(reply->errorString());
        return std::nullopt;
    }
    const auto weight = parseWeight(reply->readAll());
    if (weight) {
        emit weightRead(*weight);
    } else {
        emit noWeight(QStringLiteral("the scale service's answer is not a weight"));
    }
    return weight;
}

std::optional<double> WeightService::parseWeight(const QByteArray& body) {
    QByteArray text = body.trimmed();
    if (text.size() >= 2 && text.startsWith('"') && text.endsWith('"')) {
        text = text.mid(1, text.size() - 2).trimmed();
    }
    if (text.isEmpty())
        return std::nullopt;
    return AmountText::parseStrict(std::string_view(text.constData(), text.size()));
}

}  // namespace sandogh
