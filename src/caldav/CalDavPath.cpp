#include "caldav/CalDavPath.h"

#include <QCryptographicHash>
#include <QRegularExpression>

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

// Applies \p convert to the parts of a path between slashes within names ("%2F"), and what would look like one once it
// is decoded ("%252F"): those stay as they are, kept or encoded.
QString convertPath(const QString &path, QString (*convert)(const QString &))
{
    static const QRegularExpression slash(QStringLiteral("%(?:25)*2F"), QRegularExpression::CaseInsensitiveOption);
    QString converted;
    qsizetype partStart = 0;
    for (auto found = slash.globalMatch(path); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        converted += convert(path.sliced(partStart, match.capturedStart() - partStart)) + match.captured();
        partStart = match.capturedEnd();
    }
    return converted + convert(path.sliced(partStart));
}

QString decode(const QString &encoded)
{
    return QUrl::fromPercentEncoding(encoded.toLatin1());
}

QString encode(const QString &decoded)
{
    QUrl url;
    url.setPath(decoded, QUrl::DecodedMode);
    return url.path(QUrl::FullyEncoded);
}

bool isWeak(const QString &etag)
{
    return etag.startsWith(QLatin1StringView("W/"));
}

}

QString ofUrl(const QUrl &url)
{
    return convertPath(url.path(QUrl::FullyEncoded), decode);
}

QUrl resourceUrl(const QUrl &calendarUrl, const QString &path)
{
    QUrl url = calendarUrl.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment);
    url.setPath(convertPath(path, encode), QUrl::TolerantMode);
    return url;
}

QString newResourcePath(const QUrl &calendarUrl, const QString &uid)
{
    QUrl url = calendarUrl;
    QString path = url.path(QUrl::FullyEncoded);
    if (!path.endsWith(u'/'))
        path += u'/';
    url.setPath(path + encode(resourceName(uid) + QLatin1StringView(".ics")), QUrl::TolerantMode);
    return ofUrl(url);
}

QString toHref(const QString &path)
{
    return convertPath(path, encode).toHtmlEscaped();
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
