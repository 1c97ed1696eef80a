#include "calendar/services/VisibleEvents.h"
#include "models/Constants.h"
#include "support/ScratchState.h"
#include "ui/surfaces/AllDayStrip.h"
#include "ui/surfaces/DayTimelineWidget.h"
#include "ui/surfaces/WeekTimelineWidget.h"
#include "ui/theme/Theme.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

const QDate Monday(2026, 6, 15);

Event timed(const QString &id, QDate date, QTime start, int minutes)
{
    Event event;
    event.id = event.title = id;
    event.calendarId = ScratchState::calendarId();
    event.startTime = QDateTime(date, start);
    event.endTime = event.startTime.addSecs(60 * minutes);
    return event;
}

/// A week that counts how often it computes its blocks.
class CountingWeek : public WeekTimelineWidget {
public:
    using WeekTimelineWidget::WeekTimelineWidget;
    int layouts = 0;

protected:
    void relayout() override
    {
        ++layouts;
        WeekTimelineWidget::relayout();
    }
};

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

private slots:
    void init();
    void cleanup();

    void clickSelectsTheBlock();
    void clickBesideClears();
    void releaseElsewhereIsNoClick();
    void doubleClickActivatesOnce();
    void contextMenuComesFromMouseAndKeyboard();
    void tabWalksAndLeaves();
    void tabEntersAtTheNearEndUnlessClicked();
    void focusMarkIsForTheKeyboard();
    void arrowsWrap();
    void returnOpensAndEscapeClears();
    void occurrencesAreToldApart();
    void selectionFromOutside();
    void controlAndWheelZoom();
    void cursorShowsWhatCanBeDragged();
    void toolTipIsPlainText();
    void blocksAreAccessible();
    void hourHeightGrowsWithTheWidget();
    void hourShowsItsTimeInEveryFont_data();
    void hourShowsItsTimeInEveryFont();
    void oneLayoutForManyChanges();
    void smallestBlockFollowsDensityAndFont();
    void nowLineIsInTodaysColumn();
    void stripHandlesChipsAndChevron();
    void stripKeyboardOpensWhatIsHidden();

private:
    [[nodiscard]] QPoint middleOf(int block) const { return m_week->blocks().at(block).rect.center(); }
    [[nodiscard]] QRect globalRectOf(int block) const
    {
        const QRect rect = m_week->blocks().at(block).rect;
        return { m_week->mapToGlobal(rect.topLeft()), rect.size() };
    }
    void wheel(int delta, Qt::KeyboardModifiers modifiers, bool *accepted = nullptr) const;

    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_before = nullptr;
    QLineEdit *m_after = nullptr;
    WeekTimelineWidget *m_week = nullptr;
};

void TestTimelineWidget::init()
{
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
    m_week->setData(Monday, 7,
                    spanOf({ timed(QStringLiteral("noon"), Monday, QTime(12, 0), 60),
                             timed(QStringLiteral("tuesday"), Monday.addDays(1), QTime(8, 0), 60),
                             timed(QStringLiteral("breakfast"), Monday, QTime(8, 0), 60) }),
                    {});
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestTimelineWidget::cleanup()
{
    m_window.reset();
    m_state.reset();
}

void TestTimelineWidget::wheel(int delta, Qt::KeyboardModifiers modifiers, bool *accepted) const
{
    QWheelEvent event(QPointF(200, 300), m_week->mapToGlobal(QPointF(200, 300)), {}, { 0, delta }, Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_week, &event);
    if (accepted)
        *accepted = event.isAccepted();
}

void TestTimelineWidget::clickSelectsTheBlock()
{
    QSignalSpy selected(m_week, &EventCanvas::eventSelected);
    const EventBlock block = m_week->blocks().at(1);
    QTest::mouseClick(m_week, Qt::LeftButton, {}, block.rect.center());
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.at(0).at(0).toString(), block.eventId);
    QCOMPARE(selected.at(0).at(1).toDateTime(), block.occurrenceStart);
    QCOMPARE(selected.at(0).at(2).toRect(), globalRectOf(1));
    QVERIFY(m_week->isSelected(block));
    QVERIFY(!m_week->isSelected(m_week->blocks().at(0)));
}

