#include "caldav/CalDavPath.h"

#include <QCryptographicHash>

namespace CalDavPath {

namespace {

// File systems take names of 255 bytes; a server may add something of its own.
constexpr qsizetype MaxNameBytes = 200;

// "/" would end the segment and many servers refuse "\" and control characters, however they are written in the
// address: those become part of the name as "%2F" and so on, and "%" itself too, so that two UIDs never share a name.
bool isUnfitForName(QChar c)
{
    return c == u'/' || c == u'\\' || c == u'%' || c.category() == QChar::Other_Control;
}

QString resourceName(const QString &uid)
{
    QString name;
    for (const QChar c : uid) {
        if (isUnfitForName(c))
            name += QString::fromLatin1(QString(c).toUtf8().toPercentEncoding({}, "/\\%"));
        else
            name += c;
    }
    if (name.toUtf8().size() <= MaxNameBytes)
        return name;
    return QString::fromLatin1(QCryptographicHash::hash(uid.toUtf8(), QCryptographicHash::Sha256).toHex());
}

bool isWeak(const QString &etag)
{
    return etag.startsWith(QLatin1StringView("W/"));
}

}

QUrl resourceUrl(const QUrl &calendarUrl, const QString &decodedPath)
{
    QUrl url = calendarUrl.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment);
    url.setPath(decodedPath, QUrl::DecodedMode);
    return url;
}

QString newResourcePath(const QUrl &calendarUrl, const QString &uid)
{
    QString path = calendarUrl.path(QUrl::FullyDecoded);
    if (!path.endsWith(u'/'))
        path += u'/';
    return path + resourceName(uid) + QLatin1StringView(".ics");
}

QString toHref(const QString &decodedPath)
{
    QUrl url;
    url.setPath(decodedPath, QUrl::DecodedMode);
    return url.path(QUrl::FullyEncoded).toHtmlEscaped();
}

QByteArray ifMatch(const QString &etag)
{
    // From XML, where line breaks are allowed; in a header they would begin another one.
    QString value = etag.trimmed();
    value.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    if (value.isEmpty() || isWeak(value))
        return {};
    const bool isQuoted = value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"');
    if (value == u"*" || isQuoted)
        return value.toUtf8();
    return '"' + value.toUtf8() + '"';
}

QString etagFromHeader(const QByteArray &value)
{
    return QString::fromUtf8(value).remove(u'"');
}

} // namespace CalDavPath
