#pragma once

#include <QDateTime>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimeZone>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

#ifdef QT_SQL_LIB
#include <QSqlDatabase>
#include <QSqlQuery>
#endif

#ifdef QT_WIDGETS_LIB
#include <QtWidgets>
#endif
