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
    connect(client, &CalDavClient::heard, this, [this] {
        if (m_timer->isActive())
            m_timer->start(SilenceMs / haste);
    });
}

void SilenceGuard::watch(int firstByteMs, std::function<void()> onSilence)
{
    m_onSilence = std::move(onSilence);
    m_timer->start(firstByteMs / haste);
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
