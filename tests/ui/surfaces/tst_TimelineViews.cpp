#include "app/state/UndoStack.h"
#include "calendar/services/EventEdits.h"
#include "calendar/services/EventText.h"
#include "calendar/services/VisibleEvents.h"
#include "support/ScratchState.h"
#include "ui/surfaces/AllDayStrip.h"
#include "ui/surfaces/DayView.h"
#include "ui/surfaces/TimelineHeader.h"
#include "ui/surfaces/TimelineWidget.h"
#include "ui/surfaces/WeekView.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QDate Wednesday(2026, 6, 17);
const QDate LongAgo(2001, 1, 3); // today does not show

void show(TimelineView &view, QSize size = { 900, 600 })
{
    view.resize(size);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
}

void click(EventCanvas *canvas, int block)
{
    QTest::mouseClick(canvas, Qt::LeftButton, {}, canvas->blocks().at(block).rect.center());
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

/// The titles on show, and by a minus those of all-day events.
QString titles(const TimelineView &view)
{
    QStringList result;
    for (const EventBlock &block : view.timeline()->blocks())
        result.append(view.timeline()->eventOf(block).title);
    for (const EventBlock &block : view.strip()->blocks())
        result.append(u'-' + view.strip()->eventOf(block).title);
    result.sort();
    return result.join(u' ');
}

}

class TestTimelineViews : public QObject {
    Q_OBJECT

private:
    Event add(const QString &title, QDate date, QTime start)
    {
        const QDateTime from(date, start);
        return m_scratch->addEvent(title, from.toUTC(), from.addSecs(3600).toUTC());
    }
    AppState *state() { return m_scratch->state(); }
    static QScrollBar *bar(const TimelineView &view) { return view.scrollArea()->verticalScrollBar(); }
    static int topOfHour(const TimelineView &view, int hour) { return view.timeline()->yForTime(QTime(hour, 0)); }

    std::unique_ptr<ScratchState> m_scratch;

private slots:
    void init()
    {
        m_scratch = std::make_unique<ScratchState>();
        state()->setCurrentDate(Wednesday);
    }
    void cleanup() { m_scratch.reset(); }

    void eventsGoToTheirDays()
    {
        add(u"standup"_qs, Wednesday, QTime(9, 0));
        add(u"later"_qs, Wednesday.addDays(7), QTime(9, 0));
        m_scratch->addAllDayEvent(u"fair"_qs, Wednesday.addDays(1), 2);
        WeekView week(state(), WeekView::Form::Week);
        show(week);
        QCOMPARE(titles(week), u"-fair standup"_qs);
        const int wednesday = int(week.weekStart().daysTo(Wednesday));
        const QPoint standup = week.timeline()->blocks().at(0).rect.topLeft();
        QCOMPARE(week.timeline()->metrics().columns.columnAt(standup.x()), wednesday);
        QCOMPARE(standup.y(), topOfHour(week, 9));
        const QRect fair = week.strip()->blocks().at(0).rect;
        QCOMPARE(week.strip()->metrics().columns.columnAt(fair.left()), wednesday + 1);

        DayView day(state());
        show(day);
        QCOMPARE(titles(day), u"standup"_qs);
        day.setDate(Wednesday.addDays(1));
        QCOMPARE(titles(day), u"-fair"_qs);

        WeekView days(state(), WeekView::Form::Days);
        state()->setWeekHorizon(14);
        show(days);
        QCOMPARE(titles(days), u"-fair later standup"_qs);
        QCOMPARE(days.timeline()->firstDay(), Wednesday);
        QVERIFY(days.minimumSizeHint().width() < 300);
    }

