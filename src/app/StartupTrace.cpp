#include "app/StartupTrace.h"

#include "ui/surfaces/TimelineWidget.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

Q_LOGGING_CATEGORY(lcStartup, "calendar.startup", QtInfoMsg)

void StartupTrace::watch(QObject *parent)
{
    if (lcStartup().isDebugEnabled())
        QCoreApplication::instance()->installEventFilter(new StartupTrace(parent));
}

bool StartupTrace::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && qobject_cast<TimelineWidget *>(watched)) {
        QCoreApplication::instance()->removeEventFilter(this);
        // The event is still on its way to the widget; a queued call comes after it.
        QTimer::singleShot(0, this, [] { qCDebug(lcStartup) << "first painted"; });
    }
    return QObject::eventFilter(watched, event);
}
