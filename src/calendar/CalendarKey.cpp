#include "calendar/CalendarKey.h"

#include "models/Constants.h"

#include <QCryptographicHash>
#include <QHash>
#include <QUrl>

#include <algorithm>

namespace {

constexpr QLatin1StringView PersonalName{ "personal" };

QLatin1StringView familyOf(const QString &accountType)
{
    if (accountType == AccountType::ICloud || accountType == AccountType::Zoho)
        return AccountType::CalDAV;
    for (const QLatin1StringView type : { AccountType::CalDAV, AccountType::Google, AccountType::Microsoft,
                                          AccountType::Quillon, AccountType::Webcal }) {
        if (accountType == type)
            return type;
    }
    return {};
}

QString withoutPrefix(const QString &text, std::initializer_list<QLatin1StringView> prefixes)
{
    for (const QLatin1StringView prefix : prefixes) {
        if (text.startsWith(prefix, Qt::CaseInsensitive))
            return text.mid(prefix.size());
    }
    return text;
}

QString withoutTrailingSlashes(QString text)
{
    while (text.endsWith(u'/'))
        text.chop(1);
    return text;
}

// What names a calendar within the cloud, without the scheme that says where it lives.
QString cloudName(const QString &url)
{
    const QString name = withoutPrefix(url, { QLatin1StringView("quillon://"), QLatin1StringView("local://") });
    return withoutPrefix(name, { QLatin1StringView("calendar/") });
}

QString collectionPath(const QString &text)
{
    const QUrl url(text);
    if (!url.isValid() || url.scheme().isEmpty())
        return text;
    return url.hasQuery() ? url.path() + u'?' + url.query() : url.path();
}

}

std::optional<QString> Quillon::CalendarKey::compute(const QString &accountType, const QString &url)
{
    const QLatin1StringView family = familyOf(accountType);
    QString text = url.trimmed().toLower();
    if (family.isEmpty() || text.isEmpty())
        return std::nullopt;
    if (family == AccountType::CalDAV)
        text = collectionPath(text);
    if (family == AccountType::Quillon) {
        text = cloudName(text);
        if (text == PersonalName)
            text = LocalDefaults::PersonalCalendarId;
    }
    const QString named = family + u':' + withoutTrailingSlashes(text);
    return QString::fromLatin1(QCryptographicHash::hash(named.toUtf8(), QCryptographicHash::Sha256).toHex());
}

QString Quillon::CalendarKey::serverIdFor(const QString &calendarId, const QString &url)
{
    const QString name = withoutTrailingSlashes(cloudName(url.trimmed()));
    if (name.isEmpty())
        return calendarId;
    return name.compare(PersonalName, Qt::CaseInsensitive) == 0 ? QString(LocalDefaults::PersonalCalendarId) : name;
}

QString Quillon::CalendarKey::resolve(const QString &key, const QList<Calendar> &calendars)
{
    const auto found = std::ranges::find(calendars, key, &Calendar::canonicalKey);
    return key.isEmpty() || found == calendars.end() ? QString() : found->id;
}

QStringList Quillon::CalendarKey::idsToKeys(const QStringList &ids, const QList<Calendar> &calendars)
{
    QHash<QString, QString> keys;
    for (const Calendar &calendar : calendars) {
        if (!calendar.canonicalKey.isEmpty())
            keys.insert(calendar.id, calendar.canonicalKey);
    }
    QStringList result;
    for (const QString &id : ids) {
        if (const auto key = keys.constFind(id); key != keys.cend())
            result.append(*key);
    }
    return result;
}

QStringList Quillon::CalendarKey::keysToIds(const QStringList &keys, const QList<Calendar> &calendars)
{
    QStringList result;
    for (const QString &key : keys) {
        if (const QString id = resolve(key, calendars); !id.isEmpty())
            result.append(id);
    }
    return result;
}

QSet<QString> Quillon::CalendarKey::collapseServerIds(const QSet<QString> &serverIds)
{
    QSet<QString> result;
    for (const QString &id : serverIds)
        result.insert(serverIdFor(id, QLatin1StringView("quillon://") + id));
    return result;
}

bool Quillon::CalendarKey::serverListContains(const QSet<QString> &collapsed, const QString &calendarId,
                                              const QString &url)
{
    return collapsed.contains(serverIdFor(calendarId, url));
}
