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
    if (origin == ChangeOrigin::User)
        m_origin = origin;
    m_calendarId = calendarId;
    m_timer.start();
}
