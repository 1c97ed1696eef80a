#include "ProgramBench.h"

#include "SampleFile.h"
#include "app/state/AppState.h"
#include "calendar/FilterEngine.h"
#include "calendar/services/IcsImporter.h"
#include "calendar/services/VisibleEvents.h"
#include "peers/Report.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "ui/surfaces/WeekView.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <cstdio>

namespace {

const QDate monday(2026, 11, 16);
constexpr int filterRules = 20;
constexpr int aimedCount = 10'000; // import and memory are measured with more, too, but judged at this

void row(const QString &work, double figure, const char *unit, std::optional<double> aim = std::nullopt)
{
    std::printf("%-72s %9.1f %-3s", qPrintable(work), figure, unit);
    if (aim)
        std::printf("   aim %6.0f %-3s%s", *aim, unit, figure <= *aim ? "" : "  <-- missed");
    std::printf("\n");
    std::fflush(stdout);
}

QString withCount(const char *work, int events)
{
    return QString::fromLatin1(work).arg(QLocale::c().toString(events));
}

struct Import {
    double storeMs = 0;
    double longestHoldMs = 0; ///< the longest time the event loop was not free
};

/// Imports the file into the calendar of a first start, as the window does.
Import importFile(AppState *state, const QString &path)
{
    IcsImporter importer(state);
    QEventLoop loop;
    Import measured;
    QObject::connect(&importer, &IcsImporter::filesRead, &loop, &QEventLoop::quit);
    QObject::connect(&importer, &IcsImporter::finished, &loop, &QEventLoop::quit);

    Report::Stopwatch sinceBeat;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, &loop, [&] {
        measured.longestHoldMs = std::max(measured.longestHoldMs, sinceBeat.elapsedMs());
        sinceBeat = {};
    });
    heart.start(0);
    importer.read({ path });
    loop.exec();
    const Report::Stopwatch storing;
    importer.store(LocalDefaults::PersonalCalendarId);
    loop.exec();
    measured.storeMs = storing.elapsedMs();
    return measured;
}

void addFilterRules(AppState *state)
{
    for (int i = 0; i < filterRules; ++i) {
        FilterRule rule;
        rule.id = QStringLiteral("bench-%1").arg(i);
        rule.name = rule.id;
        rule.type = FilterType::Pattern;
        rule.action = i % 2 ? FilterAction::Hide : FilterAction::Dim;
        rule.conditions = FilterEngine::conditionsToJson(
            FilterEngine::PatternConditions{ .titleContains = { QStringLiteral("planning 1%1").arg(i) },
                                             .locationContains = { QStringLiteral("room 9%1").arg(i) } });
        state->filterRules()->insert(rule);
    }
}

/// Ends with the database closed, so that other programs may open it.
void fillDatabase(const QString &dataDir, int events)
{
    const QString file = dataDir + QStringLiteral("/sample.ics");
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return;
    out.write(SampleFile::generate({ .events = events }));
    out.close();

    AppState state;
    state.openStorage(dataDir + QStringLiteral("/calendar.db"));
    state.seedDefaultCalendarIfMissing();
    state.restoreViewState();
    const Import measured = importFile(&state, file);
    addFilterRules(&state);
    row(withCount("import of %1 events: store", events), measured.storeMs, "ms",
        events == aimedCount ? std::optional(3000.0) : std::nullopt);
    row(withCount("import of %1 events: longest hold of the event loop", events), measured.longestHoldMs, "ms", 50);
}

void measureReload(const QString &dataDir, int events)
{
    AppState state;
    state.openStorage(dataDir + QStringLiteral("/calendar.db"));
    state.restoreViewState();
    VisibleEvents visible(&state);

    const Report::Stopwatch first;
    const qsizetype shown = visible.inRange(monday, 7)->events.size();
    row(withCount("week reload with 20 rules, %1 stored, first", events), first.elapsedMs(), "ms");

    constexpr int repeats = 10;
    const Report::Stopwatch warm;
    for (int i = 0; i < repeats; ++i) {
        state.database()->dataWritten();
        visible.inRange(monday, 7);
    }
    row(withCount("week reload with 20 rules, %1 stored, after an edit", events)
            + QStringLiteral(" (%1 shown)").arg(shown),
        warm.elapsedMs() / repeats, "ms", 50);
}

