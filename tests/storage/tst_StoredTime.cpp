#include "storage/StoredTime.h"

#include <QTest>
#include <QTimeZone>

class tst_StoredTime : public QObject {
    Q_OBJECT

private slots:
    void readsAsQtDoes_data();
    void readsAsQtDoes();
    void readsStampsOfSqliteAsUtc();
    void keepsInstantsAndForms_data();
    void keepsInstantsAndForms();
    void storesInvalidAsNull();
    void wholeDaysKeepTheirDate();
    void showsInKnownZonesOnly();
    void keepsTheClockOfAnUnknownZone_data();
    void keepsTheClockOfAnUnknownZone();
};

void tst_StoredTime::readsAsQtDoes_data()
{
    QTest::addColumn<QString>("text");
    for (const auto *text : { "2026-05-01T10:20:30Z",
                              "2026-05-01T10:20:30",
                              "2026-05-01T10:20:30+02:00",
                              "2026-05-01T10:20:30-11:30",
                              "2026-05-01T10:20:30+14:00",
                              "2026-05-01T10:20:30-14:00",
                              "2026-05-01T10:20:30+15:00",
                              "2026-05-01T10:20:30+00:00",
                              "2026-05-01T10:20:30-00:30",
                              "2026-05-01T10:20:30+02:60",
                              "2026-05-01T10:20:30.123Z",
                              "2026-05-01T24:00:00Z",
                              "2026-05-01T24:00:01Z",
                              "2026-05-01T25:00:00Z",
                              "2026-05-01T10:60:00Z",
                              "2026-05-01T23:59:60Z",
                              "2026-02-29T10:00:00Z",
                              "2024-02-29T10:00:00Z",
                              "2026-13-01T10:00:00Z",
                              "2026-05-01",
                              "2026-05-01T10:20",
                              "2026-05-01T10:20Z",
                              "2026-05-01 10:20:30",
                              "2026-05-01t10:20:30Z",
                              "2026-05-01T10:20:30z",
                              "0000-01-01T00:00:00Z",
                              "0001-01-01T00:00:00Z",
                              "9999-12-31T23:59:59Z",
                              "-001-01-01T00:00:00Z",
                              "2026-05-01T10:20:30+0200",
                              "2026-05-01T10:20:30*02:00",
                              "2026-05-01T10:20:30+a2:00",
                              "2026-05-01T1a:20:30Z",
                              "2026/05/01T10:20:30Z",
                              "2026-05-01T10.20.30Z",
                              "garbage",
                              "garbage garbage gar",
                              "garbage garbage garb",
                              "",
                              "Z",
                              "T",
                              "2026-03-29T02:30:00",
                              "2026-05-01T10:20:30Zzzzzz" })
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_StoredTime::readsAsQtDoes()
{
    QFETCH(QString, text);
    const QDateTime expected = QDateTime::fromString(text, Qt::ISODate);
    const QDateTime actual = StoredTime::parse(text);
    QCOMPARE(actual.isValid(), expected.isValid());
    if (!expected.isValid())
        return;
    QCOMPARE(actual, expected);
    QCOMPARE(actual.timeSpec(), expected.timeSpec());
    QCOMPARE(actual.offsetFromUtc(), expected.offsetFromUtc());
}

void tst_StoredTime::readsStampsOfSqliteAsUtc()
{
    const QDateTime expected(QDate(2026, 5, 1), QTime(10, 20, 30), Qt::UTC);
    QCOMPARE(StoredTime::parseStamp(QStringLiteral("2026-05-01 10:20:30")), expected);
    QCOMPARE(StoredTime::parseStamp(QStringLiteral("2026-05-01T10:20:30Z")), expected);
    QVERIFY(!StoredTime::parseStamp(QStringLiteral("2026-99-01 10:20:30")).isValid());
}

void tst_StoredTime::keepsInstantsAndForms_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QString>("text");
    const QDate date(2026, 7, 4);
    const QTime time(9, 5, 1, 999);
    QTest::newRow("UTC") << QDateTime(date, time, Qt::UTC) << QStringLiteral("2026-07-04T09:05:01Z");
    QTest::newRow("offset") << QDateTime(date, time, Qt::OffsetFromUTC, -12600)
                            << QStringLiteral("2026-07-04T09:05:01-03:30");
    QTest::newRow("zone") << QDateTime(date, time, QTimeZone("Europe/Berlin"))
                          << QStringLiteral("2026-07-04T09:05:01+02:00");
    // Local mean time, 53 minutes and 28 seconds ahead.
    QTest::newRow("zone with seconds") << QDateTime(QDate(1890, 1, 2), QTime(9, 0), QTimeZone("Europe/Berlin"))
                                       << QStringLiteral("1890-01-02T08:06:32Z");
    QTest::newRow("offset with seconds") << QDateTime(date, time, Qt::OffsetFromUTC, -30)
                                         << QStringLiteral("2026-07-04T09:05:31Z");
    QTest::newRow("local") << QDateTime(date, time) << QStringLiteral("2026-07-04T09:05:01");
}

