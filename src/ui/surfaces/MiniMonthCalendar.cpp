#include "ui/surfaces/MiniMonthCalendar.h"

#include "app/state/AppState.h"
#include "calendar/EventDays.h"
#include "calendar/services/VisibleEvents.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "ui/theme/Theme.h"
#include "ui/theme/ThemeManager.h"

#include <QEvent>
#include <QFontInfo>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr int GridDays = MiniMonthGeometry::Rows * MiniMonthGeometry::Columns;
constexpr int PreferredWidthPx = 240;
constexpr int WheelPauseMs = 150; // a flick of a touchpad sends dozens of steps
constexpr qreal OutlineWidth = 1.4;
constexpr int WidestWeek = 52;
constexpr QLatin1StringView WeekNumbersKey{ "ui/showWeekNumbers" };

QFont sizedFont(const QFont &base, int offsetPt, int leastPt, bool isBold)
{
    QFont font = base;
    font.setPointSize(std::max(leastPt, QFontInfo(base).pointSize() + offsetPt));
    font.setBold(isBold);
    return font;
}

QFont titleFont(const QFont &base)
{
    return sizedFont(base, 1, 11, true);
}

QFont weekdayFont(const QFont &base)
{
    return sizedFont(base, -2, 8, true);
}

QFont dayFont(const QFont &base)
{
    return sizedFont(base, 0, 9, false);
}

QString shortTitlePattern(const QString &pattern)
{
    QString shorter = pattern;
    return shorter.replace(QLatin1StringView("MMMM"), QLatin1StringView("MMM"));
}

void drawDot(QPainter &painter, QPointF center, const QColor &color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(center, MiniMonthGeometry::DotRadiusPx, MiniMonthGeometry::DotRadiusPx);
}

}

MiniMonthCalendar::MiniMonthCalendar(AppState *state, QWidget *parent)
    : QWidget(parent)
    , m_state(state)
    , m_previous(makeStepButton(tr("Previous month"), -1))
    , m_next(makeStepButton(tr("Next month"), 1))
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    m_reloadTimer.setSingleShot(true);
    connect(&m_reloadTimer, &QTimer::timeout, this, &MiniMonthCalendar::onReloadTimer);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(tr("Month to pick a day from"));
    updateLayout();
    updateIcons();
    onCurrentDateChanged(currentDate());
    if (m_state)
        connectSources();
}

void MiniMonthCalendar::connectSources()
{
    const auto reload = [this] { reloadSoon(); };
    connect(m_state, &AppState::currentDateChanged, this, &MiniMonthCalendar::onCurrentDateChanged);
    connect(m_state, &AppState::activeViewChanged, this, reload);
    connect(m_state, &AppState::firstDayOfWeekChanged, this, reload);
    connect(m_state, &AppState::todayChanged, this, [this] { update(); });
    connect(m_state->views(), &ViewRepository::viewsChanged, this, reload);
    connect(m_state->events(), &EventRepository::eventsChanged, this, reload);
    connect(m_state->calendars(), &CalendarRepository::calendarsChanged, this, reload);
    connect(m_state->filterRules(), &FilterRuleRepository::filterRulesChanged, this, reload);
    connect(m_state->preferences(), &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key != WeekNumbersKey)
            return;
        updateLayout();
        updateGeometry();
        update();
    });
    if (ThemeManager *theme = m_state->theme()) {
        const auto recolor = [this] {
            updateIcons();
            update();
        };
        connect(theme, &ThemeManager::modeChanged, this, recolor);
        connect(theme, &ThemeManager::accentChanged, this, recolor);
    }
}

