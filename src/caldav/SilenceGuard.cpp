#include "caldav/SilenceGuard.h"

#include "caldav/CalDavClient.h"

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
    connect(m_timer, &QTimer::timeout, this, &SilenceGuard::onTimeout);
    connect(client, &CalDavClient::sent, this, [this] { wait(m_firstByteMs); });
    connect(client, &CalDavClient::heard, this, [this] { wait(SilenceMs); });
}

void SilenceGuard::watch(int firstByteMs, std::function<void()> onSilence)
{
    m_onSilence = std::move(onSilence);
    m_firstByteMs = firstByteMs;
    m_timer->start(firstByteMs / haste);
}

void SilenceGuard::wait(int silenceMs)
{
    if (m_timer->isActive())
        m_timer->start(silenceMs / haste);
}

void SilenceGuard::stop()
{
    m_timer->stop();
    m_onSilence = nullptr;
}

QString SilenceGuard::message()
{
    return tr("The server has stopped answering.");
}

void SilenceGuard::setHaste(int factor)
{
    haste = factor;
}

void SilenceGuard::onTimeout()
{
    m_client->abort();
    if (const auto onSilence = std::exchange(m_onSilence, nullptr))
        onSilence();
}
