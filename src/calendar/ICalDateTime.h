#pragma once

#include "calendar/ICalParser.h"
#include "calendar/WallClock.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>

namespace ICal {

/// Reads DATE and DATE-TIME values (RFC 5545 §3.3.4, §3.3.5), and remembers the zones it met.
class DateTimeReader {
public:
    DateTimeReader() = default;
    Q_DISABLE_COPY_MOVE(DateTimeReader)

    /// As ICalParser::parseDateTimeValue. A time that a clock change leaves out counts with the offset
    /// before the change, and of a time that occurs twice the first is meant.
    ICalParser::DateTimeValue read(QByteArrayView value, QByteArrayView tzid);

    /// The IANA name of the zone that \p tzid means, or \p tzid itself if no zone is found.
    const QString &zoneName(QByteArrayView tzid);

private:
    struct Zone {
        QString name;
        WallClock clock; // the machine's own if no zone was found
    };

    Zone &zoneOf(QByteArrayView tzid);

    QHash<QByteArray, Zone> m_zones;
    QByteArray m_lastTzid;
    Zone *m_lastZone = nullptr; // of m_lastTzid; in m_zones
};

/// As ICalParser::parseDurationSeconds.
qint64 durationSeconds(QByteArrayView value);

} // namespace ICal
