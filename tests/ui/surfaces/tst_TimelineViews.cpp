#include "calendar/services/EventText.h"
#include "calendar/services/VisibleEvents.h"
#include "models/FilterRule.h"
#include "models/ViewDef.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "ui/surfaces/AllDayStrip.h"
#include "ui/surfaces/DayView.h"
#include "ui/surfaces/TimelineHeader.h"
#include "ui/surfaces/TimelineWidget.h"
#include "ui/surfaces/WeekView.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

const QDate Wednesday(2026, 6, 17);

void show(TimelineView &view, QSize size = { 900, 600 })
{
    view.resize(size);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
}

/// A view that counts how often it is given data.
template <typename View> class Counting : public View {
public:
    using View::View;
    int loads = 0;

protected:
    void showData(const VisibleSpan &span, const QSet<QString> &syncableCalendarIds) override
    {
        ++loads;
        View::showData(span, syncableCalendarIds);
    }
};

QStringList titles(const TimelineView &view)
{
    QStringList result;
    for (const EventBlock &block : view.timeline()->blocks())
        result.append(view.timeline()->eventOf(block).title);
    result.sort();
    return result;
}

}

class TestTimelineViews : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_state.reset(); }

    void eventsGoToTheirDays();
    void daysFormBeginsAtTheAnchor();
    void hiddenViewLoadsWhenShown();
    void storedChangesShow();
    void editsOfTheActiveGroupShow();
    void oneLoadForManyChanges();
    void stepWithinTheWeekLoadsNothing();
    void selectionIsShared();
    void occurrenceIsShared();
    void headerStripAndColumnsAgree();
    void headerDayIsActivated();
    void headerTakesTheLongestFormThatFits();
    void wheelAboveTheHoursScrollsThem();
    void leavingByTabDoesNotScroll();
    void largeFontKeepsTheHoursOnShow();
    void landsOnTheWorkday();
    void landsAgainOnRequest();
    void zoomKeepsTheTimeUnderThePointer();
    void keysZoom();
    void keyboardScrollsToTheEvent();
    void stripTakesAtMostTwoFifths();
    void stripOpensOnItsControlsOnly();
    void stripOpensByKey();
    void emptyStripPassesTheFocusOn();
    void contextMenuOffersFilters();
    void longNamesAreCut();
    void timeFormatChangesTheTexts();

private:
    Event add(const QString &title, QDate date, QTime start, int minutes = 60)
    {
        const QDateTime from(date, start);
        return m_state->addEvent(title, from.toUTC(), from.addSecs(60 * minutes).toUTC());
    }
    static QScrollBar *bar(const TimelineView &view) { return view.scrollArea()->verticalScrollBar(); }

    std::unique_ptr<ScratchState> m_state;
};

void TestTimelineViews::init()
{
    m_state = std::make_unique<ScratchState>();
    m_state->state()->setCurrentDate(Wednesday);
    m_state->state()->preferences()->set(QStringLiteral("ui/firstDayOfWeek"), QStringLiteral("1"));
}

void TestTimelineViews::eventsGoToTheirDays()
{
    add(QStringLiteral("standup"), Wednesday, QTime(9, 0));
    add(QStringLiteral("next week"), Wednesday.addDays(7), QTime(9, 0));
    m_state->addAllDayEvent(QStringLiteral("fair"), Wednesday.addDays(1), 2);
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    QCOMPARE(week.columnCount(), 7);
    QCOMPARE(week.weekStart(), m_state->state()->weekStart(Wednesday));
    QCOMPARE(titles(week), QStringList{ QStringLiteral("standup") });
    const QRect standup = week.timeline()->blocks().at(0).rect;
    QCOMPARE(week.timeline()->metrics().columns.columnAt(standup.left()), int(week.weekStart().daysTo(Wednesday)));
    QCOMPARE(standup.top(), week.timeline()->yForTime(QTime(9, 0)));
    QCOMPARE(week.strip()->blocks().size(), 1);
    QCOMPARE(week.strip()->metrics().columns.columnAt(week.strip()->blocks().at(0).rect.left()),
             int(week.weekStart().daysTo(Wednesday)) + 1);

    DayView day(m_state->state());
    show(day);
    QCOMPARE(titles(day), QStringList{ QStringLiteral("standup") });
    QVERIFY(day.strip()->blocks().isEmpty());
    day.setDate(Wednesday.addDays(1));
    QVERIFY(titles(day).isEmpty());
    QCOMPARE(day.strip()->blocks().size(), 1);
}