void measurePaint()
{
    constexpr int events = 200;
    QTemporaryDir dir;
    AppState state;
    state.openStorage(dir.filePath(QStringLiteral("calendar.db")));
    state.seedDefaultCalendarIfMissing();
    state.restoreViewState();
    state.setVisibleEvents(new VisibleEvents(&state, &state));
    for (int i = 0; i < events; ++i) {
        Event event;
        event.id = event.uid = QString::number(i);
        event.calendarId = LocalDefaults::PersonalCalendarId;
        event.title = QStringLiteral("Review of the plan %1").arg(i);
        event.startTime = QDateTime(monday.addDays(i % 7), QTime(7 + (i / 7) % 14, 15 * (i % 4)), Qt::UTC);
        event.endTime = event.startTime.addSecs(2700);
        event.rawIcalendar = QStringLiteral("BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n");
        state.events()->insert(event);
    }
    WeekView view(&state, WeekView::Form::Week);
    view.setAnchorDate(monday);
    view.resize(1440, 900);
    view.show();
    QCoreApplication::processEvents();

    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    constexpr int repeats = 20;
    view.render(&image);
    const Report::Stopwatch watch;
    for (int i = 0; i < repeats; ++i)
        view.render(&image);
    row(QStringLiteral("paint of a full week, 200 events, 1440x900"), watch.elapsedMs() / repeats, "ms", 16);
}

double proportionalSetMib(qint64 pid)
{
    QFile rollup(QStringLiteral("/proc/%1/smaps_rollup").arg(pid));
    if (!rollup.open(QIODevice::ReadOnly))
        return 0;
    static const QRegularExpression pss(QStringLiteral("Pss:\\s+(\\d+) kB"));
    return pss.match(QString::fromLatin1(rollup.readAll())).captured(1).toDouble() / 1024;
}

void measureStart(const QString &dataDir, int events, double aimMs)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CALENDAR_DATA_DIR"), dataDir);
    environment.insert(QStringLiteral("CALENDAR_INSTANCE"), QStringLiteral("bench"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("calendar.startup.debug=true"));

    QProcess program;
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    const Report::Stopwatch watch;
    // A launch with a command is not greeted.
    program.start(QStringLiteral(QUILLON_BIN_DIR "/quillon-calendar"), { QStringLiteral("--show-today") });
    QByteArray log;
    while (!log.contains("first painted") && program.waitForReadyRead(20'000))
        log += program.readAll();
    if (!log.contains("first painted")) {
        std::printf("the program did not start: %s\n", log.constData());
        return;
    }
    row(withCount("start to first painted week, %1 stored", events), watch.elapsedMs(), "ms", aimMs);
    QThread::msleep(2000); // let what runs after the first paint settle before its memory is read
    row(withCount("memory with %1 events, proportional set", events), proportionalSetMib(program.processId()), "MiB",
        events == aimedCount ? std::optional(100.0) : std::nullopt);
    program.terminate();
    program.waitForFinished(5000);
}

}

bool ProgramBench::run()
{
    std::printf("\nThe program\n");
    for (const auto &[events, aimMs] : { std::pair(aimedCount, 500.0), std::pair(50'000, 1000.0) }) {
        QTemporaryDir dir;
        if (!dir.isValid())
            return false;
        fillDatabase(dir.path(), events);
        measureReload(dir.path(), events);
        measureStart(dir.path(), events, aimMs);
        measureStart(dir.path(), events, aimMs);
    }
    measurePaint();
    return true;
}
