#include "calendar/services/VisibleEvents.h"
#include "support/ScratchState.h"
#include "ui/surfaces/AllDayStrip.h"
#include "ui/surfaces/DayTimelineWidget.h"
#include "ui/surfaces/WeekTimelineWidget.h"
#include "ui/theme/Theme.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QDate Monday(2026, 6, 15);
constexpr QPoint Beside(300, 5); // Tuesday, shortly after midnight

Event timed(const QString &id, QDate date, QTime start, int minutes = 60)
{
    Event event;
    event.id = event.title = id;
    event.calendarId = ScratchState::calendarId();
    event.startTime = QDateTime(date, start);
    event.endTime = event.startTime.addSecs(60 * minutes);
    return event;
}

/// All-day events of Monday with the ids "0", "1" and so on.
QList<Event> allDay(int count)
{
    QList<Event> events;
    for (int i = 0; i < count; ++i) {
        Event event;
        event.id = event.title = QString::number(i);
        event.isAllDay = true;
        event.startTime = QDateTime(Monday, QTime(0, 0), Qt::UTC);
        event.endTime = event.startTime.addDays(1);
        events.append(event);
    }
    return events;
}

VisibleSpan spanOf(const QList<Event> &events)
{
    VisibleSpan span;
    span.events = events;
    return span;
}

}

/// A week with three events, between two fields that take the keyboard's focus before and after it.
class TestTimelineWidget : public QObject {
    Q_OBJECT

private:
    void setEvents(const QList<Event> &events) { m_week->setData(Monday, 7, spanOf(events), {}); }
    [[nodiscard]] QPoint middleOf(int block) const { return m_week->blocks().at(block).rect.center(); }
    [[nodiscard]] QRect globalRectOf(int block) const
    {
        const QRect rect = m_week->blocks().at(block).rect;
        return { m_week->mapToGlobal(rect.topLeft()), rect.size() };
    }
    void click(QPoint point) { QTest::mouseClick(m_week, Qt::LeftButton, {}, point); }

