#include "calendar/services/VisibleEvents.h"
#include "models/FilterRule.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "ui/surfaces/AllDayStrip.h"
#include "ui/surfaces/DayView.h"
#include "ui/surfaces/TimelineHeader.h"
#include "ui/surfaces/TimelineWidget.h"
#include "ui/surfaces/WeekView.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {

const QDate Wednesday(2026, 6, 17);

void show(TimelineView &view, QSize size = { 900, 600 })
{
    view.resize(size);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
}

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
    void selectionIsShared();
    void headerStripAndColumnsAgree();
    void headerDayIsActivated();
    void landsOnTheWorkday();
    void landsAgainOnRequest();
    void zoomKeepsTheTimeUnderThePointer();
    void keysZoom();
    void keyboardScrollsToTheEvent();
    void stripTakesAtMostTwoFifths();
    void contextMenuOffersFilters();
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
