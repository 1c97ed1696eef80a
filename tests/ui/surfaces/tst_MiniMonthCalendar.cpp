#include "ui/surfaces/MiniMonthCalendar.h"

#include "models/ViewDef.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "ui/theme/Theme.h"

#include <QSignalSpy>
#include <QToolButton>
#include <QWheelEvent>
#include <QtTest>

#include <memory>
#include <optional>

namespace {

QDate march(int day)
{
    return QDate(2026, 3, day); // the first is a Sunday
}

QDateTime local(QDate date, int hour)
{
    return QDateTime(date, QTime(hour, 0));
}

}

class tst_MiniMonthCalendar : public QObject {
    Q_OBJECT

private:
    AppState *state() { return m_scratch->state(); }

    void show()
    {
        m_month->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_month.get()));
    }

    QList<int> busyDaysOfMarch() const
    {
        QList<int> days;
        for (int day = 1; day <= 31; ++day) {
            if (m_month->isBusy(march(day)))
                days.append(day);
        }
        return days;
    }

    void clickOn(QDate date) { QTest::mouseClick(m_month.get(), Qt::LeftButton, {}, m_month->dateRect(date).center()); }

    std::optional<ScratchState> m_scratch;
    std::unique_ptr<MiniMonthCalendar> m_month;

