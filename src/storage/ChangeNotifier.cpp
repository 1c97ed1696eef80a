#include "storage/ChangeNotifier.h"

#include <utility>

ChangeNotifier::ChangeNotifier(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(DelayMs);
    connect(&m_timer, &QTimer::timeout, this,
            [this] { emit changed(m_calendarId, std::exchange(m_origin, ChangeOrigin::Sync)); });
}

void ChangeNotifier::notify(const QString &calendarId, ChangeOrigin origin)
{
    m_calendarId = calendarId;
    // A pull writes for minutes on end: what the user did meanwhile is shown at once all the same.
    const bool userWaits = m_origin == ChangeOrigin::User && m_timer.isActive();
    if (origin == ChangeOrigin::User)
        m_origin = origin;
    if (origin == ChangeOrigin::User || !userWaits)
        m_timer.start();
}
