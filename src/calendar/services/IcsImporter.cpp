#include "calendar/services/IcsImporter.h"

#include "app/state/AppState.h"
#include "models/NewId.h"
#include "storage/BulkWrites.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/Savepoint.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr int SliceMs = 8;
// Steps that are short against a slice.
constexpr qint64 FileChunkBytes = 512 * 1024;
constexpr qsizetype ParseChunkBytes = 64 * 1024;
constexpr int ParseChunkEvents = 100;

int percentOf(qint64 done, qint64 total)
{
    return total > 0 ? static_cast<int>(std::min(done, total) * 100 / total) : 100;
}

}

/// Takes the files one after the other: first their bytes, then the events in them.
class IcsImporter::Reading {
public:
    explicit Reading(const QStringList &paths)
        : m_paths(paths)
    {
        for (const QString &path : paths)
            m_totalBytes += QFileInfo(path).size();
    }

    [[nodiscard]] bool atEnd() const { return !m_file && !m_reader && m_paths.isEmpty(); }
    // Each byte is read and then parsed.
    [[nodiscard]] int percent() const { return atEnd() ? 100 : percentOf(m_doneBytes, 2 * m_totalBytes); }

    void step(QList<File> &files)
    {
        if (m_reader)
            parse(files.last());
        else if (m_file)
            readBytes(files.last());
        else
            openNext(files);
    }

private:
    void openNext(QList<File> &files)
    {
        File &file = files.emplace_back();
        file.path = m_paths.takeFirst();
        m_bytes.clear();
        m_file = std::make_unique<QFile>(file.path);
        // A pipe or a device might never come to an end.
        if (!QFileInfo(*m_file).isFile() || !m_file->open(QIODevice::ReadOnly))
            giveUp(file, FileError::Unreadable);
        else if (m_file->size() > MaxFileBytes)
            giveUp(file, FileError::TooLarge);
    }

    void readBytes(File &file)
    {
        const QByteArray chunk = m_file->read(FileChunkBytes);
        if (m_file->error() != QFileDevice::NoError)
            return giveUp(file, FileError::Unreadable);
        // The size was no promise: the file may have grown, and some file systems name none.
        if (m_bytes.size() + chunk.size() > MaxFileBytes)
            return giveUp(file, FileError::TooLarge);
        m_bytes.append(chunk);
        m_doneBytes += chunk.size();
        if (!chunk.isEmpty())
            return;
        m_file.reset();
        m_reader.emplace(std::exchange(m_bytes, {}));
    }

    void parse(File &file)
    {
        const qsizetype before = m_reader->bytesRead();
        file.events.append(m_reader->read(ParseChunkEvents, ParseChunkBytes));
        m_doneBytes += m_reader->bytesRead() - before;
        if (!m_reader->atEnd())
            return;
        file.skipped = m_reader->skipped();
        if (file.events.isEmpty())
            file.error = FileError::NoEvents;
        m_reader.reset();
    }

    void giveUp(File &file, FileError error)
    {
        file.error = error;
        m_file.reset();
        m_bytes.clear();
    }

    QStringList m_paths; // yet to be opened
    std::unique_ptr<QFile> m_file;
    QByteArray m_bytes;
    std::optional<ICalParser::EventReader> m_reader;
    qint64 m_totalBytes = 0;
    qint64 m_doneBytes = 0;
};

/// Stores the events of all files, one after the other.
class IcsImporter::Storing {
public:
    Storing(AppState *state, const QList<File> &files, QString calendarId)
        : m_state(state)
        , m_bulkWrites(state->database())
        , m_calendarId(std::move(calendarId))
        , m_files(files)
    {
        for (const File &file : files) {
            m_total += file.events.size();
            m_result.skipped.withoutUid += file.skipped.withoutUid;
            m_result.skipped.withoutStart += file.skipped.withoutStart;
            m_result.skipped.tooLarge += file.skipped.tooLarge;
        }
    }