private slots:
    void init()
    {
        m_scratch.emplace();
        state()->preferences()->set(u"ui/weekStartDay"_qs, u"1"_qs);
        state()->setCurrentDate(march(11));
        m_month = std::make_unique<MiniMonthCalendar>(state());
        QFont font = m_month->font();
        font.setPointSize(9);
        m_month->setFont(font);
        m_month->resize(m_month->sizeHint());
    }

    void cleanup()
    {
        m_month.reset();
        m_scratch.reset();
    }

    void gridStart_data()
    {
        QTest::addColumn<QDate>("month");
        QTest::addColumn<Qt::DayOfWeek>("firstDay");
        QTest::addColumn<QDate>("start");
        QTest::newRow("Sunday the first, weeks from Sunday") << march(1) << Qt::Sunday << march(1);
        QTest::newRow("Sunday the first, weeks from Monday") << march(1) << Qt::Monday << QDate(2026, 2, 23);
        QTest::newRow("any day of the month") << march(31) << Qt::Monday << QDate(2026, 2, 23);
        QTest::newRow("Monday the first, weeks from Monday") << QDate(2027, 2, 1) << Qt::Monday << QDate(2027, 2, 1);
        QTest::newRow("Saturday the first, weeks from Sunday") << QDate(2026, 8, 1) << Qt::Sunday << QDate(2026, 7, 26);
        QTest::newRow("Saturday the first, weeks from Saturday")
            << QDate(2026, 8, 1) << Qt::Saturday << QDate(2026, 8, 1);
        QTest::newRow("across a year") << QDate(2026, 1, 1) << Qt::Monday << QDate(2025, 12, 29);
        QTest::newRow("no date") << QDate() << Qt::Monday << QDate();
    }

    void gridStart()
    {
        QFETCH(QDate, month);
        QFETCH(Qt::DayOfWeek, firstDay);
        QTEST(MiniMonthGeometry::gridStart(month, firstDay), "start");
    }

    void cells_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("row");
        QTest::addColumn<QRect>("rect");
        QTest::newRow("first takes the spare pixel") << 240 << 0 << 0 << QRect(4, 66, 34, 34);
        QTest::newRow("second") << 240 << 1 << 0 << QRect(38, 66, 33, 34);
        QTest::newRow("last") << 240 << 6 << 5 << QRect(203, 236, 33, 34);
        QTest::newRow("two spare pixels") << 241 << 2 << 1 << QRect(72, 100, 33, 34);
        QTest::newRow("no spare pixel") << 239 << 6 << 0 << QRect(202, 66, 33, 34);
    }

    void cells()
    {
        QFETCH(int, width);
        QFETCH(int, column);
        QFETCH(int, row);
        const MiniMonthGeometry geometry{ .widthPx = width };
        QTEST(geometry.cellRect(column, row), "rect");
        QCOMPARE(geometry.headerRect(), QRect(4, 4, width - 8, 32));
        QCOMPARE(geometry.weekdayRect(0).top(), 40);
        QCOMPARE(geometry.heightPx(), 274);
    }

    void everyPixelHasItsCell_data()
    {
        QTest::addColumn<int>("width");
        for (int width = 0; width < 260; width += 13)
            QTest::addRow("%d pixels", width) << width;
    }

    void everyPixelHasItsCell()
    {
        QFETCH(int, width);
        const MiniMonthGeometry geometry{ .widthPx = width };
        for (int y = 0; y < geometry.heightPx(); ++y) {
            for (int x = 0; x < width; ++x) {
                const bool isInside = x >= 4 && x < width - 4 && y >= 66 && y < 66 + 6 * 34;
                const int cell = geometry.cellAt({ x, y });
                QCOMPARE(cell >= 0, isInside);
                if (isInside)
                    QVERIFY(geometry.cellRect(cell % 7, cell / 7).contains(x, y));
            }
        }
    }

    void wheelSteps_data()
    {
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<int>("months");
        QTest::newRow("a notch up") << QPoint(0, 120) << -1;
        QTest::newRow("a notch down") << QPoint(0, -120) << 1;
        QTest::newRow("just enough up") << QPoint(0, 60) << -1;
        QTest::newRow("not quite up") << QPoint(0, 59) << 0;
        QTest::newRow("not quite down") << QPoint(0, -59) << 0;
        QTest::newRow("right") << QPoint(60, 0) << 1;
        QTest::newRow("left") << QPoint(-60, 0) << -1;
        QTest::newRow("up counts before left and right") << QPoint(120, 60) << -1;
        QTest::newRow("nothing") << QPoint() << 0;
    }

    void wheelSteps()
    {
        QFETCH(QPoint, delta);
        QTEST(monthStepForWheel(delta), "months");
    }

    void sizeFollowsTheFont()
    {
        QCOMPARE(m_month->sizeHint(), QSize(240, 274));
        QFont font = m_month->font();
        font.setPointSize(30);
        m_month->setFont(font);
        const QFontMetrics metrics(m_month->font());
        QVERIFY(m_month->sizeHint().height() > 6 * metrics.height());
        QVERIFY(m_month->minimumSizeHint().width() > 7 * metrics.horizontalAdvance(u"28"_qs));
        m_month->resize(m_month->sizeHint());
        QVERIFY(m_month->dateRect(march(28)).height() > metrics.height());
    }

    void busyDays()
    {
        m_scratch->addEvent(u"five days"_qs, local(march(2), 10), local(march(6), 12));
        m_scratch->addEvent(u"until midnight"_qs, local(march(9), 20), local(march(10), 0));
        m_scratch->addAllDayEvent(u"two whole days"_qs, march(17), 2);
        m_scratch->addAllDayEvent(u"one whole day"_qs, march(23));
        Event weekly = m_scratch->addEvent(u"weekly"_qs, local(march(13), 23), local(march(14), 1));
        weekly.recurrenceRule = u"FREQ=WEEKLY;COUNT=2"_qs;
        QVERIFY(state()->events()->update(weekly));
        show();
        const QList<int> expected{ 2, 3, 4, 5, 6, 9, 13, 14, 17, 18, 20, 21, 23 };
        QTRY_COMPARE(busyDaysOfMarch(), expected);
    }

    void anEventLongerThanTheGrid()
    {
        m_scratch->addAllDayEvent(u"a century"_qs, QDate(1970, 1, 1), 36525);
        show();
        QTRY_COMPARE(busyDaysOfMarch().size(), 31);
        QVERIFY(m_month->isBusy(QDate(2026, 2, 23)));
        QVERIFY(!m_month->isBusy(QDate(2026, 2, 22)));
        QVERIFY(m_month->isBusy(QDate(2026, 4, 5)));
        QVERIFY(!m_month->isBusy(QDate(2026, 4, 6)));
    }

    void changesShowWhileVisible()
    {
        show();
        QVERIFY(!m_month->isBusy(march(20)));
        m_scratch->addAllDayEvent(u"new"_qs, march(20));
        QTRY_VERIFY(m_month->isBusy(march(20)));
        state()->calendars()->setVisible(ScratchState::calendarId(), false);
        const QString other = m_scratch->addCalendar(u"Other"_qs);
        state()->calendars()->setVisible(other, true);
        QTRY_VERIFY(!m_month->isBusy(march(20)));
    }

    void editsOfTheActiveGroupShow()
    {
        QSignalSpy stored(state()->events(), &EventRepository::eventsChanged);
        m_scratch->addAllDayEvent(u"fair"_qs, march(20));
        const QString other = m_scratch->addCalendar(u"Other"_qs);
        QVERIFY(stored.wait()); // only the group may bring the reload below
        ViewDef group;
        group.id = group.name = u"office"_qs;
        group.calendarIds = u"[\"%1\"]"_qs.arg(ScratchState::calendarId());
        QVERIFY(state()->views()->insert(group));
        state()->setActiveViewId(group.id);
        show();
        QTRY_VERIFY(m_month->isBusy(march(20)));
        group.calendarIds = u"[\"%1\"]"_qs.arg(other);
        QVERIFY(state()->views()->update(group));
        QTRY_VERIFY(!m_month->isBusy(march(20)));
    }

    void hiddenMonthsWait()
    {
        show();
        m_month->hide();
        QSignalSpy changes(state()->events(), &EventRepository::eventsChanged);
        m_scratch->addAllDayEvent(u"meanwhile"_qs, march(20));
        QVERIFY(changes.wait());
        QVERIFY(!m_month->isBusy(march(20)));
        show();
        QTRY_VERIFY(m_month->isBusy(march(20)));
    }

    void loadsInATurnOfItsOwn()
    {
        const QDate inApril(2026, 4, 20);
        m_scratch->addAllDayEvent(u"in March"_qs, march(20));
        m_scratch->addAllDayEvent(u"in April"_qs, inApril);
        show();
        QTRY_VERIFY(m_month->isBusy(march(20)));
        m_month->stepMonth(1);
        std::optional<bool> busyInTheSameTurn;
        QTimer other; // as a timeline that loads because of the same change
        other.setSingleShot(true);
        connect(&other, &QTimer::timeout, this, [&] { busyInTheSameTurn = m_month->isBusy(inApril); });
        other.start(0);
        QTRY_VERIFY(m_month->isBusy(inApril));
        QCOMPARE(busyInTheSameTurn, std::optional(false));
    }

    void dots_data()
    {
        QTest::addColumn<QRect>("cell");
        QTest::addColumn<int>("numberWidth");
        QTest::addColumn<qreal>("digitsBelowCentre");
        QTest::addColumn<qreal>("radius");
        QTest::addColumn<qreal>("filledY");
        QTest::addColumn<qreal>("emptyY");
        QTest::newRow("ordinary") << QRect(0, 0, 33, 34) << 16 << 4.5 << 12.5 << 25.5 << 29.0;
        QTest::newRow("narrow with large digits") << QRect(0, 0, 30, 38) << 22 << 7.0 << 14.0 << 29.0 << 33.0;
        QTest::newRow("no room in the circle") << QRect(0, 0, 20, 34) << 16 << 4.5 << 9.0 << 29.0 << 29.0;
    }

    void dots()
    {
        QFETCH(QRect, cell);
        QFETCH(int, numberWidth);
        QFETCH(qreal, digitsBelowCentre);
        const qreal radius = MiniMonthGeometry::dayRadius(cell, numberWidth);
        QTEST(radius, "radius");
        QTEST(MiniMonthGeometry::dotCentreY(cell, digitsBelowCentre, radius, true), "filledY");
        QTEST(MiniMonthGeometry::dotCentreY(cell, digitsBelowCentre, radius, false), "emptyY");
    }

    void titleKeepsItsYear()
    {
        state()->setCurrentDate(QDate(2026, 9, 11));
        QCOMPARE(m_month->title(), u"September 2026"_qs);
        QFont font = m_month->font();
        font.setPointSize(20);
        m_month->setFont(font);
        m_month->resize(m_month->minimumSizeHint());
        QCOMPARE(m_month->title(), QLocale().toString(QDate(2026, 9, 1), u"MMM yyyy"_qs));
        font.setPointSize(21); // as titles are
        font.setBold(true);
        const int room = m_month->findChildren<QToolButton *>().at(0)->x();
        QVERIFY(QFontMetrics(font).horizontalAdvance(m_month->title()) < room);
    }

    void clickPicksTheDay()
    {
        show();
        clickOn(march(25));
        QCOMPARE(state()->currentDate(), march(25));
        clickOn(QDate(2026, 4, 2)); // in the last row
        QCOMPARE(state()->currentDate(), QDate(2026, 4, 2));
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 4, 1));
        QTest::mouseClick(m_month.get(), Qt::RightButton, {}, m_month->dateRect(QDate(2026, 4, 20)).center());
        QTest::mouseClick(m_month.get(), Qt::LeftButton, {}, QPoint(20, 50)); // the names of the weekdays
        QCOMPARE(state()->currentDate(), QDate(2026, 4, 2));
    }

    void clickOnTheCurrentDayShowsItsMonth()
    {
        show();
        state()->setCurrentDate(march(31));
        m_month->stepMonth(1); // whose grid begins on 30 March
        clickOn(march(31));
        QCOMPARE(m_month->displayedMonth(), march(1));
    }

    void steppingKeepsTheCurrentDate()
    {
        m_scratch->addAllDayEvent(u"in May"_qs, QDate(2026, 5, 20));
        show();
        const auto buttons = m_month->findChildren<QToolButton *>();
        QCOMPARE(buttons.size(), 2);
        QTest::mouseClick(buttons.at(1), Qt::LeftButton);
        QTest::mouseClick(buttons.at(1), Qt::LeftButton);
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 5, 1));
        QTRY_VERIFY(m_month->isBusy(QDate(2026, 5, 20)));
        QTest::mouseClick(buttons.at(0), Qt::LeftButton);
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 4, 1));
        QCOMPARE(state()->currentDate(), march(11));
        state()->setCurrentDate(QDate(2026, 12, 31));
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 12, 1));
    }

    void wheelPagesOnceInABurst()
    {
        show();
        for (int i = 0; i < 3; ++i) {
            QWheelEvent wheel(QPointF(100, 100), m_month->mapToGlobal(QPointF(100, 100)), {}, QPoint(0, -120), {}, {},
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(m_month.get(), &wheel);
            QVERIFY(wheel.isAccepted());
        }
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 4, 1));
        QCOMPARE(state()->currentDate(), march(11));
    }

    void keys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("to");
        QTest::newRow("left, into February") << int(Qt::Key_Left) << march(1) << QDate(2026, 2, 28);
        QTest::newRow("right") << int(Qt::Key_Right) << march(11) << march(12);
        QTest::newRow("up") << int(Qt::Key_Up) << march(11) << march(4);
        QTest::newRow("down, into April") << int(Qt::Key_Down) << march(30) << QDate(2026, 4, 6);
        QTest::newRow("page up to a shorter month") << int(Qt::Key_PageUp) << march(31) << QDate(2026, 2, 28);
        QTest::newRow("page down") << int(Qt::Key_PageDown) << march(15) << QDate(2026, 4, 15);
        QTest::newRow("home") << int(Qt::Key_Home) << march(15) << QDate::currentDate();
        QTest::newRow("a letter is the window's") << int(Qt::Key_T) << march(15) << march(15);
    }

    void keys()
    {
        QFETCH(int, key);
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        show();
        state()->setCurrentDate(from);
        m_month->stepMonth(5); // the month of the new date must come back
        QTest::keyClick(m_month.get(), static_cast<Qt::Key>(key));
        QCOMPARE(state()->currentDate(), to);
        if (from != to)
            QCOMPARE(m_month->displayedMonth(), QDate(to.year(), to.month(), 1));
    }

    void firstDayOfWeekMovesTheGrid()
    {
        QCOMPARE(m_month->gridStart(), QDate(2026, 2, 23));
        state()->preferences()->set(u"ui/weekStartDay"_qs, u"7"_qs);
        QCOMPARE(m_month->gridStart(), march(1));
    }

    void weekNumbers_data()
    {
        QTest::addColumn<QDate>("rowStart");
        QTest::addColumn<int>("week");
        // ISO 8601: week 1 has the first Thursday of the year.
        QTest::newRow("2026 begins on a Thursday") << QDate(2025, 12, 29) << 1;
        QTest::newRow("the same row from Sunday") << QDate(2025, 12, 28) << 1;
        QTest::newRow("the same row from Saturday") << QDate(2025, 12, 27) << 1;
        QTest::newRow("a year of 53 weeks") << QDate(2026, 12, 28) << 53;
        QTest::newRow("2027 begins on a Friday") << QDate(2027, 1, 4) << 1;
    }

    void weekNumbers()
    {
        QFETCH(QDate, rowStart);
        QTEST(MiniMonthGeometry::weekNumber(rowStart), "week");
    }

    void weekNumbersMakeRoomAtOnce()
    {
        show();
        QVERIFY(m_month->dateAt({ 8, 70 }).isValid());
        const int narrow = m_month->minimumSizeHint().width();
        state()->preferences()->setBool(u"ui/showWeekNumbers"_qs, true);
        QVERIFY(!m_month->dateAt({ 8, 70 }).isValid());
        QCOMPARE(m_month->dateAt(m_month->dateRect(march(31)).center()), march(31));
        QVERIFY(m_month->minimumSizeHint().width() >= narrow);
        state()->preferences()->setBool(u"ui/showWeekNumbers"_qs, false);
        QVERIFY(m_month->dateAt({ 8, 70 }).isValid());
    }

    void selectedDayStandsOut()
    {
        show();
        const QImage image = m_month->grab().toImage();
        const QRect cell = m_month->dateRect(march(11));
        const int top = cell.center().y() - static_cast<int>(MiniMonthGeometry::dayRadius(cell)) + 2;
        QCOMPARE(image.pixelColor(cell.center().x(), top), Theme::accent());
        const QRect other = m_month->dateRect(march(12));
        QVERIFY(image.pixelColor(other.center().x(), top) != Theme::accent());
    }
};

QTEST_MAIN(tst_MiniMonthCalendar)
#include "tst_MiniMonthCalendar.moc"