void tst_StoredTime::keepsInstantsAndForms()
{
    QFETCH(QDateTime, time);
    QFETCH(QString, text);
    QCOMPARE(StoredTime::store(time).toString(), text);
    QCOMPARE(StoredTime::parse(text).toSecsSinceEpoch(), time.toSecsSinceEpoch());
}

void tst_StoredTime::storesInvalidAsNull()
{
    QVERIFY(StoredTime::store(QDateTime()).isNull());
    // Qt's ISO form has no years of five digits.
    QVERIFY(StoredTime::store(QDateTime(QDate(10000, 1, 1), QTime(0, 0), Qt::UTC)).isNull());
}

void tst_StoredTime::wholeDaysKeepTheirDate()
{
    const QDateTime expected(QDate(2026, 7, 4), QTime(0, 0), Qt::UTC);
    QCOMPARE(StoredTime::wholeDay(QDateTime(QDate(2026, 7, 4), QTime(0, 0), QTimeZone("Pacific/Kiritimati"))),
             expected);
    QCOMPARE(StoredTime::wholeDay(QDateTime(QDate(2026, 7, 4), QTime(23, 59), Qt::OffsetFromUTC, -39600)), expected);
    QVERIFY(!StoredTime::wholeDay(QDateTime()).isValid());
}

void tst_StoredTime::showsInKnownZonesOnly()
{
    const QDateTime utc(QDate(2026, 7, 4), QTime(12, 0), Qt::UTC);
    const QDateTime shown = StoredTime::inZone(utc, QStringLiteral("Asia/Kolkata"));
    QCOMPARE(shown.time(), QTime(17, 30));
    QCOMPARE(shown, utc);
    for (const auto *id : { "", "UTC", "Nowhere/Atall" })
        QCOMPARE(StoredTime::inZone(utc, QString::fromLatin1(id)).timeSpec(), Qt::UTC);
}

void tst_StoredTime::keepsTheClockOfAnUnknownZone_data()
{
    QTest::addColumn<QString>("id");
    // QTimeZone takes the words for POSIX rules and follows the paths.
    for (const auto *id : { "Foo", "Mars", "Eastern", "ABC5", "../zoneinfo/America/New_York", "../../../etc/localtime",
                            "/usr/share/zoneinfo/America/New_York", "Europe/../America/New_York", "Europe//Paris" })
        QTest::newRow(id) << QString::fromLatin1(id);
}

void tst_StoredTime::keepsTheClockOfAnUnknownZone()
{
    QFETCH(QString, id);
    const QDate date(2026, 3, 25); // four days before the clock change
    const QDateTime berlin(date, QTime(9, 0), QTimeZone("Europe/Berlin"));
    const QDateTime shown = StoredTime::inZone(berlin, id);
    QCOMPARE(shown.toUTC(), QDateTime(date, QTime(8, 0), Qt::UTC));
    QCOMPARE(shown.addDays(7).toUTC(), QDateTime(date.addDays(7), QTime(7, 0), Qt::UTC));
    QCOMPARE(StoredTime::inZone(QDateTime(date, QTime(9, 0)), id).timeSpec(), Qt::LocalTime);
}

QTEST_GUILESS_MAIN(tst_StoredTime)
#include "tst_StoredTime.moc"
