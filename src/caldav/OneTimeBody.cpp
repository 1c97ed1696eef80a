#include "caldav/OneTimeBody.h"

#include <algorithm>

OneTimeBody::OneTimeBody(const QByteArray &data, QObject *parent)
    : QIODevice(parent)
    , m_data(data)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool OneTimeBody::seek(qint64 pos)
{
    // An empty body is never read, so it does not know whether it went out.
    return pos == 0 && m_readBytes == 0 && !m_data.isEmpty();
}

qint64 OneTimeBody::readData(char *data, qint64 maxSize)
{
    const qint64 bytes = std::min(maxSize, m_data.size() - m_readBytes);
    if (bytes == 0)
        return -1;
    std::copy_n(m_data.constData() + m_readBytes, bytes, data);
    m_readBytes += bytes;
    return bytes;
}

qint64 OneTimeBody::writeData(const char *, qint64)
{
    return -1;
}