QToolButton *MiniMonthCalendar::makeStepButton(const QString &name, int months)
{
    auto *button = new QToolButton(this);
    button->setProperty("iconOnly", true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(true);
    button->setToolTip(name);
    button->setAccessibleName(name);
    connect(button, &QToolButton::clicked, this, [this, months] { stepMonth(months); });
    return button;
}

QSize MiniMonthCalendar::sizeHint() const
{
    constexpr int RoomPx = 8; // in each cell, so that a circle stands clear of its number
    return { std::max(PreferredWidthPx, m_minimumWidthPx + MiniMonthGeometry::Columns * RoomPx),
             m_geometry.heightPx() };
}

QSize MiniMonthCalendar::minimumSizeHint() const
{
    return { m_minimumWidthPx, m_geometry.heightPx() };
}

QDate MiniMonthCalendar::gridStart() const
{
    return MiniMonthGeometry::gridStart(m_month, firstDayOfWeek());
}

QDate MiniMonthCalendar::dateAt(QPoint point) const
{
    const int cell = m_geometry.cellAt(point);
    return cell < 0 ? QDate() : gridStart().addDays(cell);
}

QRect MiniMonthCalendar::dateRect(QDate date) const
{
    const qint64 day = date.isValid() ? gridStart().daysTo(date) : -1;
    if (day < 0 || day >= GridDays)
        return {};
    const int cell = static_cast<int>(day);
    return m_geometry.cellRect(cell % MiniMonthGeometry::Columns, cell / MiniMonthGeometry::Columns);
}

void MiniMonthCalendar::stepMonth(int months)
{
    const QDate target = m_month.addMonths(months);
    if (!target.isValid())
        return;
    m_month = target;
    reloadSoon();
    update();
}

void MiniMonthCalendar::onCurrentDateChanged(QDate date)
{
    setAccessibleDescription(QLocale().toString(date, QLocale::LongFormat));
    const QDate month(date.year(), date.month(), 1);
    if (month != m_month) {
        m_month = month;
        reloadSoon();
    }
    update();
}

bool MiniMonthCalendar::showsWeekNumbers() const
{
    return m_state && m_state->preferences()->getBool(WeekNumbersKey, false);
}

Qt::DayOfWeek MiniMonthCalendar::firstDayOfWeek() const
{
    return m_state ? m_state->firstDayOfWeek() : QLocale().firstDayOfWeek();
}

QDate MiniMonthCalendar::currentDate() const
{
    const QDate date = m_state ? m_state->currentDate() : QDate();
    return date.isValid() ? date : QDate::currentDate();
}

void MiniMonthCalendar::reloadSoon()
{
    m_isStale = true;
    m_turnsToWait = 1;
    m_reloadTimer.start(0);
}

void MiniMonthCalendar::onReloadTimer()
{
    if (!isVisible()) {
        m_isStale |= m_nextRow < MiniMonthGeometry::Rows; // begins anew when it is shown
        return;
    }
    // The timeline's timer fires in the same turn; its load and this one together would be felt.
    if (m_isStale && m_turnsToWait-- > 0)
        return m_reloadTimer.start(0);
    if (std::exchange(m_isStale, false)) {
        m_nextRow = 0;
        const QDate first = gridStart();
        m_busyDays.removeIf([first](QDate day) { return day < first || day >= first.addDays(GridDays); });
    }
    if (m_nextRow < MiniMonthGeometry::Rows)
        loadRow(m_nextRow++);
    if (m_nextRow < MiniMonthGeometry::Rows)
        m_reloadTimer.start(0);
}

// A week in each turn of the event loop: with many events all of them at once would be felt. The week that a
// timeline shows is there already.
void MiniMonthCalendar::loadRow(int row)
{
    const QDate first = gridStart().addDays(row * MiniMonthGeometry::Columns);
    if (!m_state || !m_state->visibleEvents() || !first.isValid())
        return;
    const QDate last = first.addDays(MiniMonthGeometry::Columns - 1);
    for (QDate day = first; day <= last; day = day.addDays(1))
        m_busyDays.remove(day);
    const auto span = m_state->visibleEvents()->inRange(first, MiniMonthGeometry::Columns);
    for (const Event &event : span->events) {
        const QDate end = std::min(last, EventDays::lastDay(event));
        for (QDate day = std::max(first, EventDays::firstDay(event)); day <= end; day = day.addDays(1))
            m_busyDays.insert(day);
    }
    update();
}

void MiniMonthCalendar::updateLayout()
{
    const QFontMetrics title(titleFont(font()));
    const QFontMetrics weekday(weekdayFont(font()));
    const QFontMetrics day(dayFont(font()));
    const MiniMonthGeometry least;
    m_geometry.widthPx = width();
    m_geometry.headerHeightPx = std::max(least.headerHeightPx, title.height() + 8);
    m_geometry.weekdayHeightPx = std::max(least.weekdayHeightPx, weekday.height() + 4);
    m_geometry.rowHeightPx = std::max(least.rowHeightPx, day.height() + 14);

    m_geometry.weekNumberWidthPx =
        showsWeekNumbers() ? weekday.horizontalAdvance(QLocale().toString(WidestWeek)) + 8 : 0;
    m_numberWidthPx = day.horizontalAdvance(QLocale().toString(28));
    const QRect header = m_geometry.headerRect();
    const int side = header.height() - 4;
    const int gridWidth = MiniMonthGeometry::Columns * (m_numberWidthPx + 8) + 2 * MiniMonthGeometry::MarginPx
        + m_geometry.weekNumberWidthPx;
    const int headerWidth = widestShortTitle(title) + 2 * side + 5 * MiniMonthGeometry::MarginPx;
    m_minimumWidthPx = std::max(gridWidth, headerWidth);

    m_next->setGeometry(header.right() + 1 - side, header.top() + 2, side, side);
    m_previous->setGeometry(header.right() + 1 - 2 * side - 4, header.top() + 2, side, side);
    const int icon = std::max(12, title.height() * 3 / 4);
    for (QToolButton *button : { m_previous, m_next })
        button->setIconSize({ icon, icon });
}

int MiniMonthCalendar::widestShortTitle(const QFontMetrics &metrics)
{
    const QString pattern = shortTitlePattern(titlePattern());
    int widest = 0;
    for (int month = 1; month <= 12; ++month)
        widest = std::max(widest, metrics.horizontalAdvance(QLocale().toString(QDate(2000, month, 1), pattern)));
    return widest;
}

QString MiniMonthCalendar::titlePattern()
{
    //: Title of the small month in the sidebar: a date pattern, M is for month and y for year.
    return tr("MMMM yyyy");
}

QString MiniMonthCalendar::title() const
{
    const QString full = QLocale().toString(m_month, titlePattern());
    if (QFontMetrics(titleFont(font())).horizontalAdvance(full) <= titleRect().width())
        return full;
    return QLocale().toString(m_month, shortTitlePattern(titlePattern()));
}

QRect MiniMonthCalendar::titleRect() const
{
    QRect rect = m_geometry.headerRect();
    rect.setLeft(rect.left() + MiniMonthGeometry::MarginPx);
    rect.setRight(m_previous->x() - MiniMonthGeometry::MarginPx);
    return rect;
}

void MiniMonthCalendar::updateIcons()
{
    const QString path = Theme::activeMode() == Theme::Mode::Dark ? QStringLiteral(":/icons/arrow-%1-dark.svg")
                                                                  : QStringLiteral(":/icons/arrow-%1-light.svg");
    m_previous->setIcon(QIcon(path.arg(QLatin1StringView("left"))));
    m_next->setIcon(QIcon(path.arg(QLatin1StringView("right"))));
}

bool MiniMonthCalendar::event(QEvent *event)
{
    // The keys of the focused month come before the window's shortcuts.
    if (event->type() == QEvent::ShortcutOverride && dateForKey(*static_cast<QKeyEvent *>(event)).isValid()) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

QDate MiniMonthCalendar::dateForKey(const QKeyEvent &event) const
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return {};
    const QDate date = currentDate();
    switch (event.key()) {
    case Qt::Key_Left:
        return date.addDays(-1);
    case Qt::Key_Right:
        return date.addDays(1);
    case Qt::Key_Up:
        return date.addDays(-7);
    case Qt::Key_Down:
        return date.addDays(7);
    case Qt::Key_PageUp:
        return date.addMonths(-1);
    case Qt::Key_PageDown:
        return date.addMonths(1);
    case Qt::Key_Home:
        return QDate::currentDate();
    default:
        return {};
    }
}

void MiniMonthCalendar::keyPressEvent(QKeyEvent *event)
{
    const QDate date = dateForKey(*event);
    if (!date.isValid() || !m_state) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_state->setCurrentDate(date);
    onCurrentDateChanged(date); // shows its month, also if the date was current already
}

void MiniMonthCalendar::mousePressEvent(QMouseEvent *event)
{
    const QDate date = event->button() == Qt::LeftButton ? dateAt(event->position().toPoint()) : QDate();
    if (!date.isValid() || !m_state) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_state->setCurrentDate(date);
    onCurrentDateChanged(date);
}

void MiniMonthCalendar::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint before = std::exchange(m_pointer, event->position().toPoint());
    if (m_geometry.cellAt(before) != m_geometry.cellAt(m_pointer))
        update();
}

