// The start-up sequence of AppState. It stands here, above everything, because it creates services of
// layers that themselves hold the state.

#include "app/state/AppState.h"

#include "app/state/Platform.h"
#include "calendar/services/TimeFormat.h"
#include "calendar/services/VisibleEvents.h"
#include "sync/ConflictResolutionService.h"
#include "sync/SyncScheduler.h"
#include "ui/theme/ThemeManager.h"

bool AppState::initialize()
{
    if (!openStorage(Platform::databasePath()))
        return false;

    // The scale first: the style sheet is then built once, with the right sizes.
    m_theme = new ThemeManager(m_preferences, this);
    m_theme->applyStoredFontScale();
    m_theme->applyStoredMode();

    setVisibleEvents(new VisibleEvents(this, this));
    setSyncServices(new SyncScheduler(this, this), new Sync::ConflictResolutionService(this, this));
    TimeFormat::initializeFromLocale(this);
    seedDefaultCalendarIfMissing();
    runOneOffRepairs();
    restoreViewState();
    emit databaseReady();
    return true;
}
