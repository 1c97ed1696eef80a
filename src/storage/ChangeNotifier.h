#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

/// Gathers a burst of writes into one signal: 150 ms after the last one, with the last id.
class ChangeNotifier : public QObject {
    Q_OBJECT

public:
    static constexpr int DelayMs = 150;

    explicit ChangeNotifier(QObject *parent = nullptr);

    void notify(const QString &calendarId);

signals:
    void changed(const QString &calendarId);

private:
    QTimer m_timer;
    QString m_calendarId;
};