    [[nodiscard]] bool atEnd() const { return m_done == m_total; }
    [[nodiscard]] int percent() const { return percentOf(m_done, m_total); }
    [[nodiscard]] const Result &result() const { return m_result; }

    /// One transaction: all that the time allows, or nothing.
    void runSlice()
    {
        QElapsedTimer clock;
        clock.start();
        Result slice;
        Savepoint savepoint(m_state->database());
        while (!atEnd() && !clock.hasExpired(SliceMs)) {
            if (const Event &event = takeNext(); event.startTime.isValid())
                storeOne(event, slice);
        }
        if (savepoint.isActive() && !savepoint.commit())
            slice = {
                .imported = 0, .updated = 0, .failed = slice.imported + slice.updated + slice.failed, .skipped = {}
            };
        m_result.imported += slice.imported;
        m_result.updated += slice.updated;
        m_result.failed += slice.failed;
    }

private:
    const Event &takeNext()
    {
        while (m_nextInFile == m_files.at(m_file).events.size()) {
            ++m_file;
            m_nextInFile = 0;
        }
        ++m_done;
        return m_files.at(m_file).events.at(m_nextInFile++);
    }

    void storeOne(Event event, Result &result)
    {
        EventRepository *repository = m_state->events();
        event.calendarId = m_calendarId;
        event.syncStatus = SyncStatus::Pending;
        if (const auto row = repository->getByUidAndRecurrenceId(event.uid, m_calendarId, event.recurrenceId)) {
            event.id = row->id;
            event.providerEventId = row->providerEventId;
            event.etag = row->etag;
            event.href = row->href;
            event.created = row->created;
            ++(repository->update(event) ? result.updated : result.failed);
        } else {
            event.id = newId();
            ++(repository->insert(event) ? result.imported : result.failed);
        }
    }

    AppState *m_state;
    BulkWrites m_bulkWrites; // importing again completes what a power cut took back
    QString m_calendarId;
    QList<File> m_files;
    qsizetype m_total = 0; // events
    qsizetype m_done = 0;
    qsizetype m_file = 0; // where the next event is
    qsizetype m_nextInFile = 0;
    Result m_result;
};

IcsImporter::IcsImporter(AppState *state, QObject *parent)
    : QObject(parent)
    , m_state(state)
    , m_timer(new QTimer(this))
{
    connect(m_timer, &QTimer::timeout, this, [this] { m_reading ? runReadingSlice() : runStoringSlice(); });
}

IcsImporter::~IcsImporter() = default;

void IcsImporter::read(const QStringList &paths)
{
    m_files.clear();
    m_storing.reset();
    m_reading = std::make_unique<Reading>(paths);
    m_timer->start(0);
}

void IcsImporter::store(const QString &calendarId)
{
    m_reading.reset();
    m_storing = std::make_unique<Storing>(m_state, m_files, calendarId);
    m_timer->start(0);
}

int IcsImporter::eventCount() const
{
    qsizetype count = 0;
    for (const File &file : m_files)
        count += file.events.size() - file.skipped.withoutStart;
    return static_cast<int>(count);
}

void IcsImporter::runReadingSlice()
{
    QElapsedTimer clock;
    clock.start();
    while (!m_reading->atEnd() && !clock.hasExpired(SliceMs))
        m_reading->step(m_files);
    report(m_reading->percent());
    if (!m_reading->atEnd())
        return;
    m_timer->stop();
    m_reading.reset();
    emit filesRead();
}

void IcsImporter::runStoringSlice()
{
    m_storing->runSlice();
    report(m_storing->percent());
    if (!m_storing->atEnd())
        return;
    m_timer->stop();
    const Result result = m_storing->result();
    m_storing.reset();
    emit finished(result);
}

void IcsImporter::report(int percent)
{
    if (percent == m_percent)
        return;
    m_percent = percent;
    emit progress(percent);
}