void TestTimelineWidget::clickBesideClears()
{
    QTest::mouseClick(m_week, Qt::LeftButton, {}, middleOf(0));
    QSignalSpy selected(m_week, &EventCanvas::eventSelected);
    QTest::mouseClick(m_week, Qt::LeftButton, {}, { 300, 5 });
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.at(0).at(0).toString(), QString());
    QVERIFY(m_week->selection().isEmpty());
}

void TestTimelineWidget::releaseElsewhereIsNoClick()
{
    QSignalSpy selected(m_week, &EventCanvas::eventSelected);
    QTest::mousePress(m_week, Qt::LeftButton, {}, middleOf(0));
    QTest::mouseRelease(m_week, Qt::LeftButton, {}, middleOf(1));
    QTest::mousePress(m_week, Qt::LeftButton, {}, middleOf(0));
    QTest::mouseRelease(m_week, Qt::LeftButton, {}, { 300, 5 });
    QCOMPARE(selected.size(), 0);
    QTest::mouseClick(m_week, Qt::LeftButton, {}, middleOf(0));
    QCOMPARE(selected.size(), 1);
}

void TestTimelineWidget::doubleClickActivatesOnce()
{
    QSignalSpy selected(m_week, &EventCanvas::eventSelected);
    QSignalSpy activated(m_week, &EventCanvas::eventActivated);
    QTest::mouseClick(m_week, Qt::LeftButton, {}, middleOf(0));
    QTest::mouseDClick(m_week, Qt::LeftButton, {}, middleOf(0));
    QTest::mouseRelease(m_week, Qt::LeftButton, {}, middleOf(0));
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.at(0).at(0).toString(), m_week->blocks().at(0).eventId);
    QCOMPARE(selected.size(), 1); // by the first click alone
}

void TestTimelineWidget::contextMenuComesFromMouseAndKeyboard()
{
    QSignalSpy requested(m_week, &EventCanvas::eventContextRequested);
    const auto request = [this](QContextMenuEvent::Reason reason, QPoint pos) {
        QContextMenuEvent event(reason, pos, m_week->mapToGlobal(pos));
        QCoreApplication::sendEvent(m_week, &event);
    };
    request(QContextMenuEvent::Keyboard, { 300, 5 }); // nothing is selected
    request(QContextMenuEvent::Mouse, { 300, 5 });
    QCOMPARE(requested.size(), 0);
    request(QContextMenuEvent::Mouse, middleOf(2));
    QCOMPARE(requested.size(), 1);
    QCOMPARE(requested.at(0).at(0).toString(), m_week->blocks().at(2).eventId);
    QCOMPARE(requested.at(0).at(1).toPoint(), m_week->mapToGlobal(middleOf(2)));
    request(QContextMenuEvent::Keyboard, { 300, 5 });
    QCOMPARE(requested.size(), 2);
    QVERIFY(globalRectOf(2).contains(requested.at(1).at(1).toPoint()));
}

void TestTimelineWidget::tabWalksAndLeaves()
{
    QSignalSpy focused(m_week, &EventCanvas::eventFocused);
    m_before->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
    QVERIFY(m_week->hasFocus());
    QStringList walked;
    for (const QList<QVariant> &arguments : focused)
        walked.append(arguments.at(0).toString());
    QCOMPARE(walked.join(u' '), QStringLiteral("breakfast noon tuesday"));
    QTest::keyClick(m_week, Qt::Key_Tab);
    QVERIFY(m_after->hasFocus());
    QTest::keyClick(m_after, Qt::Key_Backtab);
    QVERIFY(m_week->hasFocus());
    QCOMPARE(m_week->selection().id, QStringLiteral("tuesday"));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(m_week, Qt::Key_Backtab);
    QVERIFY(m_before->hasFocus());

    m_week->setData(Monday, 7, spanOf({}), {});
    m_before->setFocus();
    QTest::keyClick(m_before, Qt::Key_Tab);
    QVERIFY(m_week->hasFocus());
    QTest::keyClick(m_week, Qt::Key_Tab);
    QVERIFY(m_after->hasFocus());
}

