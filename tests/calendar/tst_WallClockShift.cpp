#include "calendar/WallClockShift.h"
#include "support/TestData.h"

#include <QTimeZone>

class tst_WallClockShift : public QObject {
    Q_OBJECT

private slots:
    void shifts_data()
    {
        // Given in UTC. New York has UTC-5, and UTC-4 from 2026-03-08T02:00 to 2026-11-01T02:00.
        columns<QDateTime, int, int, QDateTime>("from", "days", "seconds", "to");
        row("the second of two equal hours stays", utc("2026-11-01T06:30"), 0, 0, utc("2026-11-01T06:30"));
        row("over the change in spring", utc("2026-03-07T14:00"), 1, 0, utc("2026-03-08T13:00"));
        row("back over it", utc("2026-03-08T13:00"), -1, 1'800, utc("2026-03-07T14:30"));
        row("to an earlier hour", utc("2026-03-07T04:30"), 2, -79'200, utc("2026-03-08T06:30"));
        row("into the hour that comes twice", utc("2026-10-31T05:30"), 1, 0, utc("2026-11-01T05:30"));
    }
    void shifts()
    {
        QFETCH(QDateTime, from);
        QFETCH(int, days);
        QFETCH(int, seconds);
        QFETCH(QDateTime, to);
        from = from.toTimeZone(QTimeZone("America/New_York"));
        const WallClockShift shift{ days, seconds };
        QCOMPARE(shift.applied(from), to);
        QCOMPARE(WallClockShift::between(from, to.toTimeZone(QTimeZone("Asia/Tokyo"))), shift);
    }
};

QTEST_GUILESS_MAIN(tst_WallClockShift)
#include "tst_WallClockShift.moc"
