#include "calendar/ICalParser.h"
#include "calendar/ICalRecordBuilder.h"

#include <QHash>

using namespace ICal;

namespace {

/// Makes one task after the other out of the lines of their VTODOs.
class TaskBuilder : private RecordBuilder<Task> {
public:
    /// For BEGIN:VTODO.
    void begin()
    {
        RecordBuilder::begin("BEGIN:VTODO\r\n");
        m_isOverride = false;
    }
    void addLine(QByteArrayView line) { RecordBuilder::addLine(line, *this); }
    /// For END:VTODO: the task, to be moved away. Its UID may be empty.
    Task &finish() { return RecordBuilder::finish("END:VTODO\r\n"); }
    /// True if the task is one instance of a series, changed. As a row it would be a second task with the
    /// UID of that series.
    [[nodiscard]] bool isOverride() const { return m_isOverride; }

private:
    friend RecordBuilder;

    void readProperty(const ContentLine &line);
    void addAlarm(const Alarm &alarm)
    {
        if (std::optional<Reminder> reminder = alarm.taskReminder())
            m_record.reminders.append(*std::move(reminder));
    }
    template <std::optional<QDateTime> Task::*Field, bool Task::*IsDateOnly> void readDate(const ContentLine &line)
    {
        const ICalParser::DateTimeValue time = readTime(line);
        m_record.*Field = time.value.isValid() ? std::optional(time.value) : std::nullopt;
        m_record.*IsDateOnly = time.isDate;
    }
    void readCompleted(const ContentLine &line);
    void readRecurrenceId(const ContentLine &) { m_isOverride = true; }
    void readCategories(const ContentLine &line);
    void readRelatedTo(const ContentLine &line);
    void readRepeatMode(const ContentLine &line);
    void readItemType(const ContentLine &line);
    void readSortOrder(const ContentLine &line);

    bool m_isOverride = false;
};

void TaskBuilder::readProperty(const ContentLine &line)
{
    using Self = TaskBuilder;
    using Properties = PropertyTable<Self, 19>;
    static constexpr Properties properties({ {
        { "UID", &Self::readText<&Task::uid> },
        { "SUMMARY", &Self::readText<&Task::title> },
        { "DESCRIPTION", &Self::readText<&Task::description> },
        { "DTSTART", &Self::readDate<&Task::startDate, &Task::startIsDateOnly> },
        { "DUE", &Self::readDate<&Task::dueDate, &Task::dueIsDateOnly> },
        { "COMPLETED", &Self::readCompleted },
        { "STATUS", &Self::readLowerCase<&Task::status> },
        { "PRIORITY", &Self::readNumber<&Task::priority> },
        { "PERCENT-COMPLETE", &Self::readNumber<&Task::percentComplete> },
        { "SEQUENCE", &Self::readNumber<&Task::sequence> },
        { "RRULE", &Self::readAsItStands<&Task::recurrenceRule> },
        { "RECURRENCE-ID", &Self::readRecurrenceId },
        { "CATEGORIES", &Self::readCategories },
        { "RELATED-TO", &Self::readRelatedTo },
        { "CREATED", &Self::readStamp<&Task::created> },
        { "LAST-MODIFIED", &Self::readStamp<&Task::lastModified> },
        { "X-QUILLON-REPEAT-MODE", &Self::readRepeatMode },
        { "X-QUILLON-ITEM-TYPE", &Self::readItemType },
        { "X-QUILLON-SORT-ORDER", &Self::readSortOrder },
    } });
    properties.read(*this, line);
}

void TaskBuilder::readCompleted(const ContentLine &line)
{
    const QDateTime completed = readTime(line).value;
    m_record.completedDate = completed.isValid() ? std::optional(completed) : std::nullopt;
}

void TaskBuilder::readCategories(const ContentLine &line)
{
    m_record.categories = unescapedList(line.value());
}

void TaskBuilder::readRelatedTo(const ContentLine &line)
{
    if (isParentRelation(line))
        m_record.parentTaskUid = unescapedText(line.value());
}

void TaskBuilder::readRepeatMode(const ContentLine &line)
{
    if (line.value().trimmed() == "fromCompletionDate")
        m_record.repeatMode = QStringLiteral("fromCompletionDate");
}

void TaskBuilder::readItemType(const ContentLine &line)
{
    if (isWord(line.value().trimmed(), "reminder"))
        m_record.itemType = QStringLiteral("reminder");
}

void TaskBuilder::readSortOrder(const ContentLine &line)
{
    if (const int order = line.value().trimmed().toInt(); order >= 1)
        m_record.sortOrder = order;
}

}

QList<Task> ICalParser::parseTasks(const QByteArray &utf8)
{
    QList<Task> tasks;
    QHash<QString, QString> overrides; // the text of all of one UID
    TaskBuilder builder;
    bool isInTask = false;
    LineReader lines(utf8);
    while (lines.next(utf8.size())) {
        const QByteArrayView line = lines.line();
        if (line == "BEGIN:VTODO") {
            isInTask = true;
            builder.begin();
        } else if (isInTask && line == "END:VTODO") {
            isInTask = false;
            Task &task = builder.finish();
            if (builder.isOverride())
                overrides[task.uid] += task.rawIcalendar;
            else if (!task.uid.isEmpty())
                tasks.append(std::move(task));
        } else if (isInTask) {
            builder.addLine(line);
        }
        if (!isInTask)
            lines.skipTo('B'); // most of a file is events
    }
    if (!overrides.isEmpty()) {
        for (Task &task : tasks)
            task.rawIcalendar += overrides.take(task.uid);
    }
    return tasks;
}
