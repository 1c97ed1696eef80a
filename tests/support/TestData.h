#pragma once

#include <QDateTime>
#include <QStringList>
#include <QTest>

// Short words for tables of test data.

/// The columns of a data-driven test: columns<QString, int>("text", "minutes").
template <typename... Types, typename... Names> void columns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// One row: its name, then a value for each column. A plain "text" becomes a QString.
template <typename... Values> void row(const char *name, const Values &...values)
{
    QTestData &data = QTest::newRow(name);
    (data << ... << values);
}

/// An instant from "2026-03-15" or "2026-03-15T09:00".
inline QDateTime utc(const QString &text)
{
    const QTime time = text.size() > 11 ? QTime::fromString(text.mid(11), Qt::ISODate) : QTime(0, 0);
    return QDateTime(QDate::fromString(text.left(10), Qt::ISODate), time, Qt::UTC);
}

inline QDateTime utc(const char *text)
{
    return utc(QString::fromLatin1(text));
}

/// The ids of the records, separated by blanks.
template <typename Record> QString idsOf(const QList<Record> &records)
{
    QStringList ids;
    for (const Record &record : records)
        ids.append(record.id);
    return ids.join(u' ');
}