void MiniMonthCalendar::leaveEvent(QEvent *)
{
    m_pointer = { -1, -1 };
    update();
}

void MiniMonthCalendar::wheelEvent(QWheelEvent *event)
{
    const int step = monthStepForWheel(event->angleDelta());
    if (step == 0) {
        QWidget::wheelEvent(event);
        return;
    }
    event->accept();
    if (m_sinceWheelStep.isValid() && m_sinceWheelStep.elapsed() < WheelPauseMs)
        return;
    m_sinceWheelStep.start();
    stepMonth(step);
}

void MiniMonthCalendar::resizeEvent(QResizeEvent *)
{
    updateLayout();
}

void MiniMonthCalendar::showEvent(QShowEvent *)
{
    if (m_isStale)
        reloadSoon();
}

void MiniMonthCalendar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateLayout();
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

void MiniMonthCalendar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintHeader(painter);
    paintWeekdays(painter);
    if (m_geometry.weekNumberWidthPx > 0)
        paintWeekNumbers(painter);
    painter.setFont(dayFont(font()));
    QDate date = gridStart();
    for (int cell = 0; cell < GridDays; ++cell, date = date.addDays(1))
        paintDay(painter, date,
                 m_geometry.cellRect(cell % MiniMonthGeometry::Columns, cell / MiniMonthGeometry::Columns));
}

