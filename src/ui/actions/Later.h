#pragma once

#include <QMetaObject>

#include <utility>

/// Calls \p run from the event loop, unless \p context has gone by then. A dialog or a menu that opened from
/// inside a mouse or drop handler would keep the handler's widget waiting for its release.
template <typename Context, typename Run> void later(Context *context, Run run)
{
    QMetaObject::invokeMethod(context, std::move(run), Qt::QueuedConnection);
}
