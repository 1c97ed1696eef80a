#include "ui/dialogs/IcsDrop.h"

#include <QMimeData>
#include <QUrl>

QStringList IcsDrop::localPathsIn(const QMimeData *data)
{
    QStringList paths;
    if (!data || !data->hasUrls())
        return paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        const QString path = url.toLocalFile();
        if (path.endsWith(u".ics", Qt::CaseInsensitive) && !paths.contains(path))
            paths.append(path);
    }
    return paths;
}

bool IcsDrop::hasIcs(const QMimeData *data)
{
    return !localPathsIn(data).isEmpty();
}
