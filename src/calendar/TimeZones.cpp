#include "calendar/TimeZones.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace {

// Names come from files: neither a long one nor a file full of odd ones may cost much.
constexpr qsizetype MaxNameLength = 255;
constexpr qsizetype MaxCached = 1000;

// The IANA names without a slash, a closed set. QTimeZone alone will not do here: it takes "ABC" or
// "Pacific1" for a POSIX rule, and so for UTC.
constexpr std::array SlashlessNames{
    QLatin1StringView("CET"),       QLatin1StringView("CST6CDT"),   QLatin1StringView("Cuba"),
    QLatin1StringView("EET"),       QLatin1StringView("EST"),       QLatin1StringView("EST5EDT"),
    QLatin1StringView("Egypt"),     QLatin1StringView("Eire"),      QLatin1StringView("GB"),
    QLatin1StringView("GB-Eire"),   QLatin1StringView("GMT"),       QLatin1StringView("GMT+0"),
    QLatin1StringView("GMT-0"),     QLatin1StringView("GMT0"),      QLatin1StringView("Greenwich"),
    QLatin1StringView("HST"),       QLatin1StringView("Hongkong"),  QLatin1StringView("Iceland"),
    QLatin1StringView("Iran"),      QLatin1StringView("Israel"),    QLatin1StringView("Jamaica"),
    QLatin1StringView("Japan"),     QLatin1StringView("Kwajalein"), QLatin1StringView("Libya"),
    QLatin1StringView("MET"),       QLatin1StringView("MST"),       QLatin1StringView("MST7MDT"),
    QLatin1StringView("NZ"),        QLatin1StringView("NZ-CHAT"),   QLatin1StringView("Navajo"),
    QLatin1StringView("PRC"),       QLatin1StringView("PST8PDT"),   QLatin1StringView("Poland"),
    QLatin1StringView("Portugal"),  QLatin1StringView("ROC"),       QLatin1StringView("ROK"),
    QLatin1StringView("Singapore"), QLatin1StringView("Turkey"),    QLatin1StringView("UCT"),
    QLatin1StringView("UTC"),       QLatin1StringView("Universal"), QLatin1StringView("W-SU"),
    QLatin1StringView("WET"),       QLatin1StringView("Zulu"),
};

constexpr std::array Areas{
    QLatin1StringView("Africa/"), QLatin1StringView("America/"),   QLatin1StringView("Antarctica/"),
    QLatin1StringView("Arctic/"), QLatin1StringView("Asia/"),      QLatin1StringView("Atlantic/"),
    QLatin1StringView("Brazil/"), QLatin1StringView("Australia/"), QLatin1StringView("Canada/"),
    QLatin1StringView("Chile/"),  QLatin1StringView("Etc/"),       QLatin1StringView("Europe/"),
    QLatin1StringView("Indian/"), QLatin1StringView("Mexico/"),    QLatin1StringView("Pacific/"),
    QLatin1StringView("US/"),
};

bool isNameCharacter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'_' || c == u'-'
        || c == u'+' || c == u'/';
}

// QTimeZone opens the name as a path below the folder of zones, so no part of it may lead out of there.
bool isInArea(QStringView name)
{
    return std::ranges::any_of(Areas, [name](QLatin1StringView area) { return name.startsWith(area); })
        && std::ranges::all_of(name, isNameCharacter) && !name.contains(QLatin1StringView("//"));
}

// "UTC+05:30"
bool isOffset(QStringView name)
{
    constexpr qsizetype signEnd = 4;
    return (name.startsWith(u"UTC+") || name.startsWith(u"UTC-"))
        && std::ranges::all_of(name.sliced(signEnd), [](QChar c) { return (c >= u'0' && c <= u'9') || c == u':'; });
}

QTimeZone strictZone(QStringView name)
{
    const auto slashless = std::ranges::find_if(SlashlessNames, [name](QLatin1StringView known) {
        return name.compare(known, Qt::CaseInsensitive) == 0; // "tzone://Microsoft/Utc"
    });
    if (slashless != SlashlessNames.end())
        return QTimeZone(QByteArray(slashless->data(), slashless->size()));
    return isOffset(name) || isInArea(name) ? QTimeZone(name.toUtf8()) : QTimeZone();
}

/// The longest ending of \p name that is a zone. A whole path component, or one such as
/// "custom_America/New_York", where something was put before the name.
QTimeZone zoneAtEnd(QStringView name)
{
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (name[i].isLetterOrNumber())
            continue;
        const QStringView ending = name.sliced(i + 1);
        if (name[i] != u'/' && !ending.contains(u'/'))
            continue;
        if (QTimeZone zone = strictZone(ending); zone.isValid())
            return zone;
    }
    return {};
}

QTimeZone zoneNamed(QStringView name)
{
    if (QTimeZone zone = strictZone(name); zone.isValid())
        return zone;
    if (const QByteArray iana = QTimeZone::windowsIdToDefaultIanaId(name.toUtf8()); !iana.isEmpty())
        return QTimeZone(iana);
    return zoneAtEnd(name);
}

QStringView withoutQuotes(QStringView name)
{
    name = name.trimmed();
    if (name.size() >= 2 && name.startsWith(u'"') && name.endsWith(u'"'))
        name = name.sliced(1, name.size() - 2).trimmed();
    return name;
}

using Cache = QHash<QString, QTimeZone>;

QTimeZone remembered(Cache &cache, const QString &name, QTimeZone (*lookUp)(QStringView))
{
    auto it = cache.constFind(name);
    if (it == cache.cend()) {
        if (cache.size() >= MaxCached)
            cache.clear();
        it = cache.insert(name, lookUp(name));
    }
    return *it;
}

}

QTimeZone TimeZones::find(QStringView tzid)
{
    thread_local Cache cache;
    const QStringView name = withoutQuotes(tzid);
    return name.size() > MaxNameLength ? QTimeZone() : remembered(cache, name.toString(), zoneNamed);
}

QTimeZone TimeZones::ianaZone(const QString &id)
{
    thread_local Cache cache;
    return id.size() > MaxNameLength ? QTimeZone() : remembered(cache, id, strictZone);
}

QTimeZone::OffsetDataList TimeZones::changes(const QTimeZone &zone, const QDateTime &from, const QDateTime &to)
{
    QTimeZone::OffsetDataList changes;
    for (QDateTime after = from;;) {
        const QTimeZone::OffsetData change = zone.nextTransition(after);
        if (!change.atUtc.isValid() || change.atUtc <= after || change.atUtc > to)
            return changes;
        changes.append(change);
        after = change.atUtc.addSecs(1); // at the very last one of the file the search would end
    }
}

QString TimeZones::systemName()
{
    const QString name = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    return ianaZone(name).isValid() ? name : QStringLiteral("UTC");
}
