#pragma once

#include "models/Event.h"

#include <QByteArray>
#include <QCache>
#include <QDate>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class AppState;

/// What a surface draws for a span of days.
struct VisibleSpan {
    QList<Event> events; ///< instances that overlap the span, without hidden ones, by start
    QSet<QString> dimmedIds; ///< event ids
    int hiddenCount = 0; ///< instances that a filter hid
    QHash<QString, QString> calendarColors; ///< calendar id to colour, for all live calendars
};

/// The one display pipeline: visible calendars, range query, expansion, exact window, filters. Results
/// are kept until stored data, the active group, or the machine's zone changes, so that a surface, the
/// statistics and the mini month share them.
class VisibleEvents : public QObject {
    Q_OBJECT

public:
    explicit VisibleEvents(AppState *state, QObject *parent = nullptr);

    /// The calendars on show: the live ones of the active group; if the group is missing, its text is
    /// no JSON array or nothing is left of it, the visible ones.
    static QStringList calendarIds(AppState *state);

    /// What shows in the local days [\p first, \p first + \p days). Timed events count by instant, all-day
    /// events by their stored dates. Never null.
    QSharedPointer<const VisibleSpan> inRange(QDate first, int days);

    /// The same span before filters, for previews: every instance of the visible calendars.
    QList<Event> unfilteredInRange(QDate first, int days);

private:
    void dropStale();
    [[nodiscard]] QString spanKey(QDate first, int days) const;

    AppState *m_state;
    QCache<QString, QSharedPointer<const VisibleSpan>> m_spans;
    QString m_unfilteredKey;
    QList<Event> m_unfiltered; // of the last span asked for so
    quint64 m_generation = 0;
    QByteArray m_zoneId;
};
