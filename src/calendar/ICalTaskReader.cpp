#include "calendar/ICalAlarm.h"
#include "calendar/ICalDateTime.h"
#include "calendar/ICalLine.h"
#include "calendar/ICalParser.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace ICal;

namespace {

/// Makes one task after the other out of the lines of their VTODOs.
class TaskBuilder {
public:
    /// For BEGIN:VTODO.
    void begin()
    {
        m_task = Task();
        m_raw = "BEGIN:VTODO\r\n";
        m_alarm.reset();
        m_isOverride = false;
    }
    void addLine(QByteArrayView line);
    /// For END:VTODO. Its UID may be empty.
    Task finish();
    /// True if the task is one instance of a series, changed. As a row it would be a second task with the
    /// UID of that series.
    [[nodiscard]] bool isOverride() const { return m_isOverride; }

private:
    void readProperty(const ContentLine &line);
    template <QString Task::*Field> void readText(const ContentLine &line)
    {
        m_task.*Field = unescapedText(line.value());
    }
    template <int Task::*Field> void readNumber(const ContentLine &line) { m_task.*Field = line.value().toInt(); }
    template <QDateTime Task::*Field> void readStamp(const ContentLine &line)
    {
        m_task.*Field = readTime(line).value.toUTC();
    }
    template <std::optional<QDateTime> Task::*Field, bool Task::*IsDateOnly> void readDate(const ContentLine &line)
    {
        const ICalParser::DateTimeValue time = readTime(line);
        m_task.*Field = time.value.isValid() ? std::optional(time.value) : std::nullopt;
        m_task.*IsDateOnly = time.isDate;
    }
    void readCompleted(const ContentLine &line);
    void readRecurrenceRule(const ContentLine &line) { m_task.recurrenceRule = QString::fromUtf8(line.value()); }
    void readRecurrenceId(const ContentLine &) { m_isOverride = true; }
    void readStatus(const ContentLine &line) { m_task.status = QString::fromUtf8(line.value()).toLower(); }
    void readCategories(const ContentLine &line);
    void readRelatedTo(const ContentLine &line);
    void readRepeatMode(const ContentLine &line);
    void readItemType(const ContentLine &line);
    void readSortOrder(const ContentLine &line);

    ICalParser::DateTimeValue readTime(const ContentLine &line)
    {
        return m_times.read(line.value(), line.parameter("TZID"));
    }

    DateTimeReader m_times;
    Task m_task;
    QByteArray m_raw;
    std::optional<Alarm> m_alarm; // set while within a VALARM
    bool m_isOverride = false;
};

void TaskBuilder::addLine(QByteArrayView line)
{
    m_raw.append(line).append("\r\n");
    if (line == "BEGIN:VALARM") {
        m_alarm.emplace();
    } else if (!m_alarm) {
        readProperty(ContentLine(line));
    } else if (line == "END:VALARM") {
        if (const std::optional<Reminder> reminder = m_alarm->taskReminder())
            m_task.reminders.append(*reminder);
        m_alarm.reset();
    } else {
        m_alarm->readLine(ContentLine(line));
    }
}

Task TaskBuilder::finish()
{
    m_raw.append("END:VTODO\r\n");
    m_task.rawIcalendar = QString::fromUtf8(m_raw);
    return std::move(m_task);
}

void TaskBuilder::readProperty(const ContentLine &line)
{
    using Reader = void (TaskBuilder::*)(const ContentLine &);
    struct Property {
        QByteArrayView name;
        Reader reader;
    };
    static constexpr std::array properties{
        Property{ "UID", &TaskBuilder::readText<&Task::uid> },
        Property{ "SUMMARY", &TaskBuilder::readText<&Task::title> },
        Property{ "DESCRIPTION", &TaskBuilder::readText<&Task::description> },
        Property{ "DTSTART", &TaskBuilder::readDate<&Task::startDate, &Task::startIsDateOnly> },
        Property{ "DUE", &TaskBuilder::readDate<&Task::dueDate, &Task::dueIsDateOnly> },
        Property{ "COMPLETED", &TaskBuilder::readCompleted },
        Property{ "STATUS", &TaskBuilder::readStatus },
        Property{ "PRIORITY", &TaskBuilder::readNumber<&Task::priority> },
        Property{ "PERCENT-COMPLETE", &TaskBuilder::readNumber<&Task::percentComplete> },
        Property{ "SEQUENCE", &TaskBuilder::readNumber<&Task::sequence> },
        Property{ "RRULE", &TaskBuilder::readRecurrenceRule },
        Property{ "RECURRENCE-ID", &TaskBuilder::readRecurrenceId },
        Property{ "CATEGORIES", &TaskBuilder::readCategories },
        Property{ "RELATED-TO", &TaskBuilder::readRelatedTo },
        Property{ "CREATED", &TaskBuilder::readStamp<&Task::created> },
        Property{ "LAST-MODIFIED", &TaskBuilder::readStamp<&Task::lastModified> },
        Property{ "X-QUILLON-REPEAT-MODE", &TaskBuilder::readRepeatMode },
        Property{ "X-QUILLON-ITEM-TYPE", &TaskBuilder::readItemType },
        Property{ "X-QUILLON-SORT-ORDER", &TaskBuilder::readSortOrder },
    };
    const auto found = std::ranges::find_if(properties, [&line](const Property &known) { return line.is(known.name); });
    if (found != properties.end())
        (this->*found->reader)(line);
}

void TaskBuilder::readCompleted(const ContentLine &line)
{
    const QDateTime completed = readTime(line).value;
    m_task.completedDate = completed.isValid() ? std::optional(completed) : std::nullopt;
}

void TaskBuilder::readCategories(const ContentLine &line)
{
    m_task.categories.clear();
    const QList<QByteArray> parts = line.value().toByteArray().split(',');
    for (const QByteArray &part : parts) {
        if (!part.isEmpty())
            m_task.categories.append(unescapedText(part.trimmed()));
    }
}

void TaskBuilder::readRelatedTo(const ContentLine &line)
{
    if (isParentRelation(line))
        m_task.parentTaskUid = unescapedText(line.value());
}

void TaskBuilder::readRepeatMode(const ContentLine &line)
{
    if (line.value().trimmed() == "fromCompletionDate")
        m_task.repeatMode = QStringLiteral("fromCompletionDate");
}

void TaskBuilder::readItemType(const ContentLine &line)
{
    if (isWord(line.value().trimmed(), "reminder"))
        m_task.itemType = QStringLiteral("reminder");
}

void TaskBuilder::readSortOrder(const ContentLine &line)
{
    if (const int order = line.value().trimmed().toInt(); order >= 1)
        m_task.sortOrder = order;
}

}

QList<Task> ICalParser::parseTasks(const QByteArray &utf8)
{
    QList<Task> tasks;
    QHash<QString, QString> overrides; // the text of all of one UID
    TaskBuilder builder;
    bool isInTask = false;
    for (LineReader lines(utf8); lines.next(utf8.size());) {
        const QByteArrayView line = lines.line();
        if (line == "BEGIN:VTODO") {
            isInTask = true;
            builder.begin();
        } else if (isInTask && line == "END:VTODO") {
            isInTask = false;
            Task task = builder.finish();
            if (task.uid.isEmpty())
                continue;
            if (builder.isOverride())
                overrides[task.uid] += task.rawIcalendar;
            else
                tasks.append(std::move(task));
        } else if (isInTask) {
            builder.addLine(line);
        }
    }
    if (!overrides.isEmpty()) {
        for (Task &task : tasks)
            task.rawIcalendar += overrides.take(task.uid);
    }
    return tasks;
}
