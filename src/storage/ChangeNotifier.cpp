#include "storage/ChangeNotifier.h"

ChangeNotifier::ChangeNotifier(QObject *parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(DelayMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { emit changed(m_calendarId); });
}

void ChangeNotifier::notify(const QString &calendarId)
{
    m_calendarId = calendarId;
    m_timer.start();
}
