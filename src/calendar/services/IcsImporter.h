#pragma once

#include "calendar/ICalParser.h"

#include <QObject>
#include <QString>

#include <memory>

class AppState;
class QTimer;

/// Reads .ics files into memory and then stores their events in one calendar, in slices of a few
/// milliseconds so that the window stays alive. Interrupted, importing again completes it: a row is
/// found by UID and recurrence id, a deleted one is revived.
class IcsImporter : public QObject {
    Q_OBJECT

public:
    enum class FileError { None, Unreadable, TooLarge, NoEvents };

    /// A calendar is not larger; what is, would only fill the memory.
    static constexpr qint64 MaxFileBytes = 256LL * 1024 * 1024;

    struct File {
        QString path;
        FileError error = FileError::None;
        QList<Event> events;
        ICalParser::Skipped skipped;
    };

    struct Result {
        int imported = 0;
        int updated = 0;
        int failed = 0; ///< rows that the database refused
        ICalParser::Skipped skipped;
    };

    explicit IcsImporter(AppState *state, QObject *parent = nullptr);
    ~IcsImporter() override;

    /// Reads the files one after the other; ends in filesRead().
    void read(const QStringList &paths);
    /// Stores what was read; ends in finished().
    void store(const QString &calendarId);

    [[nodiscard]] const QList<File> &files() const { return m_files; }
    [[nodiscard]] int eventCount() const; ///< of all files; those without a start not counted

signals:
    void progress(int percent);
    void filesRead();
    void finished(const IcsImporter::Result &result);

private:
    class Reading;
    class Storing;

    void runReadingSlice();
    void runStoringSlice();
    void report(int percent);

    AppState *m_state;
    QTimer *m_timer;
    QList<File> m_files;
    std::unique_ptr<Reading> m_reading;
    std::unique_ptr<Storing> m_storing;
    int m_percent = -1; // as last reported
};
