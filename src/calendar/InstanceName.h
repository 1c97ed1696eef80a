#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

/// An instance of a series, named by the time at which the rule has it begin: how recurrence ids and exception
/// dates are stored.
struct InstanceName {
    enum class Form {
        Utc, ///< "yyyyMMddTHHmmssZ"
        Local, ///< "yyyyMMddTHHmmss", the machine's own time
        Date, ///< "yyyyMMdd", 00:00 UTC as all-day events are stored
    };

    qint64 startMs = 0; ///< since the epoch
    Form form = Form::Utc;

    static std::optional<InstanceName> parse(QStringView text);
    /// In the form it has; in UTC where that form cannot name the instant.
    [[nodiscard]] QString text() const;

    /// What a stored list of exception dates holds. Anything else than a JSON array of names gives fewer.
    static QList<InstanceName> listFrom(const QString &json);
    /// The list with each name changed, or without it where \p change gives none. Elements that are no names
    /// stay, and so does a text that is no list.
    using Change = std::function<std::optional<InstanceName>(const InstanceName &)>;
    static QString changedList(const QString &json, const Change &change);
};
