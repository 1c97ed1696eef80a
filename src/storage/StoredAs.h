#pragma once

#include "storage/StoredTime.h"
#include "storage/Table.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>
#include <QVariant>

#include <optional>

/// How the value of a member stands in its column. To be named in column<&Record::member, …>(…).
namespace StoredAs {

/// In a NOT NULL column. QString() is NULL for Qt, so the empty text needs care.
struct Text {
    static QVariant store(const QString &text) { return text.isNull() ? QStringLiteral("") : text; }
    static void load(QString &text, const QVariant &value) { text = value.toString(); }
};

/// In a column that may be NULL: there the empty text is NULL.
struct NullableText {
    static QVariant store(const QString &text) { return text.isEmpty() ? QVariant() : QVariant(text); }
    static void load(QString &text, const QVariant &value) { text = value.toString(); }
};

struct Number {
    static QVariant store(int number) { return number; }
    static void load(int &number, const QVariant &value) { number = value.toInt(); }
};

struct Flag {
    static QVariant store(bool flag) { return flag ? 1 : 0; }
    static void load(bool &flag, const QVariant &value) { flag = value.toInt() != 0; }
};

/// A point in time as a writer gave it; NULL when invalid.
struct Time {
    static QVariant store(const QDateTime &time) { return StoredTime::store(time); }
    static void load(QDateTime &time, const QVariant &value) { time = StoredTime::parse(value.toString()); }
};

struct OptionalTime {
    static QVariant store(const std::optional<QDateTime> &time) { return time ? StoredTime::store(*time) : QVariant(); }
    static void load(std::optional<QDateTime> &time, const QVariant &value)
    {
        const QDateTime parsed = StoredTime::parse(value.toString());
        time = parsed.isValid() ? std::optional(parsed) : std::nullopt;
    }
};

/// A time that the program itself took; an invalid one is written as now.
struct Stamp {
    static QVariant store(const QDateTime &time)
    {
        return StoredTime::store(time.isValid() ? time : QDateTime::currentDateTimeUtc());
    }
    static void load(QDateTime &time, const QVariant &value) { time = StoredTime::parseStamp(value.toString()); }
};

struct OptionalStamp {
    static QVariant store(const std::optional<QDateTime> &time) { return OptionalTime::store(time); }
    static void load(std::optional<QDateTime> &time, const QVariant &value)
    {
        const QDateTime parsed = StoredTime::parseStamp(value.toString());
        time = parsed.isValid() ? std::optional(parsed) : std::nullopt;
    }
};

/// A QStringList or a QList<int> as a compact JSON array. Text that is none gives an empty list.
struct JsonArray {
    static QVariant store(const QStringList &texts) { return compact(QJsonArray::fromStringList(texts)); }
    static QVariant store(const QList<int> &numbers)
    {
        QJsonArray array;
        for (const int number : numbers)
            array.append(number);
        return compact(array);
    }
    static void load(QStringList &texts, const QVariant &value)
    {
        texts.clear();
        for (const auto element : parse(value))
            texts.append(element.toString());
    }
    static void load(QList<int> &numbers, const QVariant &value)
    {
        numbers.clear();
        for (const auto element : parse(value))
            numbers.append(element.toInt());
    }

private:
    static QString compact(const QJsonArray &array)
    {
        return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
    }
    static QJsonArray parse(const QVariant &value)
    {
        return QJsonDocument::fromJson(value.toString().toUtf8()).array();
    }
};

template <typename Record, typename Value> Record recordOf(Value Record::*);

} // namespace StoredAs

/// The column \p name holds the record's \p Member in the form \p As.
template <auto Member, typename As> auto column(const char *name, Write write = Write::Always)
{
    using Record = decltype(StoredAs::recordOf(Member));
    return Column<Record>{ name, [](const Record &record) { return QVariant(As::store(record.*Member)); },
                           [](Record &record, const QVariant &value) { As::load(record.*Member, value); }, write };
}
