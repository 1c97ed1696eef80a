#include "support/TestData.h"
#include "ui/ViewModes.h"

#include <QtTest>

namespace {

const QDate Wednesday(2025, 11, 19);

}

class tst_ViewModes : public QObject {
    Q_OBJECT

private slots:
    void steps()
    {
        const auto stepped = [](const QString &mode, int direction, bool fine, QDate from = Wednesday) {
            return ViewModes::stepped(mode, from, direction, 14, fine);
        };
        QCOMPARE(stepped(u"day"_qs, -1, true), QDate(2025, 11, 18));
        QCOMPARE(stepped(u"week"_qs, -1, false), QDate(2025, 11, 12));
        QCOMPARE(stepped(u"days"_qs, 1, false), QDate(2025, 12, 3)); // by the horizon
        QCOMPARE(stepped(u"days"_qs, 1, true), QDate(2025, 11, 20));
        QCOMPARE(stepped(u"grid"_qs, -1, false), QDate(2025, 11, 18));
        QCOMPARE(stepped(u"grid"_qs, 1, true), QDate(2025, 11, 26));
        QCOMPARE(stepped(u"month"_qs, 1, false, QDate(2025, 1, 31)), QDate(2025, 2, 28));
        QCOMPARE(stepped(u"year"_qs, 1, false, QDate(2024, 2, 29)), QDate(2025, 2, 28));
    }

    void titles_data()
    {
        columns<QString, QDate, int, QString>("mode", "date", "horizon", "expected");
        row("year", "year", Wednesday, 7, "2025");
        row("month", "month", Wednesday, 7, "November 2025");
        row("week", "week", QDate(2025, 11, 23), 7, "Nov 17 – 23, 2025"); // a Sunday is its last day
        row("week across months", "week", QDate(2025, 10, 31), 7, "Oct 27 – Nov 2, 2025");
        row("week across years", "week", QDate(2025, 12, 31), 7, "Dec 29 – Jan 4, 2026");
        row("14 days", "days", Wednesday, 14, "Nov 19 – Dec 2, 2025");
        row("grid shows eight days", "grid", Wednesday, 7, "Nov 19 – 26, 2025");
        row("day", "day", Wednesday, 7, "Wednesday, November 19, 2025");
        row("today", "day", QDate(2025, 11, 22), 7, "Today · Saturday, November 22, 2025");
    }

    void titles()
    {
        QFETCH(QString, mode);
        QFETCH(QDate, date);
        QFETCH(int, horizon);
        QTEST(ViewModes::title(mode, date, horizon, Qt::Monday, QDate(2025, 11, 22)), "expected");
    }

    void statisticsSpans()
    {
        const auto check = [](const QString &mode, QDate first, int days) {
            const ViewModes::Span span = ViewModes::statisticsSpan(mode, Wednesday, 10, Qt::Monday);
            QCOMPARE(span.first, first);
            QCOMPARE(span.days, days);
        };
        check(u"day"_qs, Wednesday, 1);
        check(u"week"_qs, QDate(2025, 11, 17), 7);
        check(u"days"_qs, Wednesday, 10);
        check(u"grid"_qs, Wednesday, 8);
        check(u"month"_qs, QDate(2025, 10, 27), 42); // 1 November is a Saturday
        check(u"agenda"_qs, Wednesday, 7);
    }
};

QTEST_GUILESS_MAIN(tst_ViewModes)
#include "tst_ViewModes.moc"
