#include "ui/ViewModes.h"

#include <QTest>

using ViewModes::Span;

class tst_ViewModes : public QObject {
    Q_OBJECT

private slots:
    void steps_data();
    void steps();
    void titles_data();
    void titles();
    void statisticsSpans_data();
    void statisticsSpans();
    void unknownModesBecomeWeek_data();
    void unknownModesBecomeWeek();
};

void tst_ViewModes::steps_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("fine");
    QTest::addColumn<QDate>("expected");
    const QDate day(2025, 11, 19);
    QTest::newRow("day") << "day" << day << 1 << false << QDate(2025, 11, 20);
    QTest::newRow("day with Control") << "day" << day << -1 << true << QDate(2025, 11, 18);
    QTest::newRow("week") << "week" << day << -1 << false << QDate(2025, 11, 12);
    QTest::newRow("days go by the horizon") << "days" << day << 1 << false << QDate(2025, 12, 3);
    QTest::newRow("days with Control") << "days" << day << 1 << true << QDate(2025, 11, 20);
    QTest::newRow("grid") << "grid" << day << -1 << false << QDate(2025, 11, 18);
    QTest::newRow("grid with Control") << "grid" << day << 1 << true << QDate(2025, 11, 26);
    QTest::newRow("31 January and a month") << "month" << QDate(2025, 1, 31) << 1 << false << QDate(2025, 2, 28);
    QTest::newRow("a year from a leap day") << "year" << QDate(2024, 2, 29) << 1 << false << QDate(2025, 2, 28);
}

void tst_ViewModes::steps()
{
    QFETCH(QString, mode);
    QFETCH(QDate, from);
    QFETCH(int, direction);
    QFETCH(bool, fine);
    QTEST(ViewModes::stepped(mode, from, direction, 14, fine), "expected");
}

void tst_ViewModes::titles_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("horizon");
    QTest::addColumn<Qt::DayOfWeek>("firstDay");
    QTest::addColumn<QString>("expected");
    const QDate day(2025, 11, 19); // a Wednesday
    QTest::newRow("year") << "year" << day << 7 << Qt::Monday << "2025";
    QTest::newRow("month") << "month" << day << 7 << Qt::Monday << "November 2025";
    QTest::newRow("week from Monday") << "week" << day << 7 << Qt::Monday << "Nov 17 – 23, 2025";
    QTest::newRow("week from Sunday") << "week" << day << 7 << Qt::Sunday << "Nov 16 – 22, 2025";
    QTest::newRow("week, a Sunday is its last day")
        << "week" << QDate(2025, 11, 23) << 7 << Qt::Monday << "Nov 17 – 23, 2025";
    QTest::newRow("week across months") << "week" << QDate(2025, 10, 31) << 7 << Qt::Monday << "Oct 27 – Nov 2, 2025";
    QTest::newRow("week across years") << "week" << QDate(2025, 12, 31) << 7 << Qt::Monday << "Dec 29 – Jan 4, 2026";
    QTest::newRow("3 days") << "days" << day << 3 << Qt::Monday << "Nov 19 – 21, 2025";
    QTest::newRow("14 days across months") << "days" << day << 14 << Qt::Monday << "Nov 19 – Dec 2, 2025";
    QTest::newRow("grid shows eight days") << "grid" << day << 7 << Qt::Monday << "Nov 19 – 26, 2025";
    QTest::newRow("day") << "day" << day << 7 << Qt::Monday << "Wednesday, November 19, 2025";
    QTest::newRow("today") << "day" << QDate(2025, 11, 22) << 7 << Qt::Monday << "Today · Saturday, November 22, 2025";
}

void tst_ViewModes::titles()
{
    QFETCH(QString, mode);
    QFETCH(QDate, date);
    QFETCH(int, horizon);
    QFETCH(Qt::DayOfWeek, firstDay);
    QTEST(ViewModes::title(mode, date, horizon, firstDay, QDate(2025, 11, 22)), "expected");
}

void tst_ViewModes::statisticsSpans_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QDate>("first");
    QTest::addColumn<int>("days");
    const QDate day(2025, 11, 19);
    QTest::newRow("day") << "day" << day << 1;
    QTest::newRow("week") << "week" << QDate(2025, 11, 17) << 7;
    QTest::newRow("days") << "days" << day << 10;
    QTest::newRow("grid") << "grid" << day << 8;
    QTest::newRow("month") << "month" << QDate(2025, 10, 27) << 42; // 1 November is a Saturday
    QTest::newRow("year, by its month") << "year" << QDate(2025, 10, 27) << 42;
    QTest::newRow("unknown") << "agenda" << day << 7;
}

void tst_ViewModes::statisticsSpans()
{
    QFETCH(QString, mode);
    QFETCH(QDate, first);
    QFETCH(int, days);
    const Span span = ViewModes::statisticsSpan(mode, QDate(2025, 11, 19), 10, Qt::Monday);
    QCOMPARE(span.first, first);
    QCOMPARE(span.days, days);
}

void tst_ViewModes::unknownModesBecomeWeek_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("expected");
    QTest::newRow("known") << "days"
                           << "days";
    QTest::newRow("list") << "list"
                          << "week";
    QTest::newRow("agenda") << "agenda"
                            << "week";
    QTest::newRow("empty") << ""
                           << "week";
}

void tst_ViewModes::unknownModesBecomeWeek()
{
    QFETCH(QString, mode);
    QTEST(ViewModes::normalized(mode, { QStringLiteral("day"), QStringLiteral("week"), QStringLiteral("days") }),
          "expected");
}

QTEST_GUILESS_MAIN(tst_ViewModes)
#include "tst_ViewModes.moc"
