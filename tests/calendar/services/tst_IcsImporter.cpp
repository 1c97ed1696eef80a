#include "calendar/services/IcsImporter.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "support/ScratchState.h"
#include "support/TestData.h"

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QByteArray vevent(const QByteArray &uid, const QByteArray &title, const QByteArray &more = "DTSTART:20260315T090000Z")
{
    return "BEGIN:VEVENT\r\nUID:" + uid + "\r\nSUMMARY:" + title + "\r\n" + more + "\r\nEND:VEVENT\r\n";
}

constexpr int Many = 3000;

QByteArray manyEvents()
{
    QByteArray text;
    for (int i = 0; i < Many; ++i)
        text += vevent("many-" + QByteArray::number(i), "Event");
    return text;
}

}

class tst_IcsImporter : public QObject {
    Q_OBJECT

private slots:
    void init() { m_state = std::make_unique<ScratchState>(); }
    void cleanup() { m_state.reset(); }

    void readsFilesAndTellsWhatIsWrongWithThem()
    {
        IcsImporter importer(m_state->state());
        QSignalSpy progress(&importer, &IcsImporter::progress);
        const QString good = write("good.ics", vevent("a", "A") + vevent("b", "B") + vevent("c", "C", "X:1"));
        const QString other = write("other.ics", "BEGIN:VTODO\nUID:t\nEND:VTODO\n" + vevent("", "no UID"));
        QFile large(write("large.ics", vevent("a", "A")));
        QVERIFY(large.resize(IcsImporter::MaxFileBytes + 1)); // a hole, which takes no room on the disk
        read(importer,
             { m_state->path(u"missing.ics"_s), good, m_state->path({}), write("empty.ics", {}), other,
               large.fileName() });

        using FileError = IcsImporter::FileError;
        QList<FileError> errors;
        for (const IcsImporter::File &file : importer.files())
            errors.append(file.error);
        QCOMPARE(errors,
                 QList<FileError>({ FileError::Unreadable, FileError::None, FileError::Unreadable, FileError::NoEvents,
                                    FileError::NoEvents, FileError::TooLarge }));
        QCOMPARE(importer.files()[1].path, good);
        QCOMPARE(importer.files()[1].events.size(), 3);
        QCOMPARE(importer.files()[1].skipped.withoutStart, 1);
        QCOMPARE(importer.files()[4].skipped.withoutUid, 1);
        QCOMPARE(importer.eventCount(), 2);
        QCOMPARE(progress.last().first().toInt(), 100);

        read(importer, {});
        QCOMPARE(importer.eventCount(), 0);
    }

    void storesEventsAsPending()
    {
        const IcsImporter::Result result = import(
            vevent("a", "Lunch",
                   "DTSTART;TZID=Europe/Paris:20260315T123000\r\nBEGIN:VALARM\r\nTRIGGER:-PT15M\r\nEND:VALARM\r\n"
                   "ATTENDEE;CN=Ada:mailto:ada@e.org")
            + vevent("b", "Holiday", "DTSTART;VALUE=DATE:20260316") + vevent("c", "No start", "X:1")
            + vevent("", "No UID") + vevent("d", QByteArray(16 * 1024 * 1024, 'x')));
        QCOMPARE(counts(result), u"2 new 0 updated 0 failed"_s);
        QCOMPARE(result.skipped, (ICalParser::Skipped{ .withoutUid = 1, .withoutStart = 1, .tooLarge = 1 }));
        const QList<Event> rows = stored();
        QCOMPARE(titles(), u"Lunch Holiday"_s);
        QVERIFY(rows[0].id.size() == 36 && rows[0].id != rows[1].id);
        QCOMPARE(rows[0].syncStatus, QString(SyncStatus::Pending));
        QCOMPARE(rows[0].startTime, utc("2026-03-15T11:30"));
        QCOMPARE(rows[0].reminders.size(), 1);
        QCOMPARE(rows[0].attendees.size(), 1);
        QVERIFY(rows[1].isAllDay);
    }

    void importingAgainUpdatesTheRows()
    {
        import(vevent("a", "Old", "DTSTART:20260315T090000Z\r\nCREATED:20250101T000000Z") + vevent("b", "Other"));
        Event before = events()->getByUid(u"a"_s, ScratchState::calendarId()).value();
        before.etag = u"\"e1\""_s;
        before.href = u"/a.ics"_s;
        before.providerEventId = u"provider-1"_s;
        before.syncStatus = SyncStatus::Synced;
        QVERIFY(events()->update(before));

        const QByteArray renamed = vevent("a", "Renamed", "DTSTART:20260401T090000Z\r\nCREATED:20260101T000000Z");
        QCOMPARE(counts(import(vevent("c", "New") + renamed)), u"1 new 1 updated 0 failed"_s);
        Event after = events()->getById(before.id).value();
        QCOMPARE(after.title, u"Renamed"_s);
        QCOMPARE(after.startTime, utc("2026-04-01T09:00"));
        QCOMPARE(after.etag + after.href + after.providerEventId, before.etag + before.href + before.providerEventId);
        QCOMPARE(after.created, before.created);
        QCOMPARE(after.syncStatus, QString(SyncStatus::Pending));

        // A row that the user deleted comes back, and one seen twice in a file is one row.
        QVERIFY(events()->remove(before.id));
        QCOMPARE(counts(import(vevent("a", "Back") + vevent("z", "1") + vevent("z", "2"))),
                 u"1 new 2 updated 0 failed"_s);
        QCOMPARE(events()->getById(before.id)->title, u"Back"_s);
        QVERIFY(!events()->getById(before.id)->deletedAt);
        QCOMPARE(stored().size(), 4);
    }

