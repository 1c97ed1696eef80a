#pragma once

#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <utility>

class AccountRepository;
class CalendarRepository;
class Database;
class EventRepository;
class FilterRuleRepository;
class PreferencesRepository;
class QTimer;
class SyncScheduler;
class TaskRepository;
class TemplateRepository;
class ThemeManager;
class UndoStack;
class ViewRepository;
class VisibleEvents;

namespace Sync {
class ConflictResolutionService;
}

/// The one object that every surface and service holds: the database and its repositories, the
/// long-lived services, and the shared view state. Setters keep the value and signal a change; what
/// is stored of it is written half a second after the last change, and at the end.
class AppState : public QObject {
    Q_OBJECT

public:
    /// One entry of the navigation history.
    struct NavState {
        QString viewMode;
        QDate date;
        int weekHorizon = 7;

        bool operator==(const NavState &) const = default;
    };

    static constexpr int MinHourHeight = 56;
    static constexpr int MaxHourHeight = 200;
    static constexpr int MinWeekHorizon = 2;
    static constexpr int MaxWeekHorizon = 21;

    explicit AppState(QObject *parent = nullptr);
    ~AppState() override;

    /// The whole start-up: openStorage, services and theme, default calendar and one-off repairs, view
    /// state. False if the database cannot be opened or brought up to date.
    bool initialize();

    // The steps of initialize(), for tests that need no widgets.
    bool openStorage(const QString &databasePath);
    void seedDefaultCalendarIfMissing();
    void runOneOffRepairs();
    void restoreViewState();

    [[nodiscard]] Database *database() const { return m_database; }
    [[nodiscard]] PreferencesRepository *preferences() const { return m_preferences; }
    [[nodiscard]] AccountRepository *accounts() const { return m_accounts; }
    [[nodiscard]] CalendarRepository *calendars() const { return m_calendars; }
    [[nodiscard]] EventRepository *events() const { return m_events; }
    [[nodiscard]] TaskRepository *tasks() const { return m_tasks; }
    [[nodiscard]] ViewRepository *views() const { return m_views; }
    [[nodiscard]] FilterRuleRepository *filterRules() const { return m_filterRules; }
    [[nodiscard]] TemplateRepository *templates() const { return m_templates; }
    [[nodiscard]] ThemeManager *theme() const { return m_theme; }
    [[nodiscard]] UndoStack *undoStack() const { return m_undoStack; }
    /// The display pipeline with its cache; there from initialize() or setVisibleEvents() on.
    [[nodiscard]] VisibleEvents *visibleEvents() const { return m_visibleEvents; }
    void setVisibleEvents(VisibleEvents *service) { m_visibleEvents = service; }
    /// There from initialize() or the setters on.
    [[nodiscard]] SyncScheduler *syncScheduler() const { return m_syncScheduler; }
    [[nodiscard]] Sync::ConflictResolutionService *conflicts() const { return m_conflicts; }
    void setSyncServices(SyncScheduler *scheduler, Sync::ConflictResolutionService *conflicts)
    {
        m_syncScheduler = scheduler;
        m_conflicts = conflicts;
    }

    [[nodiscard]] QString activeViewId() const { return m_activeViewId; }
    [[nodiscard]] QString selectedEventId() const { return m_selectedEventId; }
    /// When the selected occurrence of a series begins; invalid stands for the first one on show.
    [[nodiscard]] QDateTime selectedOccurrence() const { return m_selectedOccurrence; }
    [[nodiscard]] QDate currentDate() const { return m_currentDate; }
    [[nodiscard]] QString viewMode() const { return m_viewMode; } ///< "day", "week", "days", "grid", "month", "year"
    [[nodiscard]] int hourHeight() const { return m_hourHeight; } ///< pixels
    [[nodiscard]] int weekHorizon() const { return m_weekHorizon; } ///< days of the mode "days"
    [[nodiscard]] int filterHiddenCount() const { return m_filterHiddenCount; } ///< -1 before the first count
    [[nodiscard]] bool isSyncing() const { return m_syncBusyCount > 0; }
    [[nodiscard]] bool lastSyncErrored() const { return m_lastSyncErrored; }
    [[nodiscard]] QString lastSyncErrorMessage() const { return m_lastSyncErrorMessage; }
    [[nodiscard]] QString lastSyncErrorCalendar() const { return m_lastSyncErrorCalendar; }