    /// Where the keyboard is: a field, or an event of the week.
    [[nodiscard]] QString place() const
    {
        if (m_before->hasFocus() || m_after->hasFocus())
            return m_before->hasFocus() ? u"before"_qs : u"after"_qs;
        return m_week->selection().isEmpty() ? u"week"_qs : m_week->selection().id;
    }

    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_before = nullptr;
    QLineEdit *m_after = nullptr;
    WeekTimelineWidget *m_week = nullptr;

private slots:
    void init()
    {
        m_window.reset();
        m_state = std::make_unique<ScratchState>();
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_before = new QLineEdit;
        m_week = new WeekTimelineWidget(m_state->state());
        m_after = new QLineEdit;
        layout->addWidget(m_before);
        layout->addWidget(m_week, 1);
        layout->addWidget(m_after);
        m_window->resize(1000, 1500);
        m_window->show();
        // Not in the order of the day: the keyboard still walks by time.
        setEvents({ timed(u"noon"_qs, Monday, QTime(12, 0)), timed(u"tuesday"_qs, Monday.addDays(1), QTime(8, 0)),
                    timed(u"breakfast"_qs, Monday, QTime(8, 0)) });
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void clickSelectsOrClears()
    {
        QSignalSpy selected(m_week, &EventCanvas::eventSelected);
        QSignalSpy activated(m_week, &EventCanvas::eventActivated);
        const EventBlock block = m_week->blocks().at(1);
        click(middleOf(1));
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.takeFirst(), (QVariantList{ block.eventId, block.occurrenceStart, globalRectOf(1) }));
        QVERIFY(m_week->isSelected(block));
        QVERIFY(!m_week->isSelected(m_week->blocks().at(0)));
        QTest::mouseDClick(m_week, Qt::LeftButton, {}, middleOf(1));
        QTest::mouseRelease(m_week, Qt::LeftButton, {}, middleOf(1));
        QCOMPARE(QList<QVariantList>(activated), QList<QVariantList>{ { block.eventId } });
        for (const QPoint elsewhere : { middleOf(0), Beside }) {
            QTest::mousePress(m_week, Qt::LeftButton, {}, middleOf(2));
            QTest::mouseRelease(m_week, Qt::LeftButton, {}, elsewhere);
        }
        QVERIFY(selected.isEmpty()); // neither of these is a click
        click(Beside);
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.at(0).at(0).toString(), QString());
        QVERIFY(m_week->selection().isEmpty());
    }

    void contextMenuComesFromMouseAndKeyboard()
    {
        QSignalSpy requested(m_week, &EventCanvas::eventContextRequested);
        const auto request = [this](QContextMenuEvent::Reason reason, QPoint pos) {
            QContextMenuEvent event(reason, pos, m_week->mapToGlobal(pos));
            QCoreApplication::sendEvent(m_week, &event);
        };
        request(QContextMenuEvent::Keyboard, Beside); // nothing is selected
        request(QContextMenuEvent::Mouse, Beside);
        QVERIFY(requested.isEmpty());
        request(QContextMenuEvent::Mouse, middleOf(2));
        request(QContextMenuEvent::Keyboard, Beside);
        QCOMPARE(requested.size(), 2);
        QCOMPARE(requested.at(0), (QVariantList{ m_week->blocks().at(2).eventId, m_week->mapToGlobal(middleOf(2)) }));
        QVERIFY(globalRectOf(2).contains(requested.at(1).at(1).toPoint()));
    }

    void keyboardWalks()
    {
        const auto walk = [this](QWidget *from, const QList<Qt::Key> &keys) {
            from->setFocus();
            QStringList places;
            for (const Qt::Key key : keys) {
                QTest::keyClick(m_window->focusWidget(), key);
                places.append(place());
            }
            return places.join(u' ');
        };
        QCOMPARE(walk(m_before, QList<Qt::Key>(4, Qt::Key_Tab)), u"breakfast noon tuesday after"_qs);
        QCOMPARE(walk(m_after, QList<Qt::Key>(4, Qt::Key_Backtab)), u"tuesday noon breakfast before"_qs);
        QCOMPARE(walk(m_week, { Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up }),
                 u"noon tuesday breakfast noon breakfast"_qs);
        QTest::keyClick(m_week, Qt::Key_Up);
        QCOMPARE(walk(m_before, { Qt::Key_Tab }), u"breakfast"_qs); // the near end again
        click(middleOf(m_week->blockIndexOf({ u"noon"_qs, {} })));
        QCOMPARE(walk(m_before, { Qt::Key_Tab }), u"noon"_qs); // where the click was
        m_week->setSelectedOccurrence({}, {});
        setEvents({});
        QCOMPARE(walk(m_before, QList<Qt::Key>(2, Qt::Key_Tab)), u"week after"_qs);
    }

    void focusMarkIsForTheKeyboard()
    {
        setEvents({});
        const auto isMarked = [this] {
            const QPoint gutterEdge(m_week->metrics().columns.gutterPx - 1, m_week->yForTime(QTime(10, 30)));
            return m_week->grab().toImage().pixelColor(gutterEdge) == Theme::accent();
        };
        m_before->setFocus();
        QTest::keyClick(m_before, Qt::Key_Tab);
        QVERIFY(isMarked());
        click(Beside);
        QVERIFY(!isMarked());
        QTest::keyClick(m_week, Qt::Key_Down);
        QVERIFY(isMarked());
        m_before->setFocus();
        QVERIFY(!isMarked());
    }

    void returnOpensAndEscapeClears()
    {
        QSignalSpy selected(m_week, &EventCanvas::eventSelected);
        m_week->setFocus();
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Escape })
            QTest::keyClick(m_week, key);
        QCOMPARE(selected.size(), 2); // without a selection both keys do nothing
        const int breakfast = m_week->blockIndexOf({ u"breakfast"_qs, {} });
        QCOMPARE(selected.at(0).at(0).toString(), u"breakfast"_qs);
        QCOMPARE(selected.at(0).at(2).toRect(), globalRectOf(breakfast));
        QCOMPARE(selected.at(1).at(0).toString(), QString());
        QVERIFY(m_week->selection().isEmpty());
    }

    void occurrencesAreToldApart()
    {
        const QString id = u"daily"_qs;
        const Event tuesday = timed(id, Monday.addDays(1), QTime(9, 0));
        setEvents({ tuesday, timed(id, Monday, QTime(9, 0)), timed(id, Monday.addDays(2), QTime(9, 0)) });
        const auto selectedDays = [this] {
            QList<int> days;
            for (const EventBlock &block : m_week->blocks()) {
                if (m_week->isSelected(block))
                    days.append(block.occurrenceStart.date().dayOfWeek());
            }
            return days;
        };
        m_week->setSelectedOccurrence(id, tuesday.startTime);
        QCOMPARE(selectedDays(), QList<int>{ Qt::Tuesday });
        m_week->setSelectedOccurrence(id, {}); // the first one
        QCOMPARE(selectedDays(), QList<int>{ Qt::Monday });
        click(middleOf(1));
        QCOMPARE(selectedDays(), QList<int>{ Qt::Tuesday });
        QTest::keyClick(m_week, Qt::Key_Down);
        QCOMPARE(selectedDays(), QList<int>{ Qt::Wednesday });
        QCOMPARE(m_week->blockIndexOf(m_week->selection()), 2);
        m_week->setSelectedOccurrence({}, {});
        QCOMPARE(selectedDays(), QList<int>{});
    }

    void controlAndWheelZoom()
    {
        QSignalSpy zoomed(m_week, &TimelineWidget::zoomRequested);
        const auto isTaken = [this](int delta, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event({ 200, 300 }, m_week->mapToGlobal(QPointF(200, 300)), {}, { 0, delta }, Qt::NoButton,
                              modifiers, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(m_week, &event);
            return event.isAccepted();
        };
        QVERIFY(!isTaken(120, Qt::NoModifier)); // left to the scroll area
        QVERIFY(isTaken(-240, Qt::ControlModifier));
        QCOMPARE(QList<QVariantList>(zoomed), (QList<QVariantList>{ { -2, 300 } }));
    }

    void cursorShowsWhatCanBeDragged()
    {
        setEvents({ timed(u"day"_qs, Monday, QTime(9, 0)), timed(u"night"_qs, Monday.addDays(1), QTime(20, 0), 480) });
        using Move = std::pair<QPoint, Qt::CursorShape>;
        const QList<Move> moves{ { middleOf(0), Qt::PointingHandCursor },
                                 { middleOf(1), Qt::ArrowCursor },
                                 { middleOf(0), Qt::PointingHandCursor },
                                 { Beside, Qt::ArrowCursor } };
        for (const auto &[point, shape] : moves) {
            QTest::mouseMove(m_week, point);
            QTRY_COMPARE(m_week->cursor().shape(), shape);
        }
    }

    void toolTipIsPlainText()
    {
        Event event = timed(u"<b>bold</b>"_qs, Monday, QTime(9, 0), 90);
        event.location = u"Room 5"_qs;
        setEvents({ event });
        QHelpEvent help(QEvent::ToolTip, middleOf(0), m_week->mapToGlobal(middleOf(0)));
        QCoreApplication::sendEvent(m_week, &help);
        const QString text = QToolTip::text();
        for (const QString &part :
             { u"&lt;b&gt;bold&lt;/b&gt;"_qs, u"Mon, Jun 15, 9:00 AM – 10:30 AM"_qs, u"Room 5"_qs, u"Personal"_qs })
            QVERIFY2(text.contains(part), qPrintable(text));
        QHelpEvent beside(QEvent::ToolTip, Beside, m_week->mapToGlobal(Beside));
        QCoreApplication::sendEvent(m_week, &beside);
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void blocksAreAccessible()
    {
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(m_week);
        QVERIFY(list);
        QCOMPARE(list->role(), QAccessible::List);
        QCOMPARE(list->childCount(), 3);
        QAccessibleInterface *entry = list->child(0);
        QCOMPARE(entry->rect(), globalRectOf(0));
        const QString name = entry->text(QAccessible::Name);
        QVERIFY2(name.startsWith(u"breakfast, Mon, Jun 15, 8:00 AM – 9:00 AM"), qPrintable(name));
        QCOMPARE(list->childAt(entry->rect().center().x(), entry->rect().center().y()), entry);
        QCOMPARE(list->indexOfChild(entry), 0);
        entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(entry->state().selected);
        m_week->setFocus();
        QCOMPARE(list->focusChild(), entry);
        setEvents({});
        QCOMPARE(list->childCount(), 0);
        QVERIFY(!entry->isValid());
    }

    void hourShowsItsTimeInEveryFont()
    {
        for (const bool compact : { false, true }) {
            DayTimelineWidget day(m_state->state());
            QFont font = day.font();
            font.setPointSize(20);
            day.setFont(font);
            day.setCompact(compact);
            const TimelineBlockPainter painter(font, { .paddingPx = compact ? 1 : 4 }, u"HH:mm"_qs);
            const Event hour = timed(u"x"_qs, Monday, QTime(9, 0));
            QVERIFY(!painter.fit(hour, { 500, day.neededHourHeight() }, false).time.text().isEmpty());
            QVERIFY(painter.fit(hour, { 500, day.neededHourHeight() - 1 }, false).time.text().isEmpty());
            QVERIFY(painter.fit(hour, { 30, 200 }, false).time.text().isEmpty()); // half a time is another one
            day.setBaseHourHeight(180);
            QCOMPARE(day.neededHourHeight(), 180);
        }
    }

    void oneLayoutForManyChanges()
    {
        struct Counting : WeekTimelineWidget {
            using WeekTimelineWidget::WeekTimelineWidget;
            int layouts = 0;
            void relayout() override
            {
                ++layouts;
                WeekTimelineWidget::relayout();
            }
        };
        Counting week(m_state->state());
        week.show();
        QVERIFY(QTest::qWaitForWindowExposed(&week));
        QCoreApplication::processEvents();
        week.layouts = 0;
        QSignalSpy changed(&week, &EventCanvas::fontMetricsChanged);
        for (int i = 0; i < 20; ++i) {
            week.setData(Monday, 7, spanOf({ timed(u"x"_qs, Monday, QTime(9, 0)) }), {});
            QEvent event(QEvent::FontChange);
            QCoreApplication::sendEvent(&week, &event);
        }
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(week.layouts, 1);
        week.setData(Monday, 7, {}, {});
        QTRY_COMPARE(week.layouts, 2);
        QCOMPARE(changed.size(), 1);
    }

    void smallestBlockFollowsDensityAndFont()
    {
        DayTimelineWidget day(m_state->state());
        day.resize(600, 2400);
        QCOMPARE(day.yForTime(QTime(1, 30)), 150); // the hours share a height beyond their need
        day.setRenderedDate(Monday);
        day.setData(spanOf({ timed(u"short"_qs, Monday, QTime(9, 0), 1) }), {});
        QFont bold = day.font();
        bold.setBold(true);
        QCOMPARE(day.blocks().at(0).rect.height(), QFontMetrics(bold).height() + 8);
        day.setCompact(true);
        bold.setPointSize(30);
        day.setFont(bold);
        QTRY_COMPARE(day.blocks().at(0).rect.height(), QFontMetrics(bold).height() + 2);
        QVERIFY(day.neededGutterPx() > 64);
    }

    void nowLineIsInTodaysColumn()
    {
        setEvents({});
        m_week->setNow(QDateTime(Monday.addDays(2), QTime(10, 0)));
        const QImage image = m_week->grab().toImage();
        const DayColumns columns = m_week->metrics().columns;
        for (int column = 0; column < 7; ++column) {
            const QPoint middle(columns.left(column) + columns.columnWidthPx() / 2, m_week->yForTime(QTime(10, 0)));
            QCOMPARE(image.pixelColor(middle) == QColor(220, 53, 69), column == 2);
        }
        m_week->setNow(QDateTime(Monday.addDays(7), QTime(10, 0)));
        QVERIFY(m_week->nowLineRect().isEmpty());
    }

    void stripOpensOnItsControlsOnly()
    {
        AllDayStrip strip(m_state->state());
        strip.setData(64, Monday.addDays(-1), 7, allDay(10), {}, {});
        strip.setContentWidth(764);
        const int collapsed = strip.sizeHint().height();
        strip.resize(800, collapsed);
        const QPoint chip = strip.overflowChipRect(1).center();
        const QPoint event = strip.blocks().at(1).rect.center();
        QSignalSpy selected(&strip, &EventCanvas::eventSelected);
        QSignalSpy activated(&strip, &EventCanvas::eventActivated);
        QVERIFY(strip.overflowChipRect(0).isEmpty());
        QCOMPARE(strip.hiddenTitles(1).join(u' '), u"2 3 4 5 6 7 8 9"_qs);
        for (const auto &[press, release] : { std::pair(chip, event), std::pair(event, chip) }) {
            QTest::mousePress(&strip, Qt::LeftButton, {}, press);
            QTest::mouseRelease(&strip, Qt::LeftButton, {}, release);
        }
        QVERIFY(!strip.isExpanded());
        QTest::mouseClick(&strip, Qt::LeftButton, {}, chip);
        QTest::mouseDClick(&strip, Qt::LeftButton, {}, chip);
        QCOMPARE(strip.blocks().size(), 10);
        strip.resize(800, strip.sizeHint().height());
        QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.chevronRect().center());
        QCOMPARE(strip.sizeHint().height(), collapsed);
        QVERIFY(activated.isEmpty()); // although an event lay under the second press
        QVERIFY(selected.isEmpty());
        QTest::mouseClick(&strip, Qt::LeftButton, {}, event);
        QCOMPARE(selected.at(0).at(0).toString(), u"1"_qs);
    }

    void stripOpensByKey()
    {
        AllDayStrip strip(m_state->state());
        strip.setData(64, Monday, 7, allDay(10), {}, {});
        strip.setContentWidth(764);
        strip.setHeightLimit(150);
        strip.resize(764, strip.sizeHint().height());
        const QList<std::pair<Qt::Key, bool>> steps{
            { Qt::Key_Plus, true },   { Qt::Key_Minus, false }, { Qt::Key_Return, true }, { Qt::Key_Escape, false },
            { Qt::Key_Down, false },  { Qt::Key_Up, true }, // round to the last one, which was hidden
            { Qt::Key_Return, true }, // opens the event
        };
        for (const auto &[key, expanded] : steps) {
            QTest::keyClick(&strip, key);
            QCOMPARE(strip.isExpanded(), expanded);
        }
        QCOMPARE(strip.selection().id, u"9"_qs);
        QVERIFY(strip.sizeHint().height() <= 150);
        QVERIFY(strip.blockIndexOf(strip.selection()) >= 0);
        QCOMPARE(strip.blockIndexOf({ u"0"_qs, {} }), -1); // scrolled away
        QTest::keyClick(&strip, Qt::Key_Escape);
        QVERIFY(strip.selection().isEmpty());
        QTest::keyClick(&strip, Qt::Key_Escape);
        QVERIFY(!strip.isExpanded());
    }
};

QTEST_MAIN(TestTimelineWidget)
#include "tst_TimelineWidget.moc"
