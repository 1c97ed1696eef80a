#include "calendar/TextLinks.h"

#include <QRegularExpression>

QList<TextLinks::Piece> TextLinks::pieces(QStringView text)
{
    static const QRegularExpression urlPattern(QStringLiteral("(https?://[^\\s<>\"]+)"),
                                               QRegularExpression::CaseInsensitiveOption);
    static const QString closing = QStringLiteral(".,;:!?)");
    QList<Piece> pieces;
    qsizetype done = 0;
    for (auto matches = urlPattern.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        QStringView url = match.capturedView();
        while (!url.isEmpty() && closing.contains(url.back()))
            url.chop(1);
        if (match.capturedStart() > done)
            pieces.append({ text.sliced(done, match.capturedStart() - done), false });
        pieces.append({ url, true });
        done = match.capturedStart() + url.size();
    }
    if (done < text.size())
        pieces.append({ text.sliced(done), false });
    return pieces;
}

QString TextLinks::openable(QString url)
{
    constexpr qsizetype maxChars = 4000;
    // Browsers pass over control characters: "java\nscript:" is a script to them.
    url.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
    url = url.trimmed();
    const auto begins = [&url](const char *scheme) {
        return url.startsWith(QLatin1StringView(scheme), Qt::CaseInsensitive);
    };
    const bool isSafe = begins("http://") || begins("https://") || begins("mailto:");
    return isSafe && url.size() <= maxChars ? url : QString();
}

QString TextLinks::anchorTag(const QString &url, const QString &color)
{
    const QString style =
        color.isEmpty() ? QString() : QStringLiteral(" style=\"color:%1;\"").arg(color.toHtmlEscaped());
    return QStringLiteral("<a href=\"%1\"%2>").arg(url.toHtmlEscaped(), style);
}

QString TextLinks::toHtml(QStringView text, const QString &linkColor)
{
    QString html;
    for (const Piece &piece : pieces(text)) {
        const QString plain = piece.text.toString();
        if (piece.isUrl)
            html += anchorTag(plain, linkColor) + plain.toHtmlEscaped() + QLatin1StringView("</a>");
        else
            html += plain.toHtmlEscaped();
    }
    return html;
}