    void anOverrideLeavesItsSeriesAlone()
    {
        const QByteArray master = vevent("s", "Series", "DTSTART:20260302T090000Z\r\nRRULE:FREQ=WEEKLY");
        const QByteArray moved = vevent("s", "Moved", "DTSTART:20260310T100000Z\r\nRECURRENCE-ID:20260309T090000Z");
        // The override first: it must find neither its series nor nothing.
        for (const QByteArray &text : { QByteArray(moved + master), QByteArray(master + moved) }) {
            import(text);
            const QList<Event> rows = stored();
            QCOMPARE(titles(), u"Series Moved"_s);
            QCOMPARE(rows[0].recurrenceRule, u"FREQ=WEEKLY"_s);
            QCOMPARE(rows[1].masterEventUid + rows[1].recurrenceId, u"s20260309T090000Z"_s);
        }
    }

    void sameUidInAnotherCalendarIsAnotherEvent()
    {
        const QString other = m_state->addCalendar(u"Other"_s);
        import(vevent("a", "Here"));
        QCOMPARE(import(vevent("a", "There"), other).imported, 1);
        QCOMPARE(titles(), u"Here"_s);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"EventRepository::insert failed:.*"_s));
        QCOMPARE(counts(import(vevent("a", "A"), u"no such calendar"_s)), u"0 new 0 updated 1 failed"_s);
    }

    void keepsTheEventLoopAlive()
    {
        IcsImporter importer(m_state->state());
        read(importer, { write("many.ics", manyEvents()) });
        int turns = 0;
        QTimer other;
        connect(&other, &QTimer::timeout, this, [&turns] { ++turns; });
        other.start(0);
        QSignalSpy progress(&importer, &IcsImporter::progress);
        QSignalSpy done(&importer, &IcsImporter::finished);
        importer.store(ScratchState::calendarId());
        QVERIFY(done.wait(20'000));
        QCOMPARE(stored().size(), Many);
        QVERIFY2(turns > 10, qPrintable(QString::number(turns)));
        QVERIFY(progress.count() > 10);
        QCOMPARE(progress.last().first().toInt(), 100);
    }

    void brokenOffKeepsWholeSlices()
    {
        auto importer = std::make_unique<IcsImporter>(m_state->state());
        read(*importer, { write("many.ics", manyEvents()) });
        QSignalSpy progress(importer.get(), &IcsImporter::progress);
        importer->store(ScratchState::calendarId());
        QVERIFY(progress.wait());
        importer.reset();
        const auto kept = stored().size();
        QVERIFY(kept > 0 && kept < Many);

        QCOMPARE(counts(import(manyEvents())), u"%1 new %2 updated 0 failed"_s.arg(Many - kept).arg(kept));
        QCOMPARE(stored().size(), Many);
        QSqlQuery check(m_state->state()->database()->db());
        QVERIFY(check.exec(u"PRAGMA foreign_key_check"_s) && !check.next());
        QVERIFY(check.exec(u"PRAGMA integrity_check"_s) && check.next());
        QCOMPARE(check.value(0).toString(), u"ok"_s);
    }

private:
    QString write(const char *fileName, const QByteArray &text)
    {
        QFile file(m_state->path(QString::fromLatin1(fileName)));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write a scratch file");
        return file.fileName();
    }
    void read(IcsImporter &importer, const QStringList &paths)
    {
        QSignalSpy done(&importer, &IcsImporter::filesRead);
        importer.read(paths);
        QCOMPARE(done.count(), 0); // never before the call has returned
        QVERIFY(done.wait());
    }
    IcsImporter::Result import(const QByteArray &text, const QString &calendarId = ScratchState::calendarId())
    {
        IcsImporter importer(m_state->state());
        read(importer, { write("import.ics", text) });
        IcsImporter::Result result;
        connect(&importer, &IcsImporter::finished, this, [&](const IcsImporter::Result &given) { result = given; });
        QSignalSpy done(&importer, &IcsImporter::finished);
        importer.store(calendarId);
        if (!done.wait(20'000))
            qFatal("the import does not end");
        return result;
    }
    static QString counts(const IcsImporter::Result &result)
    {
        return u"%1 new %2 updated %3 failed"_s.arg(result.imported).arg(result.updated).arg(result.failed);
    }
    EventRepository *events() { return m_state->state()->events(); }
    QList<Event> stored() { return events()->getByCalendar(ScratchState::calendarId()); }
    QString titles()
    {
        QStringList titles;
        for (const Event &event : stored())
            titles.append(event.title);
        return titles.join(u' ');
    }

    std::unique_ptr<ScratchState> m_state;
};

QTEST_GUILESS_MAIN(tst_IcsImporter)
#include "tst_IcsImporter.moc"
