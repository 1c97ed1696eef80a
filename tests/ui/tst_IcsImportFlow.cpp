#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/IcsDrop.h"
#include "ui/IcsImportFlow.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/Prompt.h"

#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTest>
#include <QUrl>
#include <QWidget>

namespace {

QByteArray vevent(const QByteArray &uid, const QByteArray &title,
                  const QByteArray &start = "DTSTART:20251119T100000Z\r\n")
{
    const QByteArray uidLine = uid.isEmpty() ? QByteArray() : "UID:" + uid + "\r\n";
    return "BEGIN:VEVENT\r\n" + uidLine + start + "SUMMARY:" + title + "\r\nEND:VEVENT\r\n";
}

/// The one on show; one that has been answered may not be deleted yet.
ImportDialog *openDialog(const QWidget &window)
{
    const QList<ImportDialog *> dialogs = window.findChildren<ImportDialog *>();
    for (ImportDialog *dialog : dialogs) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

IcsImporter::Result counts(int imported, int updated, int withoutUid = 0, int withoutStart = 0, int failed = 0,
                           int tooLarge = 0)
{
    IcsImporter::Result result;
    result.imported = imported;
    result.updated = updated;
    result.failed = failed;
    result.skipped.withoutUid = withoutUid;
    result.skipped.withoutStart = withoutStart;
    result.skipped.tooLarge = tooLarge;
    return result;
}

}

class tst_IcsImportFlow : public QObject {
    Q_OBJECT

private slots:
    void reports_data();
    void reports();
    void importsAndThenUpdates();
    void severalFilesGiveOneDialog();
    void cancellingStoresNothing();
    void namesWhatItCannotRead();
    void needsAWritableCalendar();
    void tellsWhatTheDatabaseRefused();
    void tellsThatTheCalendarIsGone();
    void tellsWhatWasSkippedOfAnEmptyFile();
    void aSecondImportWaits();
    void findsDroppedFiles();

private:
    static QString write(ScratchState &state, const QString &name, const QByteArray &events);
};

QString tst_IcsImportFlow::write(ScratchState &state, const QString &name, const QByteArray &events)
{
    QFile file(state.path(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write a scratch file");
    file.write("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + events + "END:VCALENDAR\r\n");
    return file.fileName();
}

void tst_IcsImportFlow::reports_data()
{
    QTest::addColumn<IcsImporter::Result>("result");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one new") << counts(1, 0) << "Imported 1 event into Work & %1.";
    QTest::newRow("new ones") << counts(12, 0) << "Imported 12 events into Work & %1.";
    QTest::newRow("one again") << counts(0, 1) << "Updated 1 existing event in Work & %1.";
    QTest::newRow("again") << counts(0, 3) << "Updated 3 existing events in Work & %1.";
    QTest::newRow("both, even of one each") << counts(1, 1) << "Imported 1 and updated 1 in Work & %1.";
    QTest::newRow("skipped") << counts(
        2, 0, 1, 2) << "Imported 2 events into Work & %1. Skipped 3 event(s) without an identifier or a start.";
    QTest::newRow("too large")
        << counts(1, 0, 1, 0, 0, 2)
        << "Imported 1 event into Work & %1. Skipped 1 event(s) without an identifier or a start."
           " Skipped 2 event(s) that are too large.";
    QTest::newRow("refused") << counts(0, 0, 0, 0, 4)
                             << "Imported 0 events into Work & %1. 4 event(s) could not be stored.";
}

void tst_IcsImportFlow::reports()
{
    QFETCH(IcsImporter::Result, result);
    QTEST(IcsImportFlow::report(result, QStringLiteral("Work & %1")), "expected");
}

void tst_IcsImportFlow::importsAndThenUpdates()
{
    ScratchState state;
    QWidget window;
    IcsImportFlow flow(state.state(), &window);
    QSignalSpy ended(&flow, &IcsImportFlow::finished);
    QSignalSpy messages(&flow, &IcsImportFlow::statusMessage);
    const auto import = [&](const QString &path) {
        flow.start({ path });
        QTRY_VERIFY(openDialog(window));
        openDialog(window)->accept();
        QTRY_VERIFY(!flow.isRunning());
    };

    import(write(state, QStringLiteral("a.ics"), vevent("one", "First") + vevent("two", "Second")));
    QCOMPARE(messages.last().at(0).toString(), QStringLiteral("Imported 2 events into Personal."));
    QCOMPARE(messages.last().at(1).toInt(), 5000);

    import(write(state, QStringLiteral("a.ics"), vevent("one", "First again") + vevent("two", "Second")));
    QCOMPARE(messages.last().at(0).toString(), QStringLiteral("Updated 2 existing events in Personal."));

    import(write(state, QStringLiteral("a.ics"),
                 vevent("one", "First") + vevent("three", "Third") + vevent("", "Nameless")
                     + vevent("four", "Never", "")));
    QCOMPARE(messages.last().at(0).toString(),
             QStringLiteral("Imported 1 and updated 1 in Personal."
                            " Skipped 2 event(s) without an identifier or a start."));

    QStringList titles;
    const QList<Event> stored = state->events()->getByCalendar(ScratchState::calendarId());
    for (const Event &event : stored)
        titles.append(event.title);
    titles.sort();
    QCOMPARE(titles, QStringList({ QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third") }));
    QCOMPARE(ended.size(), 3);
}

void tst_IcsImportFlow::severalFilesGiveOneDialog()
{
    ScratchState state;
    QWidget window;
    Prompt::ScopedAnswers answers;
    IcsImportFlow flow(state.state(), &window);
    flow.start({ write(state, QStringLiteral("a.ics"), vevent("a", "A")), write(state, QStringLiteral("empty.ics"), ""),
                 write(state, QStringLiteral("b.ics"), vevent("b", "B") + vevent("c", "C")) });
    QTRY_VERIFY(openDialog(window));
    QCOMPARE(window.findChildren<ImportDialog *>().size(), 1);
    const Prompt::ScopedAnswers::Asked empty{ QStringLiteral("warning"), QStringLiteral("Nothing to import"),
                                              QStringLiteral("No events found in \"empty.ics\".") };
    QCOMPARE(answers.asked, QList<Prompt::ScopedAnswers::Asked>{ empty });
    openDialog(window)->accept();
    QTRY_VERIFY(!flow.isRunning());
    QCOMPARE(state->events()->getByCalendar(ScratchState::calendarId()).size(), 3);
}

void tst_IcsImportFlow::cancellingStoresNothing()
{
    ScratchState state;
    QWidget window;
    IcsImportFlow flow(state.state(), &window);
    flow.start({ write(state, QStringLiteral("a.ics"), vevent("a", "A")) });
    QTRY_VERIFY(openDialog(window));
    openDialog(window)->reject();
    QVERIFY(!flow.isRunning());
    QVERIFY(state->events()->getByCalendar(ScratchState::calendarId()).isEmpty());
}

void tst_IcsImportFlow::namesWhatItCannotRead()
{
    ScratchState state;
    QWidget window;
    Prompt::ScopedAnswers answers;
    IcsImportFlow flow(state.state(), &window);
    const QString missing = state.path(QStringLiteral("<b>gone</b>.ics"));
    flow.start({ missing });
    QTRY_VERIFY(!flow.isRunning());
    QCOMPARE(answers.asked.size(), 1);
    QCOMPARE(answers.asked.first().title, QStringLiteral("Couldn't open file"));
    QCOMPARE(answers.asked.first().text, QStringLiteral("Couldn't open \"%1\" for reading.").arg(missing));
    QVERIFY(!window.findChild<ImportDialog *>());
}

void tst_IcsImportFlow::needsAWritableCalendar()
{
    ScratchState state;
    auto calendar = state->calendars()->getById(ScratchState::calendarId()).value();
    calendar.isReadOnly = true;
    QVERIFY(state->calendars()->update(calendar));
    QWidget window;
    Prompt::ScopedAnswers answers;
    IcsImportFlow flow(state.state(), &window);
    flow.start({ write(state, QStringLiteral("a.ics"), vevent("a", "A")), write(state, QStringLiteral("b.ics"), "") });
    QTRY_VERIFY(!flow.isRunning());
    const Prompt::ScopedAnswers::Asked empty{ QStringLiteral("warning"), QStringLiteral("Nothing to import"),
                                              QStringLiteral("No events found in \"b.ics\".") };
    const Prompt::ScopedAnswers::Asked expected{ QStringLiteral("warning"), QStringLiteral("No calendars configured"),
                                                 QStringLiteral(
                                                     "Add a writable calendar first; then re-import \"a.ics\".") };
    QCOMPARE(answers.asked, (QList<Prompt::ScopedAnswers::Asked>{ expected, empty }));
}

void tst_IcsImportFlow::tellsWhatTheDatabaseRefused()
{
    ScratchState state;
    QVERIFY(QSqlQuery(state->database()->db())
                .exec(QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON events WHEN NEW.title = 'Bad'"
                                     " BEGIN SELECT RAISE(ABORT, 'refused'); END")));
    QWidget window;
    Prompt::ScopedAnswers answers;
    IcsImportFlow flow(state.state(), &window);
    flow.start({ write(state, QStringLiteral("a.ics"), vevent("a", "Good") + vevent("b", "Bad")) });
    QTRY_VERIFY(openDialog(window));
    openDialog(window)->accept();
    QTRY_VERIFY(!flow.isRunning());
    const Prompt::ScopedAnswers::Asked expected{ QStringLiteral("warning"), QStringLiteral("Import incomplete"),
                                                 QStringLiteral("Imported 1 event into Personal."
                                                                " 1 event(s) could not be stored.") };
    QCOMPARE(answers.asked, QList<Prompt::ScopedAnswers::Asked>{ expected });
}

void tst_IcsImportFlow::tellsThatTheCalendarIsGone()
{
    ScratchState state;
    QWidget window;
    Prompt::ScopedAnswers answers;
    IcsImportFlow flow(state.state(), &window);
    flow.start({ write(state, QStringLiteral("a.ics"), vevent("a", "A")) });
    QTRY_VERIFY(openDialog(window));
    QVERIFY(state->calendars()->removeDeep(ScratchState::calendarId()));
    openDialog(window)->accept();
    QVERIFY(!flow.isRunning());
    const Prompt::ScopedAnswers::Asked expected{ QStringLiteral("warning"), QStringLiteral("Import failed"),
                                                 QStringLiteral("The chosen calendar was deleted in the meantime.") };
    QCOMPARE(answers.asked, QList<Prompt::ScopedAnswers::Asked>{ expected });
}

void tst_IcsImportFlow::tellsWhatWasSkippedOfAnEmptyFile()
{
    ScratchState state;
    QWidget window;
    Prompt::ScopedAnswers answers;
    IcsImportFlow flow(state.state(), &window);
    flow.start({ write(state, QStringLiteral("a.ics"), vevent("", "Nameless") + vevent("a", "Never", "")) });
    QTRY_VERIFY(!flow.isRunning());
    const Prompt::ScopedAnswers::Asked expected{ QStringLiteral("warning"), QStringLiteral("Nothing to import"),
                                                 QStringLiteral("No events found in \"a.ics\". Skipped 2 event(s)"
                                                                " without an identifier or a start.") };
    QCOMPARE(answers.asked, QList<Prompt::ScopedAnswers::Asked>{ expected });
}

void tst_IcsImportFlow::aSecondImportWaits()
{
    ScratchState state;
    QWidget window;
    IcsImportFlow flow(state.state(), &window);
    flow.start({ write(state, QStringLiteral("a.ics"), vevent("a", "A")) });
    flow.start({ write(state, QStringLiteral("b.ics"), vevent("b", "B")) });
    for (int stored = 1; stored <= 2; ++stored) {
        QTRY_VERIFY(openDialog(window));
        openDialog(window)->accept();
        QTRY_COMPARE(state->events()->getByCalendar(ScratchState::calendarId()).size(), stored);
    }
    QTRY_VERIFY(!flow.isRunning());
}

void tst_IcsImportFlow::findsDroppedFiles()
{
    QMimeData data;
    QVERIFY(!IcsDrop::hasIcs(&data));
    QVERIFY(!IcsDrop::hasIcs(nullptr));
    data.setUrls({ QUrl::fromLocalFile(QStringLiteral("/tmp/a b.ICS")), QUrl(QStringLiteral("https://x.example/c.ics")),
                   QUrl::fromLocalFile(QStringLiteral("/tmp/notes.txt")),
                   QUrl::fromLocalFile(QStringLiteral("/tmp/d.ics")) });
    QVERIFY(IcsDrop::hasIcs(&data));
    QCOMPARE(IcsDrop::localPathsIn(&data),
             QStringList({ QStringLiteral("/tmp/a b.ICS"), QStringLiteral("/tmp/d.ics") }));
}

QTEST_MAIN(tst_IcsImportFlow)
#include "tst_IcsImportFlow.moc"