void TestTimelineWidget::tabEntersAtTheNearEndUnlessClicked()
{
    m_week->setFocus();
    QTest::keyClick(m_week, Qt::Key_Down);
    QTest::keyClick(m_week, Qt::Key_Down);
    m_before->setFocus();
    QTest::keyClick(m_before, Qt::Key_Tab);
    QCOMPARE(m_week->selection().id, QStringLiteral("breakfast"));
    QTest::mouseClick(m_week, Qt::LeftButton, {}, middleOf(m_week->blockIndexOf({ QStringLiteral("noon"), {} })));
    m_before->setFocus();
    QTest::keyClick(m_before, Qt::Key_Tab);
    QCOMPARE(m_week->selection().id, QStringLiteral("noon"));
}

void TestTimelineWidget::focusMarkIsForTheKeyboard()
{
    m_week->setData(Monday, 7, spanOf({}), {});
    const auto isMarked = [this] {
        const QPoint gutterEdge(m_week->metrics().columns.gutterPx - 1, m_week->yForTime(QTime(10, 30)));
        return m_week->grab().toImage().pixelColor(gutterEdge) == Theme::accent();
    };
    m_week->setFocus();
    QVERIFY(!isMarked());
    QTest::keyClick(m_week, Qt::Key_Down);
    QVERIFY(isMarked());
    QTest::mouseClick(m_week, Qt::LeftButton, {}, { 300, 5 });
    QVERIFY(!isMarked());
    m_before->setFocus();
    QTest::keyClick(m_before, Qt::Key_Tab);
    QVERIFY(m_week->hasFocus());
    QVERIFY(isMarked());
    m_before->setFocus();
    QVERIFY(!isMarked());
}

void TestTimelineWidget::arrowsWrap()
{
    m_week->setFocus();
    QStringList walked;
    for (const Qt::Key key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up }) {
        QTest::keyClick(m_week, key);
        walked.append(m_week->selection().id);
    }
    QCOMPARE(walked.join(u' '), QStringLiteral("tuesday breakfast noon breakfast tuesday"));
}

void TestTimelineWidget::returnOpensAndEscapeClears()
{
    QSignalSpy selected(m_week, &EventCanvas::eventSelected);
    m_week->setFocus();
    QTest::keyClick(m_week, Qt::Key_Return);
    QCOMPARE(selected.size(), 0);
    QTest::keyClick(m_week, Qt::Key_Down);
    QTest::keyClick(m_week, Qt::Key_Return);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.at(0).at(0).toString(), QStringLiteral("breakfast"));
    QCOMPARE(selected.at(0).at(2).toRect(), globalRectOf(m_week->blockIndexOf(m_week->selection())));
    QTest::keyClick(m_week, Qt::Key_Escape);
    QVERIFY(m_week->selection().isEmpty());
    QCOMPARE(selected.size(), 2);
    QCOMPARE(selected.at(1).at(0).toString(), QString());
}

void TestTimelineWidget::occurrencesAreToldApart()
{
    m_week->setData(Monday, 7,
                    spanOf({ timed(QStringLiteral("daily"), Monday, QTime(9, 0), 60),
                             timed(QStringLiteral("daily"), Monday.addDays(1), QTime(9, 0), 60),
                             timed(QStringLiteral("daily"), Monday.addDays(2), QTime(9, 0), 60) }),
                    {});
    QTest::mouseClick(m_week, Qt::LeftButton, {}, middleOf(1));
    QVERIFY(!m_week->isSelected(m_week->blocks().at(0)));
    QVERIFY(m_week->isSelected(m_week->blocks().at(1)));
    QVERIFY(!m_week->isSelected(m_week->blocks().at(2)));
    QTest::keyClick(m_week, Qt::Key_Down);
    QVERIFY(m_week->isSelected(m_week->blocks().at(2)));
    QVERIFY(!m_week->isSelected(m_week->blocks().at(1)));
}