    void setActiveViewId(const QString &id);
    void setSelectedEventId(const QString &id); ///< whichever occurrence comes first
    void setSelectedOccurrence(const QString &id, const QDateTime &occurrenceStart);
    void setCurrentDate(QDate date);
    void setViewMode(const QString &mode);
    /// setViewMode() that leaves no step in the history: for a mode nobody could go back to.
    void replaceViewMode(const QString &mode);
    void setViewModeAndDate(const QString &mode, QDate date); ///< one step of history
    void setWeekHorizon(int days);
    void setHourHeight(int pixels);
    void setFilterHiddenCount(int count);
    void navigateBack();
    void navigateForward();

    /// "comfortable" or "compact", for each view mode.
    [[nodiscard]] QString densityFor(const QString &view) const;
    void setDensityFor(const QString &view, const QString &density);
    [[nodiscard]] bool isCompact(const QString &view) const;

    /// Live calendars of accounts that sync with a server of their own (not the product's, not feeds).
    [[nodiscard]] QSet<QString> syncableCalendarIds() const;
    /// The user's choice, else Sunday or Monday by the system's territory.
    [[nodiscard]] Qt::DayOfWeek firstDayOfWeek() const;
    /// The week of \p date: the first day of it.
    [[nodiscard]] QDate weekStart(QDate date) const;

    /// Who knows whether a calendar's pending rows can reach their server now; without it, they can.
    void setPushable(std::function<bool(const QString &calendarId)> isPushable) { m_isPushable = std::move(isPushable); }

    void syncOpBegan();
    void syncOpEnded(bool failed);
    void recordSyncError(const QString &calendar, const QString &message);

    /// Writes the view state that still waits for its half second.
    void flushViewState();

    /// Compares \p now with the day seen last, and signals todayChanged if another one has begun.
    /// The clock is looked at each minute and right after midnight.
    void checkToday(const QDateTime &now = QDateTime::currentDateTime());

signals:
    void databaseReady();
    void activeViewChanged(const QString &id);
    void selectedEventChanged(const QString &id); ///< another event, or another occurrence of it
    void currentDateChanged(QDate date);
    void viewModeChanged(const QString &mode);
    void hourHeightChanged(int pixels);
    void weekHorizonChanged(int days);
    void filterHiddenCountChanged(int count);
    void densityChanged(const QString &view, const QString &density);
    void firstDayOfWeekChanged(Qt::DayOfWeek day);
    void workdayHoursChanged(int start, int end);
    void syncNowRequested();
    void syncBusyChanged(bool busy);
    void lastSyncErroredChanged(bool errored);
    /// The local date has changed while the program runs (midnight, or the clock or zone was set).
    void todayChanged(QDate today);

private:
    void requestSyncOfEdits();
    void onPreferenceChanged(const QString &key);
    void recordNavigation();
    void applyNavigation(const NavState &target);
    void storeSoon(const QString &key, const QString &value);
    void watchToday();
    void excludeSampleDataFromSync();
    void enableSyncOnLegacyQuillonCalendars();
    void renameQuillonAccount();
    void collapseDuplicateAccounts();

    QTimer *m_syncDebounce = nullptr;
    QTimer *m_storeTimer = nullptr;
    QTimer *m_todayTimer = nullptr;
    Database *m_database = nullptr;
    PreferencesRepository *m_preferences = nullptr;
    AccountRepository *m_accounts = nullptr;
    CalendarRepository *m_calendars = nullptr;
    EventRepository *m_events = nullptr;
    TaskRepository *m_tasks = nullptr;
    ViewRepository *m_views = nullptr;
    FilterRuleRepository *m_filterRules = nullptr;
    TemplateRepository *m_templates = nullptr;
    ThemeManager *m_theme = nullptr;
    UndoStack *m_undoStack;
    VisibleEvents *m_visibleEvents = nullptr;
    SyncScheduler *m_syncScheduler = nullptr;
    Sync::ConflictResolutionService *m_conflicts = nullptr;
    QString m_activeViewId;
    QString m_selectedEventId;
    QDateTime m_selectedOccurrence;
    QDate m_currentDate;
    QDate m_today;
    QString m_viewMode;
    int m_hourHeight = MinHourHeight;
    int m_weekHorizon = 7;
    int m_filterHiddenCount = -1; // so that the first real count always signals
    QList<NavState> m_backHistory;
    QList<NavState> m_forwardHistory;
    bool m_restoringNav = false;
    std::function<bool(const QString &)> m_isPushable;
    int m_syncBusyCount = 0;
    bool m_cycleErrored = false;
    bool m_lastSyncErrored = false;
    QString m_lastSyncErrorMessage;
    QString m_lastSyncErrorCalendar;
    QHash<QString, QString> m_toStore; // settings key to value
};