    void hiddenViewLoadsWhenShown()
    {
        WeekView week(state(), WeekView::Form::Week);
        add(u"first"_qs, Wednesday, QTime(9, 0));
        QCOMPARE(titles(week), QString());
        show(week);
        QCOMPARE(titles(week), u"first"_qs);
        week.hide();
        QSignalSpy stored(state()->events(), &EventRepository::eventsChanged);
        add(u"second"_qs, Wednesday, QTime(11, 0));
        QVERIFY(stored.wait());
        QCoreApplication::processEvents(); // in which a view on show would load
        QCOMPARE(titles(week), u"first"_qs);
        week.show();
        QCOMPARE(titles(week), u"first second"_qs);
    }

    void storedChangesShow()
    {
        const QString other = m_scratch->addCalendar(u"Other"_qs);
        WeekView week(state(), WeekView::Form::Week);
        show(week);
        const Event event = add(u"standup"_qs, Wednesday, QTime(9, 0));
        QTRY_COMPARE(titles(week), u"standup"_qs);
        const FilterRule rule = m_scratch->addFilter(u"no standups"_qs, u"stand"_qs);
        QTRY_COMPARE(titles(week), QString());
        QVERIFY(state()->filterRules()->setEnabled(rule.id, false));
        QTRY_COMPARE(titles(week), u"standup"_qs);
        ViewDef group = m_scratch->addGroup(u"office"_qs, { ScratchState::calendarId() });
        state()->setActiveViewId(group.id);
        QCoreApplication::processEvents();
        QCOMPARE(titles(week), u"standup"_qs);
        group.calendarIds = u"[\"%1\"]"_qs.arg(other);
        QVERIFY(state()->views()->update(group));
        QTRY_COMPARE(titles(week), QString());
        QVERIFY(state()->views()->softDelete(group.id));
        QTRY_COMPARE(titles(week), u"standup"_qs);
        QVERIFY(state()->events()->remove(event.id));
        QTRY_COMPARE(titles(week), QString());
    }

    void loadsOnlyWhatItMust()
    {
        Counting<WeekView> week(state(), WeekView::Form::Week);
        show(week);
        QStringList ids;
        for (int i = 0; i < 5; ++i)
            ids.append(m_scratch->addCalendar(QString::number(i)));
        QCoreApplication::processEvents();
        week.loads = 0;
        for (const QString &id : std::as_const(ids))
            QVERIFY(state()->calendars()->setVisible(id, false));
        QTRY_COMPARE(week.loads, 1);

        QVERIFY(state()->calendars()->setVisible(ids.first(), true));
        const QDate start = week.weekStart();
        week.setAnchorDate(start.addDays(7)); // loads at once, what changed with it
        QCOMPARE(week.loads, 2);
        QCoreApplication::processEvents();
        week.setAnchorDate(start.addDays(13)); // of the same week
        QCoreApplication::processEvents();
        QCOMPARE(week.loads, 2);
    }

    void selectionIsShared()
    {
        Event daily = add(u"daily"_qs, Wednesday, QTime(9, 0));
        daily.recurrenceRule = u"FREQ=DAILY;COUNT=3"_qs;
        QVERIFY(state()->events()->update(daily));
        const Event fair = m_scratch->addAllDayEvent(u"fair"_qs, Wednesday);
        DayView day(state());
        day.setDate(Wednesday.addDays(1));
        show(day);
        WeekView week(state(), WeekView::Form::Days);
        show(week, { 900, 1600 });
        QTRY_COMPARE(titles(week), u"-fair daily daily daily"_qs);
        const auto selected = [&week] {
            QList<bool> result;
            for (const EventBlock &block : week.timeline()->blocks())
                result.append(week.timeline()->isSelected(block));
            return result;
        };
        QTest::keyClick(day.timeline(), Qt::Key_Down);
        QCOMPARE(selected(), (QList<bool>{ false, true, false }));
        QCOMPARE(state()->selectedOccurrence(), QDateTime(Wednesday.addDays(1), QTime(9, 0)));
        QSignalSpy opened(&week, &TimelineView::eventSelected);
        click(week.timeline(), 2);
        QCOMPARE(selected(), (QList<bool>{ false, false, true }));
        QVERIFY(!day.timeline()->isSelected(day.timeline()->blocks().at(0)));
        click(week.strip(), 0);
        QCOMPARE(state()->selectedEventId(), fair.id);
        QCOMPARE(selected(), QList<bool>(3, false));
        QTest::mouseClick(week.timeline(), Qt::LeftButton, {}, { 300, 3 });
        QCOMPARE(state()->selectedEventId(), QString());
        QVERIFY(!week.strip()->isSelected(week.strip()->blocks().at(0)));
        QCOMPARE(opened.size(), 2); // the click beside has nothing to open
    }