void TestTimelineWidget::selectionFromOutside()
{
    const QString id = QStringLiteral("daily");
    const Event monday = timed(id, Monday, QTime(9, 0), 60);
    const Event tuesday = timed(id, Monday.addDays(1), QTime(9, 0), 60);
    m_week->setData(Monday, 7, spanOf({ tuesday, monday }), {});
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
    m_week->setSelectedOccurrence({}, {});
    QCOMPARE(selectedDays(), QList<int>{});
}

void TestTimelineWidget::controlAndWheelZoom()
{
    QSignalSpy zoomed(m_week, &TimelineWidget::zoomRequested);
    bool accepted = true;
    wheel(120, Qt::NoModifier, &accepted);
    QVERIFY(!accepted); // left to the scroll area
    for (int i = 0; i < 5; ++i)
        wheel(30, Qt::ControlModifier, &accepted);
    QVERIFY(accepted);
    wheel(-240, Qt::ControlModifier);
    QCOMPARE(zoomed.size(), 2);
    QCOMPARE(zoomed.at(0), (QList<QVariant>{ 1, 300 }));
    QCOMPARE(zoomed.at(1), (QList<QVariant>{ -2, 300 }));
}

void TestTimelineWidget::cursorShowsWhatCanBeDragged()
{
    m_week->setData(Monday, 7,
                    spanOf({ timed(QStringLiteral("day"), Monday, QTime(9, 0), 60),
                             timed(QStringLiteral("night"), Monday.addDays(1), QTime(20, 0), 480) }),
                    {});
    QTest::mouseMove(m_week, middleOf(0));
    QTRY_COMPARE(m_week->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseMove(m_week, middleOf(1));
    QTRY_COMPARE(m_week->cursor().shape(), Qt::ArrowCursor);
    QTest::mouseMove(m_week, middleOf(0));
    QTRY_COMPARE(m_week->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseMove(m_week, { 300, 5 });
    QTRY_COMPARE(m_week->cursor().shape(), Qt::ArrowCursor);
}

void TestTimelineWidget::toolTipIsPlainText()
{
    Event event = timed(QStringLiteral("<b>bold</b>"), Monday, QTime(9, 0), 90);
    event.location = QStringLiteral("Room 5");
    m_week->setData(Monday, 7, spanOf({ event }), {});
    QHelpEvent help(QEvent::ToolTip, middleOf(0), m_week->mapToGlobal(middleOf(0)));
    QCoreApplication::sendEvent(m_week, &help);
    const QString text = QToolTip::text();
    QVERIFY(!text.contains(u"<b>bold</b>"));
    QVERIFY2(text.contains(u"&lt;b&gt;bold&lt;/b&gt;"), qPrintable(text));
    QVERIFY2(text.contains(u"Mon, Jun 15, 9:00 AM – 10:30 AM"), qPrintable(text));
    QVERIFY(text.contains(u"Room 5"));
    QVERIFY(text.contains(u"Personal"));
    QHelpEvent beside(QEvent::ToolTip, { 300, 5 }, m_week->mapToGlobal(QPoint(300, 5)));
    QCoreApplication::sendEvent(m_week, &beside);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestTimelineWidget::blocksAreAccessible()
{
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(m_week);
    QVERIFY(list);
    QCOMPARE(list->role(), QAccessible::List);
    QCOMPARE(list->childCount(), 3);
    QAccessibleInterface *entry = list->child(0);
    QCOMPARE(entry->rect(), globalRectOf(0));
    const QString name = entry->text(QAccessible::Name);
    QVERIFY2(name.startsWith(QStringLiteral("breakfast, Mon, Jun 15, 8:00 AM – 9:00 AM")), qPrintable(name));
    QCOMPARE(list->childAt(entry->rect().center().x(), entry->rect().center().y()), entry);
    QCOMPARE(list->indexOfChild(entry), 0);

    QSignalSpy selected(m_week, &EventCanvas::eventSelected);
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(selected.size(), 1);
    QVERIFY(entry->state().selected);
    m_week->setFocus();
    QCOMPARE(list->focusChild(), entry);
    m_week->setData(Monday, 7, spanOf({}), {});
    QCOMPARE(list->childCount(), 0);
    QVERIFY(!entry->isValid());
}

void TestTimelineWidget::hourHeightGrowsWithTheWidget()
{
    DayTimelineWidget day(m_state->state());
    day.setBaseHourHeight(60);
    day.resize(600, 1440);
    QCOMPARE(day.hourHeight(), 60);
    day.resize(600, 2400);
    QCOMPARE(day.hourHeight(), 100);
    QCOMPARE(day.yForTime(QTime(1, 30)), 150);
}

void TestTimelineWidget::hourShowsItsTimeInEveryFont_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("base");
    QTest::addColumn<bool>("compact");
    QTest::addColumn<int>("paddings"); // pixels that the rule for the time line asks for, beside the text
    QTest::addRow("ordinary") << 9 << 56 << false << 17;
    QTest::addRow("font 150 %%") << 15 << 56 << false << 17;
    QTest::addRow("font 150 %% compact") << 15 << 56 << true << 5;
    QTest::addRow("font 200 %%") << 20 << 56 << false << 17;
    QTest::addRow("font 200 %% zoomed") << 20 << 180 << false << 17;
}

void TestTimelineWidget::hourShowsItsTimeInEveryFont()
{
    QFETCH(int, points);
    QFETCH(int, base);
    QFETCH(bool, compact);
    QFETCH(int, paddings);
    DayTimelineWidget day(m_state->state());
    QFont font = day.font();
    font.setPointSize(points);
    day.setFont(font);
    day.setCompact(compact);
    day.setBaseHourHeight(base);
    day.resize(600, 600);
    QFont bold = font;
    bold.setBold(true);
    QFont small = font;
    small.setPointSizeF(QFontInfo(font).pointSizeF() - 1); // of the font as it is there
    const int text = QFontMetrics(bold).height() + QFontMetrics(small).height();
    QCOMPARE(day.hourHeight(), std::max(base, text + paddings));
    const TimelineBlockPainter painter(font, { .paddingPx = compact ? 1 : 4 }, QStringLiteral("HH:mm"));
    const Event event = timed(QStringLiteral("x"), Monday, QTime(9, 0), 60);
    QVERIFY(!painter.fit(event, { 500, day.hourHeight() }, false).time.text().isEmpty());
}

void TestTimelineWidget::oneLayoutForManyChanges()
{
    CountingWeek week(m_state->state());
    week.resize(800, 1500);
    week.show();
    QVERIFY(QTest::qWaitForWindowExposed(&week));
    QCoreApplication::processEvents();
    week.layouts = 0;
    week.setData(Monday, 7, spanOf({ timed(QStringLiteral("x"), Monday, QTime(9, 0), 60) }), {});
    QCOMPARE(week.blocks().size(), 1);
    QCOMPARE(week.layouts, 1);
    QSignalSpy changed(&week, &EventCanvas::fontMetricsChanged);
    for (int i = 0; i < 20; ++i) {
        for (const QEvent::Type type : { QEvent::FontChange, QEvent::StyleChange, QEvent::PaletteChange }) {
            QEvent event(type);
            QCoreApplication::sendEvent(&week, &event);
        }
    }
    QTRY_COMPARE(changed.size(), 1);
    QCoreApplication::processEvents();
    QCOMPARE(week.layouts, 2);
    QEvent palette(QEvent::PaletteChange);
    QCoreApplication::sendEvent(&week, &palette);
    week.grab();
    QCOMPARE(week.layouts, 2);
    QCOMPARE(changed.size(), 1);
}

void TestTimelineWidget::smallestBlockFollowsDensityAndFont()
{
    DayTimelineWidget day(m_state->state());
    day.resize(600, 1344);
    day.setRenderedDate(Monday);
    day.setData(spanOf({ timed(QStringLiteral("short"), Monday, QTime(9, 0), 5) }), {});
    QFont bold = day.font();
    bold.setBold(true);
    QCOMPARE(day.blocks().at(0).rect.height(), QFontMetrics(bold).height() + 8);
    day.setCompact(true);
    QCOMPARE(day.blocks().at(0).rect.height(), QFontMetrics(bold).height() + 2);
    QSignalSpy changed(&day, &EventCanvas::fontMetricsChanged);
    bold.setPointSize(30);
    day.setFont(bold);
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(day.blocks().at(0).rect.height(), QFontMetrics(bold).height() + 2);
    QVERIFY(day.neededGutterPx() > 64);
}

void TestTimelineWidget::nowLineIsInTodaysColumn()
{
    m_week->setData(Monday, 7, spanOf({}), {});
    m_week->setNow(QDateTime(Monday.addDays(2), QTime(10, 0)));
    const QImage image = m_week->grab().toImage();
    const int y = m_week->yForTime(QTime(10, 0));
    const int width = m_week->columnWidthPx();
    const auto middleOfColumn = [&](int column) {
        return image.pixelColor(m_week->metrics().columns.left(column) + width / 2, y);
    };
    QCOMPARE(middleOfColumn(2), QColor(220, 53, 69));
    QVERIFY(middleOfColumn(1) != QColor(220, 53, 69));
    QVERIFY(middleOfColumn(3) != QColor(220, 53, 69));
    m_week->setNow(QDateTime(Monday.addDays(7), QTime(10, 0)));
    QVERIFY(m_week->nowLineRect().isEmpty());
}

void TestTimelineWidget::stripHandlesChipsAndChevron()
{
    AllDayStrip strip(m_state->state());
    QList<Event> events;
    for (int i = 0; i < 10; ++i) {
        Event event = timed(QString::number(i), Monday, QTime(0, 0), 1440);
        event.startTime = QDateTime(Monday, QTime(0, 0), Qt::UTC);
        event.endTime = event.startTime.addDays(1);
        event.isAllDay = true;
        events.append(event);
    }
    strip.setData(64, Monday.addDays(-1), 7, events, {}, {});
    strip.setContentWidth(764);
    const int collapsed = strip.sizeHint().height();
    strip.resize(800, collapsed);
    QCOMPARE(strip.blocks().size(), 2);
    QCOMPARE(strip.overflowChipAt(strip.overflowChipRect(1).center()), 1);
    QVERIFY(strip.overflowChipRect(0).isEmpty());

    QSignalSpy selected(&strip, &EventCanvas::eventSelected);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.overflowChipRect(1).center());
    QVERIFY(strip.isExpanded());
    QCOMPARE(strip.blocks().size(), 10);
    QVERIFY(strip.overflowChipRect(1).isEmpty());
    strip.resize(800, strip.sizeHint().height());
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.chevronRect().center());
    QVERIFY(!strip.isExpanded());
    QCOMPARE(strip.sizeHint().height(), collapsed);
    QCOMPARE(selected.size(), 0);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.blocks().at(1).rect.center());
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.at(0).at(0).toString(), strip.blocks().at(1).eventId);
}

