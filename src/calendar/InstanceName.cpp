#include "calendar/InstanceName.h"

#include "calendar/CivilDate.h"
#include "calendar/RecurrenceRule.h"
#include "calendar/RruleExpander.h"
#include "calendar/WallClock.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

QString textIn(InstanceName::Form form, qint64 startMs)
{
    switch (form) {
    case InstanceName::Form::Local:
        return QDateTime::fromMSecsSinceEpoch(startMs).toString(u"yyyyMMdd'T'HHmmss");
    case InstanceName::Form::Date:
        return QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC).toString(u"yyyyMMdd");
    case InstanceName::Form::Utc:
        break;
    }
    return RruleExpander::formatRecurrenceId(QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC));
}

}

std::optional<InstanceName> InstanceName::parse(QStringView text)
{
    const bool isDate = !text.contains(u'T');
    const bool isUtc = !isDate && text.endsWith(u'Z');
    const std::optional<CompactTime> time = CompactTime::parse(text.chopped(isUtc ? 1 : 0));
    if (!time)
        return std::nullopt;
    if (!isDate && !isUtc)
        return InstanceName{ WallClock(QTimeZone()).toUtcMs(time->day, time->msOfDay), Form::Local };
    return InstanceName{ time->day * Civil::MsPerDay + time->msOfDay, isDate ? Form::Date : Form::Utc };
}

QString InstanceName::text() const
{
    const QString text = textIn(form, startMs);
    // A local time can mean two instants, and a date only midnight.
    const std::optional<InstanceName> read = parse(text);
    return read && read->startMs == startMs ? text : textIn(Form::Utc, startMs);
}

QList<InstanceName> InstanceName::listFrom(const QString &json)
{
    QList<InstanceName> names;
    if (json.isEmpty())
        return names;
    const QJsonArray array = QJsonDocument::fromJson(json.toUtf8()).array();
    for (const QJsonValue &value : array) {
        if (const std::optional<InstanceName> name = parse(value.toString()))
            names.append(*name);
    }
    return names;
}

QString InstanceName::changedList(const QString &json, const Change &change)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isArray())
        return json;
    QJsonArray changed;
    const QJsonArray array = document.array();
    for (const QJsonValue &value : array) {
        const std::optional<InstanceName> name = parse(value.toString());
        if (!name)
            changed.append(value);
        else if (const std::optional<InstanceName> other = change(*name))
            changed.append(other->text());
    }
    return changed.isEmpty() ? QString() : QString::fromUtf8(QJsonDocument(changed).toJson(QJsonDocument::Compact));
}
