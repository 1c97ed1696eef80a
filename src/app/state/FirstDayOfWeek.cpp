#include "app/state/FirstDayOfWeek.h"

#include <algorithm>
#include <iterator>

namespace {

// Numeric values of QLocale::Territory. QLocale::firstDayOfWeek() is not asked: it changes with the
// CLDR release, and a calendar must look the same after an update of Qt.
constexpr int SundayTerritories[] = {
    248, 41, // United States, Canada
    120, 116, 185, 231, 218, 228, // Japan, Israel, Philippines, Thailand, South Korea, Taiwan
    205, 245, 19,  4,   71,  113,
    122, 127, // Saudi Arabia, Emirates, Bahrain, Algeria, Egypt, Iraq, Jordan, Kuwait
    135, 176, 190, 227, 259, // Libya, Oman, Qatar, Syria, Yemen
    24,  69,  99,  106, 152, 168,
    181, 72, // Belize, Dominican Republic, Guatemala, Honduras, Mexico, Nicaragua, Panama, El Salvador
    54,  254, 184, 32, // Colombia, Venezuela, Peru, Brazil
    216, 15,  167, // South Africa, Australia, New Zealand
    110, 20,  178, // India, Bangladesh, Pakistan
    107, 139, 50, // Hong Kong, Macao, China
};

}

Qt::DayOfWeek FirstDayOfWeek::ofTerritory(QLocale::Territory territory)
{
    const bool onSunday =
        std::ranges::find(SundayTerritories, static_cast<int>(territory)) != std::end(SundayTerritories);
    return onSunday ? Qt::Sunday : Qt::Monday;
}