void TestTimelineWidget::stripKeyboardOpensWhatIsHidden()
{
    AllDayStrip strip(m_state->state());
    QList<Event> events;
    for (int i = 0; i < 10; ++i) {
        Event event = timed(QString::number(i), Monday, QTime(0, 0), 0);
        event.startTime = QDateTime(Monday, QTime(0, 0), Qt::UTC);
        event.isAllDay = true;
        events.append(event);
    }
    strip.setData(64, Monday, 7, events, {}, {});
    strip.setContentWidth(764);
    strip.setHeightLimit(150);
    strip.resize(764, strip.sizeHint().height());
    QTest::keyClick(&strip, Qt::Key_Down);
    QVERIFY(!strip.isExpanded());
    QTest::keyClick(&strip, Qt::Key_Up); // round to the last one
    QVERIFY(strip.isExpanded());
    QCOMPARE(strip.selection().id, QStringLiteral("9"));
    QVERIFY(strip.sizeHint().height() <= 150);
    QVERIFY(strip.blockIndexOf(strip.selection()) >= 0);
    QCOMPARE(strip.blockIndexOf({ QStringLiteral("0"), {} }), -1); // scrolled away
    QTest::keyClick(&strip, Qt::Key_Escape);
    QVERIFY(strip.selection().isEmpty());
    QTest::keyClick(&strip, Qt::Key_Escape);
    QVERIFY(!strip.isExpanded());
}

QTEST_MAIN(TestTimelineWidget)
#include "tst_TimelineWidget.moc"
