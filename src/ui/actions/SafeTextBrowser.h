#pragma once

#include <QTextBrowser>

/// Shows HTML of others. Links open outside, and only http, https and mailto; nothing is ever loaded.
class SafeTextBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit SafeTextBrowser(const QString &html, QWidget *parent = nullptr);

    void fitTo(int widthPx); ///< as tall as the text is at that width
    static void openOutside(const QUrl &url);

    QVariant loadResource(int type, const QUrl &name) override;
};