void TestTimelineViews::daysFormBeginsAtTheAnchor()
{
    WeekView days(m_state->state(), WeekView::Form::Days);
    m_state->state()->setWeekHorizon(5);
    QCOMPARE(days.weekStart(), Wednesday);
    QCOMPARE(days.columnCount(), 5);
    days.setAnchorDate(Wednesday.addDays(3));
    show(days);
    QCOMPARE(days.timeline()->firstDay(), Wednesday.addDays(3));
    m_state->state()->setWeekHorizon(14);
    QCOMPARE(days.timeline()->columnCount(), 14);
    QVERIFY(days.minimumSizeHint().width() < 300);
}

void TestTimelineViews::hiddenViewLoadsWhenShown()
{
    WeekView week(m_state->state(), WeekView::Form::Week);
    add(QStringLiteral("first"), Wednesday, QTime(9, 0));
    week.setAnchorDate(Wednesday.addDays(7));
    week.setAnchorDate(Wednesday);
    QVERIFY(titles(week).isEmpty());
    show(week);
    QCOMPARE(titles(week), QStringList{ QStringLiteral("first") });
    week.hide();
    QSignalSpy stored(m_state->state()->events(), &EventRepository::eventsChanged);
    add(QStringLiteral("second"), Wednesday, QTime(11, 0));
    QVERIFY(stored.wait());
    QCOMPARE(titles(week).size(), 1);
    week.show();
    QCOMPARE(titles(week).size(), 2);
}

void TestTimelineViews::storedChangesShow()
{
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    const Event event = add(QStringLiteral("standup"), Wednesday, QTime(9, 0));
    QTRY_COMPARE(titles(week).size(), 1);
    FilterRule rule;
    rule.id = rule.name = QStringLiteral("no standups");
    rule.type = FilterType::Pattern;
    rule.conditions = QStringLiteral(R"({"runtimeType":"pattern","titleContains":["stand"]})");
    QVERIFY(m_state->state()->filterRules()->insert(rule));
    QTRY_VERIFY(titles(week).isEmpty());
    QVERIFY(m_state->state()->filterRules()->setEnabled(rule.id, false));
    QTRY_COMPARE(titles(week).size(), 1);
    QVERIFY(m_state->state()->events()->remove(event.id));
    QTRY_VERIFY(titles(week).isEmpty());
}

void TestTimelineViews::editsOfTheActiveGroupShow()
{
    QSignalSpy stored(m_state->state()->events(), &EventRepository::eventsChanged);
    add(QStringLiteral("standup"), Wednesday, QTime(9, 0));
    const QString other = m_state->addCalendar(QStringLiteral("Other"));
    QVERIFY(stored.wait()); // only the group may bring the reload below
    ViewDef group;
    group.id = group.name = QStringLiteral("office");
    group.calendarIds = QStringLiteral("[\"%1\"]").arg(ScratchState::calendarId());
    QVERIFY(m_state->state()->views()->insert(group));
    m_state->state()->setActiveViewId(group.id);
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    QCoreApplication::processEvents();
    QCOMPARE(titles(week).size(), 1);
    group.calendarIds = QStringLiteral("[\"%1\"]").arg(other);
    QVERIFY(m_state->state()->views()->update(group));
    QTRY_VERIFY(titles(week).isEmpty());
}

