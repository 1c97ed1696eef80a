#pragma once

#include "storage/ChangeOrigin.h"

#include <QObject>
#include <QString>
#include <QTimer>

/// Gathers a burst of writes into one signal: 150 ms after the last one, with the last id. The user caused it if any
/// of the writes was the user's; those of a sync do not put it off.
class ChangeNotifier : public QObject {
    Q_OBJECT

public:
    static constexpr int DelayMs = 150;

    explicit ChangeNotifier(QObject *parent = nullptr);

    void notify(const QString &calendarId, ChangeOrigin origin);

signals:
    void changed(const QString &calendarId, ChangeOrigin origin);

private:
    QTimer m_timer;
    QString m_calendarId;
    ChangeOrigin m_origin = ChangeOrigin::Sync;
};
