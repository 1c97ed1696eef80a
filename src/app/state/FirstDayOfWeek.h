#pragma once

#include <QLocale>
#include <Qt>

namespace FirstDayOfWeek {

/// What people there are used to: Sunday in a fixed set of territories, else Monday.
Qt::DayOfWeek ofTerritory(QLocale::Territory territory);

} // namespace FirstDayOfWeek
