#include "calendar/services/IcsImporter.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "support/ScratchState.h"

#include <QFile>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTest>
#include <QTimer>

namespace {

QByteArray vevent(const QByteArray &uid, const QByteArray &title, const QByteArray &more = "DTSTART:20260315T090000Z")
{
    return "BEGIN:VEVENT\r\nUID:" + uid + "\r\nSUMMARY:" + title + "\r\n" + more + "\r\nEND:VEVENT\r\n";
}

QByteArray manyEvents(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += vevent("many-" + QByteArray::number(i), "Event");
    return text;
}

}

class tst_IcsImporter : public QObject {
    Q_OBJECT

private slots:
    void init() { m_state = std::make_unique<ScratchState>(); }
    void cleanup() { m_state.reset(); }

    void readsFilesAndTellsWhatIsWrongWithThem();
    void refusesAFileThatIsTooLarge();
    void storesEventsAsPending();
    void importingAgainUpdatesTheRows();
    void anOverrideLeavesItsSeriesAlone();
    void aRowSeenTwiceInOneFileIsUpdated();
    void revivesATombstone();
    void sameUidInAnotherCalendarIsAnotherEvent();
    void skipsWhatCannotBeShown();
    void countsRefusedRows();
    void keepsTheEventLoopAlive();
    void brokenOffKeepsWholeSlices();

private:
    QString write(const QString &fileName, const QByteArray &text)
    {
        QFile file((*m_state).path(fileName));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write a scratch file");
        return file.fileName();
    }
    void read(IcsImporter &importer, const QStringList &paths);
    IcsImporter::Result import(const QByteArray &text, const QString &calendarId = ScratchState::calendarId());
    EventRepository *events() { return m_state->state()->events(); }
    QList<Event> stored() { return events()->getByCalendar(ScratchState::calendarId()); }

    std::unique_ptr<ScratchState> m_state;
};

void tst_IcsImporter::read(IcsImporter &importer, const QStringList &paths)
{
    QSignalSpy done(&importer, &IcsImporter::filesRead);
    importer.read(paths);
    QCOMPARE(done.count(), 0); // never before the call has returned
    QVERIFY(done.wait());
}