void TestTimelineViews::oneLoadForManyChanges()
{
    Counting<DayView> day(m_state->state());
    show(day);
    QStringList ids;
    for (int i = 0; i < 5; ++i)
        ids.append(m_state->addCalendar(QString::number(i)));
    QCoreApplication::processEvents();
    day.loads = 0;
    QSignalSpy changes(m_state->state()->calendars(), &CalendarRepository::calendarsChanged);
    for (const QString &id : std::as_const(ids))
        QVERIFY(m_state->state()->calendars()->setVisible(id, false));
    QCOMPARE(changes.size(), 5);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(day.loads, 1);

    QVERIFY(m_state->state()->calendars()->setVisible(ids.first(), true));
    day.setDate(Wednesday.addDays(1)); // loads at once, what changed with it
    QCOMPARE(day.loads, 2);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(day.loads, 2);
}

void TestTimelineViews::stepWithinTheWeekLoadsNothing()
{
    Counting<WeekView> week(m_state->state(), WeekView::Form::Week);
    show(week);
    const QDate start = week.weekStart();
    week.loads = 0;
    week.setAnchorDate(start.addDays(6));
    week.setAnchorDate(start);
    QCOMPARE(week.loads, 0);
    week.setAnchorDate(start.addDays(7));
    QCOMPARE(week.loads, 1);
}

void TestTimelineViews::occurrenceIsShared()
{
    const QDateTime from(Wednesday, QTime(9, 0));
    Event daily = add(QStringLiteral("daily"), Wednesday, QTime(9, 0));
    daily.recurrenceRule = QStringLiteral("FREQ=DAILY;COUNT=3");
    QVERIFY(m_state->state()->events()->update(daily));
    DayView day(m_state->state());
    day.setDate(Wednesday.addDays(1));
    show(day);
    WeekView week(m_state->state(), WeekView::Form::Days);
    show(week);
    QTRY_COMPARE(week.timeline()->blocks().size(), 3);
    QCOMPARE(day.timeline()->blocks().size(), 1);
    day.timeline()->setFocus();
    QTest::keyClick(day.timeline(), Qt::Key_Down);
    const auto selected = [&week] {
        QList<bool> result;
        for (const EventBlock &block : week.timeline()->blocks())
            result.append(week.timeline()->isSelected(block));
        return result;
    };
    QCOMPARE(selected(), (QList<bool>{ false, true, false }));
    QCOMPARE(m_state->state()->selectedOccurrence(), from.addDays(1));
    QTest::mouseClick(week.timeline(), Qt::LeftButton, {}, week.timeline()->blocks().at(2).rect.center());
    QCOMPARE(selected(), (QList<bool>{ false, false, true }));
    QVERIFY(!day.timeline()->isSelected(day.timeline()->blocks().at(0)));
}

void TestTimelineViews::selectionIsShared()
{
    const Event meeting = add(QStringLiteral("meeting"), Wednesday, QTime(9, 0));
    const Event fair = m_state->addAllDayEvent(QStringLiteral("fair"), Wednesday);
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week, { 900, 1600 });
    QSignalSpy selected(&week, &TimelineView::eventSelected);
    QTest::mouseClick(week.timeline(), Qt::LeftButton, {}, week.timeline()->blocks().at(0).rect.center());
    QCOMPARE(m_state->state()->selectedEventId(), meeting.id);
    QTest::mouseClick(week.strip(), Qt::LeftButton, {}, week.strip()->blocks().at(0).rect.center());
    QCOMPARE(m_state->state()->selectedEventId(), fair.id);
    QVERIFY(!week.timeline()->isSelected(week.timeline()->blocks().at(0)));
    QCOMPARE(selected.size(), 2);
    QTest::mouseClick(week.timeline(), Qt::LeftButton, {}, { 300, 3 });
    QCOMPARE(m_state->state()->selectedEventId(), QString());
    QVERIFY(!week.strip()->isSelected(week.strip()->blocks().at(0)));
    QCOMPARE(selected.size(), 2); // nothing to open
}