void MiniMonthCalendar::paintHeader(QPainter &painter) const
{
    const QRect text = titleRect();
    if (hasFocus() && dateRect(currentDate()).isEmpty()) {
        painter.setPen(QPen(Theme::accent(), OutlineWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(text.adjusted(-MiniMonthGeometry::MarginPx, 0, 0, 0), 4, 4);
    }
    painter.setFont(titleFont(font()));
    painter.setPen(Theme::textPrimary());
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, title());
}

void MiniMonthCalendar::paintWeekdays(QPainter &painter) const
{
    painter.setFont(weekdayFont(font()));
    painter.setPen(Theme::textMuted());
    for (int column = 0; column < MiniMonthGeometry::Columns; ++column) {
        const int day = (firstDayOfWeek() - 1 + column) % MiniMonthGeometry::Columns + 1;
        painter.drawText(m_geometry.weekdayRect(column), Qt::AlignCenter,
                         QLocale().standaloneDayName(day, QLocale::NarrowFormat));
    }
}

void MiniMonthCalendar::paintWeekNumbers(QPainter &painter) const
{
    QDate rowStart = gridStart();
    for (int row = 0; row < MiniMonthGeometry::Rows; ++row, rowStart = rowStart.addDays(MiniMonthGeometry::Columns))
        painter.drawText(m_geometry.weekNumberRect(row), Qt::AlignCenter,
                         QLocale().toString(MiniMonthGeometry::weekNumber(rowStart)));
}

void MiniMonthCalendar::paintDay(QPainter &painter, QDate date, const QRect &cell) const
{
    const bool isSelected = date == currentDate();
    const bool isToday = date == QDate::currentDate();
    const bool isOutside = date.month() != m_month.month();
    const QPointF center = QRectF(cell).center();
    const qreal radius = MiniMonthGeometry::dayRadius(cell, m_numberWidthPx);
    QColor text = isOutside ? Theme::textDisabled() : Theme::textPrimary();
    QColor dot = isOutside ? Theme::textDisabled() : Theme::accent();
    const QFontMetrics metrics = painter.fontMetrics();
    const qreal digitsBelowCentre = metrics.ascent() - metrics.height() / 2.0;
    const qreal dotY = MiniMonthGeometry::dotCentreY(cell, digitsBelowCentre, radius, isSelected);

    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
    if (isSelected) {
        text = Theme::textOn(Theme::accent());
        if (dotY < center.y() + radius)
            dot = text; // inside the circle
        painter.setBrush(Theme::accent());
    } else {
        if (cell.contains(m_pointer))
            painter.setBrush(Theme::accentMuted());
        if (isToday) {
            text = Theme::accentText();
            painter.setPen(QPen(Theme::accent(), OutlineWidth));
        }
    }
    painter.drawEllipse(center, radius, radius);
    if (isSelected && hasFocus()) {
        painter.setPen(QPen(Theme::textPrimary(), OutlineWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(center, radius + 2, radius + 2);
    }

    painter.setPen(text);
    painter.drawText(cell, Qt::AlignCenter, QLocale().toString(date.day()));
    if (m_busyDays.contains(date))
        drawDot(painter, { center.x(), dotY }, dot);
}