IcsImporter::Result tst_IcsImporter::import(const QByteArray &text, const QString &calendarId)
{
    IcsImporter importer(m_state->state());
    read(importer, { write(u"import.ics"_qs, text) });
    IcsImporter::Result result;
    QObject::connect(&importer, &IcsImporter::finished, this,
                     [&result](const IcsImporter::Result &finished) { result = finished; });
    QSignalSpy done(&importer, &IcsImporter::finished);
    importer.store(calendarId);
    if (!done.wait(20'000))
        qFatal("the import does not end");
    return result;
}

void tst_IcsImporter::readsFilesAndTellsWhatIsWrongWithThem()
{
    IcsImporter importer(m_state->state());
    QSignalSpy progress(&importer, &IcsImporter::progress);
    const QString good = write(u"good.ics"_qs, vevent("a", "A") + vevent("b", "B") + vevent("c", "C", "X:1"));
    const QString empty = write(u"empty.ics"_qs, QByteArray());
    const QString other = write(u"other.ics"_qs, "BEGIN:VTODO\nUID:t\nEND:VTODO\n" + vevent("", "no UID"));
    const QString missing = (*m_state).path(u"missing.ics"_qs);
    const QString directory = (*m_state).path(QString());
    read(importer, { missing, good, directory, empty, other });

    using FileError = IcsImporter::FileError;
    const QList<IcsImporter::File> &files = importer.files();
    QCOMPARE(files.size(), 5);
    QCOMPARE(files[0].path, missing);
    QCOMPARE(files[0].error, FileError::Unreadable);
    QCOMPARE(files[1].error, FileError::None);
    QCOMPARE(files[1].events.size(), 3);
    QCOMPARE(files[1].skipped.withoutStart, 1);
    QCOMPARE(files[2].error, FileError::Unreadable);
    QCOMPARE(files[3].error, FileError::NoEvents);
    QCOMPARE(files[4].error, FileError::NoEvents);
    QCOMPARE(files[4].skipped.withoutUid, 1);
    QCOMPARE(importer.eventCount(), 2);
    QCOMPARE(progress.last().first().toInt(), 100);

    read(importer, {});
    QCOMPARE(importer.eventCount(), 0);
}

void tst_IcsImporter::refusesAFileThatIsTooLarge()
{
    QFile large((*m_state).path(u"large.ics"_qs));
    QVERIFY(large.open(QIODevice::WriteOnly));
    large.write(vevent("a", "A"));
    QVERIFY(large.resize(IcsImporter::MaxFileBytes + 1)); // a hole, which takes no room on the disk
    large.close();
    IcsImporter importer(m_state->state());
    read(importer, { large.fileName(), write(u"good.ics"_qs, vevent("b", "B")) });
    QCOMPARE(importer.files().at(0).error, IcsImporter::FileError::TooLarge);
    QCOMPARE(importer.files().at(1).error, IcsImporter::FileError::None);
    QCOMPARE(importer.eventCount(), 1);
}

void tst_IcsImporter::storesEventsAsPending()
{
    const IcsImporter::Result result =
        import(vevent("a", "Lunch",
                      "DTSTART;TZID=Europe/Paris:20260315T123000\r\nDTEND;TZID=Europe/Paris:20260315T133000\r\n"
                      "BEGIN:VALARM\r\nTRIGGER:-PT15M\r\nEND:VALARM\r\nATTENDEE;CN=Ada:mailto:ada@e.org")
               + vevent("b", "Holiday", "DTSTART;VALUE=DATE:20260316"));
    QCOMPARE(result.imported, 2);
    QCOMPARE(result.updated, 0);
    QCOMPARE(result.failed, 0);
    const QList<Event> rows = stored();
    QCOMPARE(rows.size(), 2);
    QVERIFY(!rows[0].id.isEmpty() && rows[0].id != rows[1].id && !rows[0].id.contains(u'{'));
    QCOMPARE(rows[0].title, u"Lunch"_qs);
    QCOMPARE(rows[0].syncStatus, QString(SyncStatus::Pending));
    QCOMPARE(rows[0].startTime, QDateTime(QDate(2026, 3, 15), QTime(11, 30), Qt::UTC));
    QCOMPARE(rows[0].timezone, u"Europe/Paris"_qs);
    QCOMPARE(rows[0].reminders.size(), 1);
    QCOMPARE(rows[0].attendees.size(), 1);
    QVERIFY(rows[1].isAllDay);
    QCOMPARE(rows[1].startTime, QDateTime(QDate(2026, 3, 16), QTime(0, 0), Qt::UTC));
}

void tst_IcsImporter::importingAgainUpdatesTheRows()
{
    import(vevent("a", "Old", "DTSTART:20260315T090000Z\r\nCREATED:20250101T000000Z") + vevent("b", "Other"));
    Event before = events()->getByUid(u"a"_qs, ScratchState::calendarId()).value();
    before.etag = u"\"e1\""_qs;
    before.href = u"/a.ics"_qs;
    before.providerEventId = u"provider-1"_qs;
    QVERIFY(events()->update(before));

    const IcsImporter::Result result =
        import(vevent("c", "New") + vevent("a", "Renamed", "DTSTART:20260401T090000Z\r\nCREATED:20260101T000000Z"));
    QCOMPARE(result.imported, 1);
    QCOMPARE(result.updated, 1);
    QCOMPARE(stored().size(), 3);
    const Event after = events()->getById(before.id).value();
    QCOMPARE(after.title, u"Renamed"_qs);
    QCOMPARE(after.startTime, QDateTime(QDate(2026, 4, 1), QTime(9, 0), Qt::UTC));
    QCOMPARE(after.etag, before.etag);
    QCOMPARE(after.href, before.href);
    QCOMPARE(after.providerEventId, before.providerEventId);
    QCOMPARE(after.created, before.created);
    QCOMPARE(after.syncStatus, QString(SyncStatus::Pending));
}

void tst_IcsImporter::anOverrideLeavesItsSeriesAlone()
{
    const QByteArray master = vevent("s", "Series", "DTSTART:20260302T090000Z\r\nRRULE:FREQ=WEEKLY");
    const QByteArray moved = vevent("s", "Moved", "DTSTART:20260310T100000Z\r\nRECURRENCE-ID:20260309T090000Z");
    // The override first: it must find neither its series nor nothing.
    for (const QByteArray &text : { QByteArray(moved + master), QByteArray(master + moved) }) {
        import(text);
        QCOMPARE(stored().size(), 2);
        const auto series = events()->getByUidAndRecurrenceId(u"s"_qs, ScratchState::calendarId(), QString());
        const auto instance =
            events()->getByUidAndRecurrenceId(u"s"_qs, ScratchState::calendarId(), u"20260309T090000Z"_qs);
        QVERIFY(series && instance);
        QCOMPARE(series->title, u"Series"_qs);
        QCOMPARE(series->recurrenceRule, u"FREQ=WEEKLY"_qs);
        QCOMPARE(instance->title, u"Moved"_qs);
        QCOMPARE(instance->masterEventUid, u"s"_qs);
    }
}

void tst_IcsImporter::aRowSeenTwiceInOneFileIsUpdated()
{
    const IcsImporter::Result result = import(vevent("a", "First") + vevent("a", "Second"));
    QCOMPARE(result.imported, 1);
    QCOMPARE(result.updated, 1);
    QCOMPARE(stored().size(), 1);
    QCOMPARE(stored().first().title, u"Second"_qs);
}

void tst_IcsImporter::revivesATombstone()
{
    import(vevent("a", "A"));
    const QString id = stored().first().id;
    QVERIFY(events()->remove(id));
    QVERIFY(stored().isEmpty());
    QCOMPARE(import(vevent("a", "Back")).updated, 1);
    QCOMPARE(stored().size(), 1);
    QCOMPARE(stored().first().id, id);
    QCOMPARE(stored().first().title, u"Back"_qs);
}

void tst_IcsImporter::sameUidInAnotherCalendarIsAnotherEvent()
{
    const QString other = m_state->addCalendar(u"Other"_qs);
    import(vevent("a", "Here"));
    QCOMPARE(import(vevent("a", "There"), other).imported, 1);
    QCOMPARE(stored().first().title, u"Here"_qs);
    QCOMPARE(events()->getByCalendar(other).first().title, u"There"_qs);
}

void tst_IcsImporter::skipsWhatCannotBeShown()
{
    const IcsImporter::Result result =
        import(vevent("a", "A") + vevent("b", "No start", "X:1") + vevent("", "No UID")
               + vevent("c", "Bad", "DTSTART:soon") + vevent("d", QByteArray(16 * 1024 * 1024, 'x')));
    QCOMPARE(result.imported, 1);
    QCOMPARE(result.failed, 0);
    QCOMPARE(result.skipped, (ICalParser::Skipped{ .withoutUid = 1, .withoutStart = 2, .tooLarge = 1 }));
    QCOMPARE(stored().size(), 1);
}

void tst_IcsImporter::countsRefusedRows()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"EventRepository::insert failed:.*"_qs));
    const IcsImporter::Result result = import(vevent("a", "A"), u"no such calendar"_qs);
    QCOMPARE(result.imported, 0);
    QCOMPARE(result.failed, 1);
}

