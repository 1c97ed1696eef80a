#include "caldav/SilenceGuard.h"

#include <QPointer>
#include <QTimer>

#include <utility>

namespace {

int haste = 1;

}

SilenceGuard::SilenceGuard(CalDavClient *client, QObject *parent)
    : QObject(parent)
    , m_client(client)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, [this] {
        m_client->abort();
        CalDavClient::Response silence;
        silence.error = tr("The server has stopped answering.");
        finish(silence);
    });
    connect(client, &CalDavClient::sent, this, [this] { wait(m_firstByteMs); });
    connect(client, &CalDavClient::heard, this, [this] { wait(SilenceMs); });
}

CalDavClient::Callback SilenceGuard::guarded(int firstByteMs, CalDavClient::Callback next)
{
    stop();
    m_next = std::move(next);
    m_firstByteMs = firstByteMs;
    m_timer->start(firstByteMs / haste);
    return [self = QPointer(this), request = m_request](const CalDavClient::Response &response) {
        if (self && request == self->m_request)
            self->finish(response);
    };
}

void SilenceGuard::finish(const CalDavClient::Response &response)
{
    m_timer->stop();
    if (const auto next = std::exchange(m_next, nullptr))
        next(response);
}

void SilenceGuard::wait(int silenceMs)
{
    if (m_timer->isActive())
        m_timer->start(silenceMs / haste);
}

void SilenceGuard::stop()
{
    ++m_request;
    m_timer->stop();
    m_next = nullptr;
}

void SilenceGuard::setHaste(int factor)
{
    haste = factor;
}