void TestTimelineViews::headerStripAndColumnsAgree()
{
    WeekView week(m_state->state(), WeekView::Form::Week);
    for (const QSize size : { QSize(900, 600), QSize(500, 1700), QSize(1301, 500) }) {
        show(week, size);
        const DayColumns columns = week.timeline()->metrics().columns;
        QCOMPARE(columns.widthPx, week.scrollArea()->viewport()->width());
        QCOMPARE(week.strip()->metrics().columns, columns);
        for (int column = 0; column < 7; ++column) {
            QCOMPARE(week.header()->columnRect(column).left(), columns.left(column));
            QCOMPARE(week.header()->columnRect(column).width(), columns.columnWidthPx());
        }
        QCOMPARE(week.timeline()->mapTo(&week, QPoint()).x(), week.strip()->x());
    }
}

void TestTimelineViews::headerDayIsActivated()
{
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    QSignalSpy activated(&week, &WeekView::dayActivated);
    QTest::mouseClick(week.header(), Qt::LeftButton, {}, week.header()->columnRect(2).center());
    QTest::mouseClick(week.header(), Qt::LeftButton, {}, { 10, 10 }); // the gutter
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.at(0).at(0).toDate(), week.weekStart().addDays(2));
    QCOMPARE(week.header()->lines(Wednesday), (QStringList{ QStringLiteral("Wed"), QStringLiteral("Jun 17") }));
}

void TestTimelineViews::headerTakesTheLongestFormThatFits()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    TimelineHeader header;
    header.setDays(QDate(2026, 6, 8), 7);
    header.setGutterPx(0);
    QFont bold = header.font();
    bold.setBold(true);
    header.setToday(QDate(2026, 6, 10));
    const auto widthOf = [&bold](const QString &text) { return QFontMetrics(bold).horizontalAdvance(text); };
    const auto linesAt = [&header](int columnWidth) {
        header.setContentWidth(7 * columnWidth);
        return header.lines(QDate(2026, 6, 10)).join(u'|');
    };
    const int longest = std::max(widthOf(QStringLiteral("Jun 14")), widthOf(QStringLiteral("Wed")));
    QCOMPARE(linesAt(longest + 4), QStringLiteral("Wed|Jun 10"));
    // "Jun 8" alone would fit; one form holds for the row.
    QCOMPARE(linesAt(std::max(widthOf(QStringLiteral("Jun 8")), widthOf(QStringLiteral("Wed"))) + 3),
             QStringLiteral("Wed|10"));
    QCOMPARE(linesAt(widthOf(QStringLiteral("Wed")) + 3), QStringLiteral("W|10"));
    QLocale::setDefault(before);
}