    void headerStripAndColumnsAgree()
    {
        WeekView week(state(), WeekView::Form::Week);
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
        QSignalSpy activated(&week, &WeekView::dayActivated);
        QTest::mouseClick(week.header(), Qt::LeftButton, {}, week.header()->columnRect(2).center());
        QTest::mouseClick(week.header(), Qt::LeftButton, {}, { 10, 10 }); // the gutter
        QCOMPARE(activated.size(), 1);
        QCOMPARE(activated.at(0).at(0).toDate(), week.weekStart().addDays(2));
    }

    void headerTakesTheLongestFormThatFits()
    {
        TimelineHeader header;
        header.setDays(QDate(2026, 6, 8), 7);
        header.setGutterPx(0);
        header.setToday(QDate(2026, 6, 10));
        QFont bold = header.font();
        bold.setBold(true);
        const auto widthOf = [&bold](const QString &text) { return QFontMetrics(bold).horizontalAdvance(text); };
        const auto linesAt = [&header](int columnWidth) {
            header.setContentWidth(7 * columnWidth);
            return header.lines(QDate(2026, 6, 10)).join(u'|');
        };
        const int weekday = widthOf(u"Wed"_qs);
        QCOMPARE(linesAt(std::max(widthOf(u"Jun 14"_qs), weekday) + 4), u"Wed|Jun 10"_qs);
        // "Jun 8" alone would fit; one form holds for the row.
        QCOMPARE(linesAt(std::max(widthOf(u"Jun 8"_qs), weekday) + 3), u"Wed|10"_qs);
        QCOMPARE(linesAt(weekday + 3), u"W|10"_qs);
    }

    void wheelAboveTheHoursScrollsThem()
    {
        WeekView week(state(), WeekView::Form::Week);
        show(week);
        bar(week)->setValue(0);
        const auto roll = [&week](QWidget *over, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event({ 5, 5 }, over->mapToGlobal(QPointF(5, 5)), {}, { 0, -120 }, Qt::NoButton, modifiers,
                              Qt::NoScrollPhase, false);
            if (!QCoreApplication::sendEvent(over, &event) || !event.isAccepted())
                QCoreApplication::sendEvent(&week, &event); // the window system's own would go on to the parent
            return bar(week)->value();
        };
        const int once = roll(week.header(), {});
        QVERIFY(once > 0);
        QCOMPARE(roll(week.strip(), {}), 2 * once);
        QCOMPARE(roll(week.header(), Qt::ControlModifier), 2 * once);
    }

