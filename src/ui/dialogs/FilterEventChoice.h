#pragma once

#include <QComboBox>
#include <QList>
#include <QString>

struct Event;

/// Chooses the one event (with all its occurrences) that a rule is for.
class FilterEventChoice : public QComboBox {
    Q_OBJECT

public:
    explicit FilterEventChoice(QWidget *parent = nullptr);

    /// Offers the events, each series once, below the chosen one.
    void offer(const QList<Event> &events);
    /// \p title may be empty if the event is not on this device.
    void choose(const QString &uid, const QString &calendarId, const QString &title);

    [[nodiscard]] QString eventUid() const;
    [[nodiscard]] QString eventCalendarId() const;
};