void TestTimelineViews::wheelAboveTheHoursScrollsThem()
{
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    const auto roll = [](QWidget *over, Qt::KeyboardModifiers modifiers = {}) {
        QWheelEvent event({ 5, 5 }, over->mapToGlobal(QPointF(5, 5)), {}, { 0, -120 }, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(over, &event);
        if (!event.isAccepted()) // what the window system sends goes on to the parent; this has to be carried
            QCoreApplication::sendEvent(over->parentWidget(), &event);
    };
    bar(week)->setValue(0);
    roll(week.header());
    const int once = bar(week)->value();
    QVERIFY(once > 0);
    roll(week.strip());
    QCOMPARE(bar(week)->value(), 2 * once);
    roll(week.header(), Qt::ControlModifier);
    QCOMPARE(bar(week)->value(), 2 * once);
}

void TestTimelineViews::leavingByTabDoesNotScroll()
{
    add(QStringLiteral("early"), Wednesday, QTime(1, 0));
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *day = new DayView(m_state->state());
    auto *after = new QLineEdit;
    layout->addWidget(day, 1);
    layout->addWidget(after);
    window.resize(900, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    day->timeline()->setFocus();
    QTest::keyClick(day->timeline(), Qt::Key_Down);
    const int scrolled = bar(*day)->value();
    QTest::keyClick(day->timeline(), Qt::Key_Tab);
    QVERIFY(after->hasFocus());
    QCOMPARE(bar(*day)->value(), scrolled);
}

void TestTimelineViews::largeFontKeepsTheHoursOnShow()
{
    DayView day(m_state->state());
    day.setDate(QDate(2001, 1, 3));
    show(day);
    QCOMPARE(bar(day)->value(), day.timeline()->yForTime(QTime(8, 0)));
    QFont large = day.font();
    large.setPointSize(24);
    day.setFont(large);
    QTRY_COMPARE(bar(day)->value(), day.timeline()->yForTime(QTime(8, 0)));
    QVERIFY(day.timeline()->hourHeight() > 56);
    QCOMPARE(day.timeline()->height(), 24 * day.timeline()->hourHeight());
    QCOMPARE(m_state->state()->hourHeight(), 56);
    const int before = day.timeline()->hourHeight();
    day.zoomBy(1);
    QCOMPARE(day.timeline()->hourHeight(), before + 8);
}

void TestTimelineViews::landsOnTheWorkday()
{
    m_state->state()->preferences()->setInt(QStringLiteral("ui/workdayStart"), 7);
    WeekView week(m_state->state(), WeekView::Form::Week);
    week.setAnchorDate(QDate(2001, 1, 3)); // today does not show
    show(week);
    QCOMPARE(bar(week)->value(), week.timeline()->yForTime(QTime(7, 0)));
    bar(week)->setValue(13);
    week.setAnchorDate(QDate(2001, 1, 10));
    QCOMPARE(bar(week)->value(), 13); // a step keeps the hours on show
}

void TestTimelineViews::landsAgainOnRequest()
{
    DayView day(m_state->state());
    day.setDate(QDate(2001, 1, 3));
    show(day);
    bar(day)->setValue(0);
    day.relandOnStartHour();
    QCOMPARE(bar(day)->value(), day.timeline()->yForTime(QTime(8, 0)));
    day.hide();
    bar(day)->setValue(0);
    day.relandOnStartHour();
    day.show();
    QCOMPARE(bar(day)->value(), day.timeline()->yForTime(QTime(8, 0)));
    emit m_state->state()->workdayHoursChanged(8, 20); // the same start
    bar(day)->setValue(0);
    m_state->state()->preferences()->setInt(QStringLiteral("ui/workdayStart"), 6);
    emit m_state->state()->workdayHoursChanged(6, 20);
    QCOMPARE(bar(day)->value(), day.timeline()->yForTime(QTime(6, 0)));
}

void TestTimelineViews::zoomKeepsTheTimeUnderThePointer()
{
    DayView day(m_state->state());
    day.setDate(QDate(2001, 1, 3));
    show(day);
    const int viewportY = 200;
    const auto hourAtPointer = [&] { return double(bar(day)->value() + viewportY) / day.timeline()->hourHeight(); };
    const double before = hourAtPointer();
    emit day.timeline()->zoomRequested(3, bar(day)->value() + viewportY);
    QCOMPARE(day.timeline()->hourHeight(), 80);
    QVERIFY(qAbs(hourAtPointer() - before) < 0.02);
    emit day.timeline()->zoomRequested(-2, bar(day)->value() + viewportY);
    QCOMPARE(m_state->state()->hourHeight(), 64);
    QVERIFY(qAbs(hourAtPointer() - before) < 0.04);
    QCOMPARE(bar(day)->maximum(), 24 * 64 - day.scrollArea()->viewport()->height());
}

void TestTimelineViews::keysZoom()
{
    DayView day(m_state->state());
    show(day);
    day.timeline()->setFocus();
    QTest::keyClick(day.timeline(), Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(m_state->state()->hourHeight(), 64);
    QTest::keyClick(day.timeline(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(m_state->state()->hourHeight(), 56);
    day.zoomBy(100);
    QCOMPARE(m_state->state()->hourHeight(), 200);
}

void TestTimelineViews::keyboardScrollsToTheEvent()
{
    add(QStringLiteral("early"), Wednesday, QTime(1, 0));
    add(QStringLiteral("late"), Wednesday, QTime(22, 0));
    DayView day(m_state->state());
    show(day);
    day.timeline()->setFocus();
    const auto isOnScreen = [&day](const QString &title) {
        for (const EventBlock &block : day.timeline()->blocks()) {
            if (day.timeline()->eventOf(block).title == title)
                return day.timeline()->visibleRegion().boundingRect().contains(block.rect);
        }
        return false;
    };
    QTest::keyClick(day.timeline(), Qt::Key_Down);
    QVERIFY(isOnScreen(QStringLiteral("early")));
    QTest::keyClick(day.timeline(), Qt::Key_Down);
    QVERIFY(isOnScreen(QStringLiteral("late")));
    QVERIFY(!isOnScreen(QStringLiteral("early")));
    QVERIFY(!m_state->state()->selectedEventId().isEmpty());
}

void TestTimelineViews::stripTakesAtMostTwoFifths()
{
    for (int i = 0; i < 30; ++i)
        m_state->addAllDayEvent(QString::number(i), Wednesday);
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week, { 900, 500 });
    week.strip()->setExpanded(true);
    QTRY_VERIFY(week.strip()->height() > 100);
    QVERIFY(week.strip()->height() <= 200);
    QVERIFY(week.scrollArea()->height() >= 200);
}

void TestTimelineViews::stripOpensOnItsControlsOnly()
{
    for (int i = 0; i < 5; ++i)
        m_state->addAllDayEvent(QString::number(i), Wednesday);
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    AllDayStrip *strip = week.strip();
    const int column = int(week.weekStart().daysTo(Wednesday));
    const QStringList hidden{ QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4") };
    QCOMPARE(strip->hiddenTitles(column), hidden);
    QVERIFY(strip->hiddenTitles(column + 1).isEmpty());
    QCOMPARE(strip->overflowChipText(column), QStringLiteral("+3 more"));
    const QPoint chip = strip->overflowChipRect(column).center();
    const QPoint event = strip->blocks().at(0).rect.center();

    QTest::mousePress(strip, Qt::LeftButton, {}, chip);
    QTest::mouseRelease(strip, Qt::LeftButton, {}, event);
    QTest::mousePress(strip, Qt::LeftButton, {}, event);
    QTest::mouseRelease(strip, Qt::LeftButton, {}, chip);
    QVERIFY(!strip->isExpanded());
    QVERIFY(strip->selection().isEmpty());
    QSignalSpy activated(strip, &EventCanvas::eventActivated);
    QTest::mouseClick(strip, Qt::LeftButton, {}, chip);
    QTest::mouseDClick(strip, Qt::LeftButton, {}, chip);
    QVERIFY(strip->isExpanded());
    QVERIFY(activated.isEmpty()); // although an event lies there now
    strip->setExpanded(false);

    week.resize(260, 600);
    QTRY_COMPARE(strip->overflowChipText(column), QStringLiteral("+3"));
}

void TestTimelineViews::stripOpensByKey()
{
    for (int i = 0; i < 5; ++i)
        m_state->addAllDayEvent(QString::number(i), Wednesday);
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    QTest::keyClick(week.strip(), Qt::Key_Plus);
    QVERIFY(week.strip()->isExpanded());
    QTest::keyClick(week.strip(), Qt::Key_Minus);
    QVERIFY(!week.strip()->isExpanded());
    QTest::keyClick(week.strip(), Qt::Key_Return);
    QVERIFY(week.strip()->isExpanded());
    QTest::keyClick(week.strip(), Qt::Key_Down);
    QTest::keyClick(week.strip(), Qt::Key_Return); // opens the event
    QVERIFY(week.strip()->isExpanded());
}

void TestTimelineViews::emptyStripPassesTheFocusOn()
{
    m_state->addAllDayEvent(QStringLiteral("fair"), Wednesday);
    add(QStringLiteral("next week"), Wednesday.addDays(7), QTime(9, 0));
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week);
    week.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&week));
    week.strip()->setFocus();
    QVERIFY(week.strip()->hasFocus());
    week.setAnchorDate(Wednesday.addDays(7));
    QVERIFY(week.timeline()->hasFocus());
    QVERIFY(week.timeline()->selection().isEmpty());
}

void TestTimelineViews::longNamesAreCut()
{
    QCOMPARE(EventText::shortName(QStringLiteral(" two\nlines ")), QStringLiteral("two lines"));
    QCOMPARE(EventText::shortName(QString(40, u'x')), QString(40, u'x'));
    QCOMPARE(EventText::shortName(QString(41, u'x')), QString(39, u'x') + u'…');
}

void TestTimelineViews::contextMenuOffersFilters()
{
    add(QStringLiteral("standup"), Wednesday, QTime(9, 0));
    FilterRule rule;
    rule.id = QStringLiteral("r");
    rule.name = QStringLiteral("R&D");
    rule.type = FilterType::Pattern;
    rule.action = FilterAction::Dim;
    rule.conditions = QStringLiteral(R"({"runtimeType":"pattern","titleContains":["stand"]})");
    QVERIFY(m_state->state()->filterRules()->insert(rule));
    WeekView week(m_state->state(), WeekView::Form::Week);
    show(week, { 900, 1600 });
    QSignalSpy edit(&week, &TimelineView::filterEditRequested);
    QSignalSpy create(&week, &TimelineView::filterFromEventRequested);
    const auto openMenu = [&week] {
        const QPoint point = week.timeline()->blocks().at(0).rect.center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, week.timeline()->mapToGlobal(point));
        QCoreApplication::sendEvent(week.timeline(), &event);
        return week.findChild<QMenu *>();
    };
    QMenu *menu = openMenu();
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 2);
    QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Edit filter \"R&&D\"…"));
    menu->actions().at(0)->trigger();
    menu->actions().at(1)->trigger();
    QCOMPARE(edit.size(), 1);
    QCOMPARE(edit.at(0).at(0).value<FilterRule>().id, rule.id);
    QCOMPARE(create.size(), 1);
    QCOMPARE(create.at(0).at(0).value<Event>().title, QStringLiteral("standup"));
    const QPointer<QMenu> closed = menu;
    menu->close();
    QTRY_VERIFY(!closed);

    QVERIFY(m_state->state()->filterRules()->softDelete(rule.id));
    menu = openMenu();
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), 1);
}

void TestTimelineViews::timeFormatChangesTheTexts()
{
    add(QStringLiteral("standup"), Wednesday, QTime(15, 0));
    WeekView week(m_state->state(), WeekView::Form::Week);
    m_state->state()->preferences()->set(QStringLiteral("ui/timeFormat"), QStringLiteral("12"));
    show(week);
    const auto name = [&week] { return week.timeline()->describe(week.timeline()->blocks().at(0)); };
    QVERIFY2(name().contains(u"3:00 PM"), qPrintable(name()));
    const QImage before = week.timeline()->grab().toImage();
    m_state->state()->preferences()->set(QStringLiteral("ui/timeFormat"), QStringLiteral("24"));
    QVERIFY2(name().contains(u"15:00"), qPrintable(name()));
    QVERIFY(week.timeline()->grab().toImage() != before);
}

QTEST_MAIN(TestTimelineViews)
#include "tst_TimelineViews.moc"
