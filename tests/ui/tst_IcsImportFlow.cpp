#include "storage/Database.h"
#include "support/ScratchState.h"
#include "ui/IcsImportFlow.h"
#include "ui/dialogs/IcsDrop.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/Prompt.h"

#include <QSqlQuery>
#include <QtTest>
#include <QtWidgets>

namespace {

QByteArray vevent(const QByteArray &uid, const QByteArray &title,
                  const QByteArray &start = "DTSTART:20251119T100000Z\r\n")
{
    const QByteArray uidLine = uid.isEmpty() ? QByteArray() : "UID:" + uid + "\r\n";
    return "BEGIN:VEVENT\r\n" + uidLine + start + "SUMMARY:" + title + "\r\nEND:VEVENT\r\n";
}

IcsImporter::Result counts(int imported, int updated, int unidentified = 0, int tooLarge = 0, int failed = 0)
{
    IcsImporter::Result result;
    result.imported = imported;
    result.updated = updated;
    result.failed = failed;
    result.skipped.withoutUid = unidentified;
    result.skipped.tooLarge = tooLarge;
    return result;
}

}

class tst_IcsImportFlow : public QObject {
    Q_OBJECT

private:
    QString write(const QString &name, const QByteArray &events)
    {
        QFile file(m_state->path(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write a scratch file");
        file.write("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + events + "END:VCALENDAR\r\n");
        return file.fileName();
    }

    /// The one on show; one that has been answered may not be deleted yet.
    ImportDialog *dialog()
    {
        const QList<ImportDialog *> dialogs = m_window->findChildren<ImportDialog *>();
        const auto shown = std::find_if(dialogs.begin(), dialogs.end(),
                                        [](const ImportDialog *candidate) { return candidate->isVisible(); });
        return shown == dialogs.end() ? nullptr : *shown;
    }

    void import(const QStringList &paths)
    {
        m_flow->start(paths);
        QTRY_VERIFY(dialog());
        dialog()->accept();
        QTRY_VERIFY(!m_flow->isRunning());
    }

    /// What the program warned of, as "title: text".
    [[nodiscard]] QStringList warnings() const
    {
        QStringList texts;
        for (const Prompt::ScopedAnswers::Asked &asked : m_answers->asked)
            texts.append(asked.title + u": "_qs + asked.text);
        return texts;
    }

    [[nodiscard]] QString storedTitles()
    {
        QStringList titles;
        const QList<Event> stored = (*m_state)->events()->getByCalendar(ScratchState::calendarId());
        for (const Event &event : stored)
            titles.append(event.title);
        titles.sort();
        return titles.join(u' ');
    }

    std::optional<Prompt::ScopedAnswers> m_answers;
    std::optional<ScratchState> m_state;
    std::optional<QWidget> m_window;
    IcsImportFlow *m_flow = nullptr;

private slots:
    void init()
    {
        m_window.reset();
        m_state.emplace();
        m_window.emplace();
        m_answers.reset();
        m_answers.emplace();
        m_flow = new IcsImportFlow(m_state->state(), &*m_window);
    }

    void reports()
    {
        const auto report = [](const IcsImporter::Result &result) {
            return IcsImportFlow::report(result, u"Work & %1"_qs);
        };
        QCOMPARE(report(counts(1, 0)), u"Imported 1 event into Work & %1."_qs);
        QCOMPARE(report(counts(0, 1)), u"Updated 1 existing event in Work & %1."_qs);
        QCOMPARE(report(counts(0, 3)), u"Updated 3 existing events in Work & %1."_qs);
        QCOMPARE(report(counts(1, 1)), u"Imported 1 and updated 1 in Work & %1."_qs);
        QCOMPARE(report(counts(0, 0, 3, 2, 4)),
                 u"Imported 0 events into Work & %1. Skipped 3 event(s) without an identifier or a start."
                 " Skipped 2 event(s) that are too large. 4 event(s) could not be stored."_qs);
    }

    void importsThenUpdatesThenCancels()
    {
        QSignalSpy ended(m_flow, &IcsImportFlow::finished);
        QSignalSpy messages(m_flow, &IcsImportFlow::statusMessage);
        import({ write(u"a.ics"_qs, vevent("one", "First") + vevent("two", "Second")) });
        QCOMPARE(messages.last(), (QVariantList{ u"Imported 2 events into Personal."_qs, 5000 }));
        import({ write(u"a.ics"_qs,
                       vevent("one", "First again") + vevent("three", "Third") + vevent("", "Nameless")
                           + vevent("four", "Never", "")) });
        QCOMPARE(messages.last().at(0).toString(),
                 u"Imported 1 and updated 1 in Personal. Skipped 2 event(s) without an identifier or a start."_qs);
        QCOMPARE(storedTitles(), u"First again Second Third"_qs);
        m_flow->start({ write(u"a.ics"_qs, vevent("five", "Cancelled")) });
        QTRY_VERIFY(dialog());
        dialog()->reject();
        QVERIFY(!m_flow->isRunning());
        QCOMPARE(storedTitles(), u"First again Second Third"_qs);
        QCOMPARE(ended.size(), 3);
        QVERIFY(warnings().isEmpty());
    }

    void severalFilesGiveOneDialog()
    {
        const QString missing = m_state->path(u"<b>gone</b>.ics"_qs);
        import({ write(u"a.ics"_qs, vevent("a", "A")), missing, write(u"empty.ics"_qs, {}),
                 write(u"b.ics"_qs, vevent("b", "B") + vevent("c", "C")) });
        QCOMPARE(storedTitles(), u"A B C"_qs);
        QCOMPARE(warnings(),
                 QStringList({ u"Couldn't open file: Couldn't open \"%1\" for reading."_qs.arg(missing),
                               u"Nothing to import: No events found in \"empty.ics\"."_qs }));
    }

    void needsAWritableCalendar()
    {
        m_state->makeReadOnly(ScratchState::calendarId());
        m_flow->start({ write(u"a.ics"_qs, vevent("a", "A")),
                        write(u"b.ics"_qs, vevent("", "Nameless") + vevent("b", "Never", "")) });
        QTRY_VERIFY(!m_flow->isRunning());
        QCOMPARE(warnings(),
                 QStringList({ u"No calendars configured: Add a writable calendar first; then re-import \"a.ics\"."_qs,
                               u"Nothing to import: No events found in \"b.ics\"."
                               " Skipped 2 event(s) without an identifier or a start."_qs }));
    }

    void tellsWhatTheDatabaseRefused()
    {
        QVERIFY(QSqlQuery((*m_state)->database()->db())
                    .exec(u"CREATE TRIGGER refuse BEFORE INSERT ON events WHEN NEW.title = 'Bad'"
                          " BEGIN SELECT RAISE(ABORT, 'refused'); END"_qs));
        import({ write(u"a.ics"_qs, vevent("a", "Good") + vevent("b", "Bad")) });
        QCOMPARE(storedTitles(), u"Good"_qs);
        QCOMPARE(
            warnings(),
            QStringList{ u"Import incomplete: Imported 1 event into Personal. 1 event(s) could not be stored."_qs });
    }

    void tellsThatTheCalendarIsGone()
    {
        m_flow->start({ write(u"a.ics"_qs, vevent("a", "A")) });
        QTRY_VERIFY(dialog());
        QVERIFY((*m_state)->calendars()->removeDeep(ScratchState::calendarId()));
        dialog()->accept();
        QVERIFY(!m_flow->isRunning());
        QCOMPARE(warnings(), QStringList{ u"Import failed: The chosen calendar was deleted in the meantime."_qs });
    }

    void aSecondImportWaits()
    {
        m_flow->start({ write(u"a.ics"_qs, vevent("a", "A")) });
        m_flow->start({ write(u"b.ics"_qs, vevent("b", "B")) });
        for (const QString &stored : { u"A"_qs, u"A B"_qs }) {
            QTRY_VERIFY(dialog());
            dialog()->accept();
            QTRY_COMPARE(storedTitles(), stored);
        }
        QTRY_VERIFY(!m_flow->isRunning());
    }

    void findsDroppedFiles()
    {
        QMimeData data;
        QVERIFY(!IcsDrop::hasIcs(&data));
        QVERIFY(!IcsDrop::hasIcs(nullptr));
        data.setUrls({ QUrl(u"file:///tmp/a%20b.ICS"_qs), QUrl(u"https://x.example/c.ics"_qs),
                       QUrl(u"file:///tmp/notes.txt"_qs), QUrl(u"file:///tmp/d.ics"_qs) });
        QCOMPARE(IcsDrop::localPathsIn(&data), QStringList({ u"/tmp/a b.ICS"_qs, u"/tmp/d.ics"_qs }));
    }
};

QTEST_MAIN(tst_IcsImportFlow)
#include "tst_IcsImportFlow.moc"