    void keyboardScrollsToTheEvent()
    {
        add(u"early"_qs, Wednesday, QTime(1, 0));
        add(u"late"_qs, Wednesday, QTime(22, 0));
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *day = new DayView(state());
        auto *after = new QLineEdit;
        layout->addWidget(day, 1);
        layout->addWidget(after);
        window.resize(900, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        day->timeline()->setFocus();
        for (const QString &title : { u"early"_qs, u"late"_qs }) {
            QTest::keyClick(day->timeline(), Qt::Key_Down);
            for (const EventBlock &block : day->timeline()->blocks()) {
                const bool isOnScreen = day->timeline()->visibleRegion().boundingRect().contains(block.rect);
                QCOMPARE(isOnScreen, day->timeline()->eventOf(block).title == title);
            }
        }
        const int scrolled = bar(*day)->value();
        QTest::keyClick(day->timeline(), Qt::Key_Tab);
        QVERIFY(after->hasFocus());
        QCOMPARE(bar(*day)->value(), scrolled); // leaving moves nothing
    }

    void movedEventTakesTheNextKeyAndStaysInSight()
    {
        const Event event = add(QStringLiteral("Call"), Wednesday, QTime(9, 0));
        WeekView view(state(), WeekView::Form::Week);
        connect(&view, &TimelineView::moveRequested, this,
                [this](const QString &id, const QDateTime &occurrence, int days, int minutes) {
                    QVERIFY(EventEdits::move(state(), id, occurrence, days, minutes).ok);
                    state()->setSelectedOccurrence(id, state()->events()->getById(id)->startTime);
                });
        show(view);
        TimelineWidget *timeline = view.timeline();
        timeline->setFocus();
        state()->setSelectedOccurrence(event.id, event.startTime);
        for (int i = 1; i <= 40; ++i) {
            QTest::keyClick(timeline, Qt::Key_Down, Qt::ShiftModifier);
            QCoreApplication::processEvents(); // much shorter than the delay of the stored change's signal
            QCoreApplication::processEvents();
        }
        QCOMPARE(state()->events()->getById(event.id)->startTime, event.startTime.addSecs(40 * 15 * 60));
        const QRect shown = timeline->blocks().at(timeline->blockIndexOf({ event.id, {} })).rect;
        const int top = bar(view)->value();
        QVERIFY(top <= shown.top() && shown.bottom() < top + view.scrollArea()->viewport()->height());
    }

    void eventThatWasMovedElsewhereStaysSelected()
    {
        Event event = add(QStringLiteral("Call"), Wednesday, QTime(9, 0));
        WeekView view(state(), WeekView::Form::Week);
        show(view);
        state()->setSelectedOccurrence(event.id, event.startTime);
        QVERIFY(EventEdits::move(state(), event.id, event.startTime, 1, 0).ok);
        QTRY_COMPARE(state()->selectedOccurrence(), event.startTime.addDays(1));
        state()->undoStack()->undo();
        QTRY_COMPARE(state()->selectedOccurrence(), event.startTime);
    }

    void largeFontKeepsTheHoursOnShow()
    {
        DayView day(state());
        day.setDate(LongAgo);
        show(day);
        QFont large = day.font();
        large.setPointSize(24);
        day.setFont(large);
        QTRY_VERIFY(bar(day)->value() > 8 * 56);
        QCOMPARE(bar(day)->value(), topOfHour(day, 8));
        const int before = day.timeline()->hourHeight();
        QCOMPARE(day.timeline()->height(), 24 * before);
        QCOMPARE(state()->hourHeight(), 56);
        day.zoomBy(1);
        QCOMPARE(day.timeline()->hourHeight(), before + 8);
    }

    void landsOnTheWorkday()
    {
        state()->preferences()->setInt(u"ui/workdayStart"_qs, 7);
        DayView day(state());
        day.setDate(LongAgo);
        show(day);
        QCOMPARE(bar(day)->value(), topOfHour(day, 7));
        bar(day)->setValue(13);
        day.setDate(LongAgo.addDays(7));
        emit state()->workdayHoursChanged(7, 20); // the same start
        QCOMPARE(bar(day)->value(), 13); // a step keeps the hours on show
        day.relandOnStartHour();
        QCOMPARE(bar(day)->value(), topOfHour(day, 7));
        day.hide();
        state()->preferences()->setInt(u"ui/workdayStart"_qs, 6);
        emit state()->workdayHoursChanged(6, 20);
        day.show();
        QCOMPARE(bar(day)->value(), topOfHour(day, 6));
    }

    void zoomKeepsTheTimeUnderThePointer()
    {
        DayView day(state());
        day.setDate(LongAgo);
        show(day);
        const int viewportY = 200;
        const auto hourAtPointer = [&] { return double(bar(day)->value() + viewportY) / day.timeline()->hourHeight(); };
        const double before = hourAtPointer();
        emit day.timeline()->zoomRequested(3, bar(day)->value() + viewportY);
        QCOMPARE(day.timeline()->hourHeight(), 80);
        QVERIFY(qAbs(hourAtPointer() - before) < 0.02);
        QTest::keyClick(day.timeline(), Qt::Key_Minus, Qt::ControlModifier);
        QTest::keyClick(day.timeline(), Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(state()->hourHeight(), 64);
        QCOMPARE(bar(day)->maximum(), 24 * 64 - day.scrollArea()->viewport()->height());
        QTest::keyClick(day.timeline(), Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(state()->hourHeight(), 72);
        day.zoomBy(100);
        QCOMPARE(state()->hourHeight(), 200);
    }

    void stripTakesAtMostTwoFifths()
    {
        for (int i = 0; i < 30; ++i)
            m_scratch->addAllDayEvent(QString::number(i), Wednesday);
        WeekView week(state(), WeekView::Form::Week);
        show(week, { 900, 500 });
        const int column = int(week.weekStart().daysTo(Wednesday));
        QCOMPARE(week.strip()->overflowChipText(column), u"+28 more"_qs);
        week.strip()->setExpanded(true);
        QTRY_VERIFY(week.strip()->height() > 100);
        QVERIFY(week.strip()->height() <= 200);
        week.strip()->setExpanded(false);
        week.resize(260, 600);
        QTRY_COMPARE(week.strip()->overflowChipText(column), u"+28"_qs);
    }

    void emptyStripPassesTheFocusOn()
    {
        m_scratch->addAllDayEvent(u"fair"_qs, Wednesday);
        WeekView week(state(), WeekView::Form::Week);
        show(week);
        week.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&week));
        week.strip()->setFocus();
        QVERIFY(week.strip()->hasFocus());
        week.setAnchorDate(Wednesday.addDays(7));
        QVERIFY(week.timeline()->hasFocus());
    }

    void contextMenuIsForTheInstanceOnShow()
    {
        add(u"standup"_qs, Wednesday, QTime(9, 0));
        WeekView week(state(), WeekView::Form::Week);
        show(week, { 900, 1600 });
        QSignalSpy requested(&week, &TimelineView::contextMenuRequested);
        const QPoint point = week.timeline()->blocks().at(0).rect.center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, week.timeline()->mapToGlobal(point));
        QCoreApplication::sendEvent(week.timeline(), &event);
        QCOMPARE(requested.size(), 1);
        QCOMPARE(requested.at(0).at(0).value<Event>().title, u"standup"_qs);
    }

    void longNamesAreCut()
    {
        QCOMPARE(EventText::shortName(u" two\nlines "_qs), u"two lines"_qs);
        QCOMPARE(EventText::shortName(QString(40, u'x')), QString(40, u'x'));
        QCOMPARE(EventText::shortName(QString(41, u'x')), QString(39, u'x') + u'…');
    }

    void timeFormatChangesTheTexts()
    {
        add(u"standup"_qs, Wednesday, QTime(15, 0));
        WeekView week(state(), WeekView::Form::Week);
        show(week);
        QStringList names;
        QList<QImage> images;
        for (const QString &format : { u"12"_qs, u"24"_qs }) {
            state()->preferences()->set(u"ui/timeFormat"_qs, format);
            names.append(week.timeline()->describe(week.timeline()->blocks().at(0)));
            images.append(week.timeline()->grab().toImage());
        }
        QVERIFY2(names.at(0).contains(u"3:00 PM") && names.at(1).contains(u"15:00"), qPrintable(names.join(u'|')));
        QVERIFY(images.at(0) != images.at(1));
    }
};

QTEST_MAIN(TestTimelineViews)
#include "tst_TimelineViews.moc"
