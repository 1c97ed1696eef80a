#pragma once

#include "calendar/ICalLine.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// How a property names times: as dates, in UTC, in a zone, or as the digits of whatever clock reads them.
/// RFC 5545 §3.3.4 and §3.3.5.
class TimeForm {
public:
    enum class Kind { Date, Utc, Floating, Zoned };

    explicit TimeForm(Kind kind)
        : m_kind(kind)
    {
    }
    /// In the zone that \p tzid means to the readers of records; the machine's own if it means none.
    static TimeForm zoned(const QString &tzid);
    /// That of \p line, which keeps its TZID as it stands.
    static TimeForm of(const ICal::ContentLine &line);

    bool operator==(const TimeForm &) const = default;

    [[nodiscard]] bool isDate() const { return m_kind == Kind::Date; }
    [[nodiscard]] Kind kind() const { return m_kind; }
    /// The form, or UTC where it cannot name the instant: the second of two hours that a clock change makes equal.
    [[nodiscard]] TimeForm naming(const QDateTime &time) const;

    /// Empty for a year that has no four digits. The date is that of \p time as it stands.
    [[nodiscard]] QByteArray value(const QDateTime &time) const;
    /// The parameters that go with a value, each with its semicolon before it.
    [[nodiscard]] QByteArray parameters() const;
    /// "DTSTART;TZID=Europe/Berlin:20260315T090000".
    [[nodiscard]] QByteArray line(const QByteArray &name, const QDateTime &time) const;
    /// The same with the further parameters of \p old.
    [[nodiscard]] QByteArray lineAfter(const ICal::ContentLine &old, const QDateTime &time) const;

private:
    Kind m_kind;
    QString m_tzid;
};
