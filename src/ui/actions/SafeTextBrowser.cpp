#include "ui/actions/SafeTextBrowser.h"

#include "ui/theme/Theme.h"

#include <QDesktopServices>
#include <QUrl>

#include <algorithm>

SafeTextBrowser::SafeTextBrowser(const QString &html, QWidget *parent)
    : QTextBrowser(parent)
{
    setFrameShape(QFrame::NoFrame);
    setOpenLinks(false);
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    setStyleSheet(QStringLiteral("QTextBrowser { background: transparent; border: 0; padding: 0; }"));
    document()->setDocumentMargin(0);
    document()->setDefaultStyleSheet(QStringLiteral("a { color: %1; }").arg(Theme::link().name()));
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHtml(html);
    connect(this, &QTextBrowser::anchorClicked, this, &SafeTextBrowser::openOutside);
}

void SafeTextBrowser::fitTo(int widthPx)
{
    document()->setTextWidth(widthPx);
    setFixedHeight(std::max(fontMetrics().height(), qRound(document()->size().height()) + 2));
}

void SafeTextBrowser::openOutside(const QUrl &url)
{
    const QString scheme = url.scheme().toLower();
    if (scheme == QLatin1StringView("http") || scheme == QLatin1StringView("https")
        || scheme == QLatin1StringView("mailto"))
        QDesktopServices::openUrl(url);
}

QVariant SafeTextBrowser::loadResource(int, const QUrl &)
{
    return {};
}
