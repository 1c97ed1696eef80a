#include "calendar/FilterEngine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <initializer_list>

// The JSON form of filter conditions and calendar sets. Other devices read the same texts.

using FilterEngine::AllDayConditions;
using FilterEngine::FilterConditions;
using FilterEngine::PatternConditions;
using FilterEngine::SpecificConditions;
using FilterEngine::TimeConditions;

namespace {

constexpr QLatin1StringView RuntimeType{ "runtimeType" };
constexpr QLatin1StringView Pattern{ "pattern" };
constexpr QLatin1StringView Time{ "time" };
constexpr QLatin1StringView Specific{ "specific" };
constexpr QLatin1StringView AllDay{ "allDay" };
constexpr QLatin1StringView TitleContains{ "titleContains" };
constexpr QLatin1StringView TitleExact{ "titleExact" };
constexpr QLatin1StringView DescriptionContains{ "descriptionContains" };
constexpr QLatin1StringView LocationContains{ "locationContains" };
constexpr QLatin1StringView CaseSensitive{ "caseSensitive" };
constexpr QLatin1StringView TimeExact{ "timeExact" };
constexpr QLatin1StringView TimeRange{ "timeRange" };
constexpr QLatin1StringView Start{ "start" };
constexpr QLatin1StringView End{ "end" };
constexpr QLatin1StringView DaysOfWeek{ "daysOfWeek" };
constexpr QLatin1StringView RecurringOnly{ "recurringOnly" };

QStringList readList(const QJsonValue &value)
{
    QStringList texts;
    const QJsonArray array = value.toArray();
    texts.reserve(array.size());
    for (const QJsonValue &element : array)
        texts.append(element.toString());
    return texts;
}

PatternConditions readPattern(const QJsonObject &object)
{
    return { .titleContains = readList(object[TitleContains]),
             .titleExact = readList(object[TitleExact]),
             .descriptionContains = readList(object[DescriptionContains]),
             .locationContains = readList(object[LocationContains]),
             .caseSensitive = object[CaseSensitive].toBool() };
}

TimeConditions readTime(const QJsonObject &object)
{
    const QJsonObject range = object[TimeRange].toObject();
    return { .timeExact = object[TimeExact].toString(),
             .rangeStart = range[Start].toString(),
             .rangeEnd = range[End].toString(),
             .daysOfWeek = readList(object[DaysOfWeek]),
             .recurringOnly = object[RecurringOnly].toBool() };
}

QString jsonText(const QJsonValue &value)
{
    // A one-element array is the way to write a plain value.
    const QByteArray array = QJsonDocument(QJsonArray{ value }).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.sliced(1, array.size() - 2));
}

QString jsonText(const QStringList &texts)
{
    return jsonText(QJsonValue(QJsonArray::fromStringList(texts)));
}

struct Member {
    QLatin1StringView key;
    QString json;
};

/// One object with its keys in the order given, as other devices write it; QJsonObject would sort them.
QString objectText(std::initializer_list<Member> members)
{
    QStringList parts;
    for (const Member &member : members)
        parts.append(jsonText(QString(member.key)) + u':' + member.json);
    return u'{' + parts.join(u',') + u'}';
}

QString toText(const PatternConditions &conditions)
{
    return objectText({ { RuntimeType, jsonText(QString(Pattern)) },
                        { TitleContains, jsonText(conditions.titleContains) },
                        { TitleExact, jsonText(conditions.titleExact) },
                        { DescriptionContains, jsonText(conditions.descriptionContains) },
                        { LocationContains, jsonText(conditions.locationContains) },
                        { CaseSensitive, jsonText(conditions.caseSensitive) } });
}

QString toText(const TimeConditions &conditions)
{
    const QString range =
        objectText({ { Start, jsonText(conditions.rangeStart) }, { End, jsonText(conditions.rangeEnd) } });
    return objectText({ { RuntimeType, jsonText(QString(Time)) },
                        { TimeExact, jsonText(conditions.timeExact) },
                        { TimeRange, range },
                        { DaysOfWeek, jsonText(conditions.daysOfWeek) },
                        { RecurringOnly, jsonText(conditions.recurringOnly) } });
}

QString toText(const SpecificConditions &)
{
    return objectText({ { RuntimeType, jsonText(QString(Specific)) } });
}

QString toText(const AllDayConditions &conditions)
{
    return objectText(
        { { RuntimeType, jsonText(QString(AllDay)) }, { RecurringOnly, jsonText(conditions.recurringOnly) } });
}

}

std::optional<FilterConditions> FilterEngine::parseConditions(const QString &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    const QString type = object[RuntimeType].toString();
    if (type == Pattern)
        return readPattern(object);
    if (type == Time)
        return readTime(object);
    if (type == Specific)
        return SpecificConditions{};
    if (type == AllDay)
        return AllDayConditions{ .recurringOnly = object[RecurringOnly].toBool() };
    return std::nullopt;
}

QString FilterEngine::conditionsToJson(const FilterConditions &conditions)
{
    return std::visit([](const auto &alternative) { return toText(alternative); }, conditions);
}

QSet<QString> FilterEngine::parseCalendarIds(const QString &json)
{
    QSet<QString> ids;
    const QStringList texts = readList(QJsonDocument::fromJson(json.toUtf8()).array());
    for (const QString &id : texts) {
        if (!id.isEmpty())
            ids.insert(id);
    }
    return ids;
}
