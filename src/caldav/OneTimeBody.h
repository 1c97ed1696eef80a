#pragma once

#include <QByteArray>
#include <QIODevice>

/// The body of a request that may be sent once only: once read, it cannot be rewound. QNetworkAccessManager sends a
/// request again by itself if the connection closes before the answer, and would then report what the second one met
/// (RFC 9110 §9.2.2); with this body it reports an error.
class OneTimeBody : public QIODevice {
public:
    OneTimeBody(const QByteArray &data, QObject *parent);

    [[nodiscard]] qint64 size() const override { return m_data.size(); }
    bool seek(qint64 pos) override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 maxSize) override;

private:
    QByteArray m_data;
    qint64 m_readBytes = 0;
};