void tst_IcsImporter::keepsTheEventLoopAlive()
{
    constexpr int count = 3000;
    IcsImporter importer(m_state->state());
    read(importer, { write(u"many.ics"_qs, manyEvents(count)) });
    int turns = 0;
    QTimer other;
    connect(&other, &QTimer::timeout, this, [&turns] { ++turns; });
    other.start(0);
    QSignalSpy progress(&importer, &IcsImporter::progress);
    QSignalSpy done(&importer, &IcsImporter::finished);
    importer.store(ScratchState::calendarId());
    QVERIFY(done.wait(20'000));
    QCOMPARE(stored().size(), count);
    QVERIFY2(turns > 10, qPrintable(QString::number(turns)));
    QVERIFY(progress.count() > 10);
    QCOMPARE(progress.last().first().toInt(), 100);
}

void tst_IcsImporter::brokenOffKeepsWholeSlices()
{
    constexpr int count = 3000;
    const QByteArray text = manyEvents(count);
    auto importer = std::make_unique<IcsImporter>(m_state->state());
    read(*importer, { write(u"many.ics"_qs, text) });
    QSignalSpy progress(importer.get(), &IcsImporter::progress);
    importer->store(ScratchState::calendarId());
    QVERIFY(progress.wait());
    importer.reset();
    const auto kept = stored().size();
    QVERIFY(kept > 0 && kept < count);

    const IcsImporter::Result again = import(text);
    QCOMPARE(again.updated, kept);
    QCOMPARE(again.imported, count - kept);
    QCOMPARE(stored().size(), count);
    QSqlQuery check(m_state->state()->database()->db());
    QVERIFY(check.exec(u"PRAGMA foreign_key_check"_qs) && !check.next());
    QVERIFY(check.exec(u"PRAGMA integrity_check"_qs) && check.next());
    QCOMPARE(check.value(0).toString(), u"ok"_qs);
}

QTEST_GUILESS_MAIN(tst_IcsImporter)
#include "tst_IcsImporter.moc"
