#pragma once

#include <QByteArray>
#include <QObject>
#include <QUrl>
#include <optional>

#include "WeightServiceConfig.h"

class QNetworkAccessManager;
class QNetworkReply;

namespace sandogh {

// Reads the weight on the scale from the scale service: an HTTP GET of
// "/ScaleTools/GetWeight" whose answer text is the weight.
class WeightService : public QObject {
    Q_OBJECT

public:
    static constexpr const char* kPath = "/ScaleTools/GetWeight";

    explicit WeightService(const WeightServiceConfig& config, QObject* parent = nullptr);

    // The address asked; invalid when no host is configured.
    QUrl url() const;

    // Asks for the weight; the answer comes as weightRead or noWeight.
    void requestWeight();
    // Asks and waits for the answer, at most the configured time-out, with the
    // event loop running meanwhile. Nothing when there is no usable answer.
    std::optional<double> readWeight();

    // The weight in an answer text: the whole text one number (blanks and one
    // pair of surrounding quotes allowed); nothing otherwise.
    static std::optional<double> parseWeight(const QByteArray& body);

signals:
    void weightRead(double weight);
    // No host, no connection, an error status, a time-out or an unreadable answer.
    void noWeight(const QString& reason);

private:
    QNetworkReply* startRequest();
    // The weight of a finished reply, or nothing with the reason; signals it too.
    std::optional<double> finish(QNetworkReply* reply);

    WeightServiceConfig m_config;
    QNetworkAccessManager* m_network;
};

}  // namespace sandogh
