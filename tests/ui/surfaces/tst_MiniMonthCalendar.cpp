#include "ui/surfaces/MiniMonthCalendar.h"

#include "support/ScratchState.h"

#include <QtTest>
#include <QtWidgets>

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

    QFontMetrics setFontSize(int points)
    {
        QFont font = m_month->font();
        font.setPointSize(points);
        m_month->setFont(font);
        return QFontMetrics(font);
    }

    QList<QToolButton *> buttons() { return m_month->findChildren<QToolButton *>(); }
    void clickOn(QDate date) { QTest::mouseClick(m_month.get(), Qt::LeftButton, {}, m_month->dateRect(date).center()); }

    std::optional<ScratchState> m_scratch;
    std::unique_ptr<MiniMonthCalendar> m_month;

private slots:
    void init()
    {
        m_month.reset();
        m_scratch.emplace();
        state()->preferences()->set(u"ui/weekStartDay"_qs, u"1"_qs);
        state()->setCurrentDate(march(11));
        m_month = std::make_unique<MiniMonthCalendar>(state());
        setFontSize(9);
        m_month->resize(m_month->sizeHint());
    }

    void gridStart()
    {
        QCOMPARE(MiniMonthGeometry::gridStart(march(31), Qt::Sunday), march(1));
        QCOMPARE(MiniMonthGeometry::gridStart(march(1), Qt::Monday), QDate(2026, 2, 23));
        QCOMPARE(MiniMonthGeometry::gridStart(QDate(2026, 8, 1), Qt::Sunday), QDate(2026, 7, 26)); // a Saturday
        QCOMPARE(MiniMonthGeometry::gridStart(QDate(2026, 1, 1), Qt::Monday), QDate(2025, 12, 29));
    }

    void cells()
    {
        const MiniMonthGeometry geometry{ .widthPx = 241 }; // two pixels are left over
        QCOMPARE(geometry.headerRect(), QRect(4, 4, 233, 32));
        QCOMPARE(geometry.weekdayRect(0).top(), 40);
        QCOMPARE(geometry.heightPx(), 274);
        QCOMPARE(geometry.cellRect(0, 0), QRect(4, 66, 34, 34));
        QCOMPARE(geometry.cellRect(2, 1), QRect(72, 100, 33, 34));
        QCOMPARE(geometry.cellRect(6, 5), QRect(204, 236, 33, 34));
        for (int x = 0; x < 241; ++x) { // no pixel is without a cell
            const int cell = geometry.cellAt({ x, 200 });
            QVERIFY(x >= 4 && x < 237 ? geometry.cellRect(cell % 7, cell / 7).contains(x, 200) : cell < 0);
        }
    }

    void wheelSteps()
    {
        QList<int> steps;
        for (const QPoint delta : { QPoint(0, 60), QPoint(0, -60), QPoint(59, -59), QPoint(60, 0), QPoint(-60, 0),
                                    QPoint(120, 60) }) // up counts before left and right
            steps.append(monthStepForWheel(delta));
        QCOMPARE(steps, QList<int>({ -1, 1, 0, 1, -1, -1 }));
    }

    void sizeFollowsTheFont()
    {
        QCOMPARE(m_month->sizeHint(), QSize(240, 274));
        const QFontMetrics metrics = setFontSize(30);
        QVERIFY(m_month->minimumSizeHint().width() > 7 * metrics.horizontalAdvance(u"28"_qs));
        m_month->resize(m_month->sizeHint());
        QVERIFY(m_month->dateRect(march(28)).height() > metrics.height());
    }

    void busyDays()
    {
        m_scratch->addEvent(u"five days"_qs, local(march(2), 10), local(march(6), 12));
        m_scratch->addEvent(u"until midnight"_qs, local(march(9), 20), local(march(10), 0));
        m_scratch->addAllDayEvent(u"two whole days"_qs, march(17), 2);
        Event weekly = m_scratch->addEvent(u"weekly"_qs, local(march(13), 23), local(march(14), 1));
        weekly.recurrenceRule = u"FREQ=WEEKLY;COUNT=2"_qs;
        QVERIFY(state()->events()->update(weekly));
        show();
        const QList<int> expected{ 2, 3, 4, 5, 6, 9, 13, 14, 17, 18, 20, 21 };
        QTRY_COMPARE(busyDaysOfMarch(), expected);
        m_scratch->addAllDayEvent(u"a century"_qs, QDate(1970, 1, 1), 36525);
        QTRY_COMPARE(busyDaysOfMarch().size(), 31);
        QVERIFY(m_month->isBusy(QDate(2026, 2, 23)));
        QVERIFY(!m_month->isBusy(QDate(2026, 2, 22))); // not on show
        QVERIFY(m_month->isBusy(QDate(2026, 4, 5)));
        QVERIFY(!m_month->isBusy(QDate(2026, 4, 6)));
    }

    void changesShowWhileVisible()
    {
        QSignalSpy stored(state()->events(), &EventRepository::eventsChanged);
        m_scratch->addAllDayEvent(u"fair"_qs, march(20));
        const QString other = m_scratch->addCalendar(u"Other"_qs);
        QVERIFY(stored.wait()); // what follows alone may bring the loads below
        ViewDef group = m_scratch->addGroup(u"office"_qs, { ScratchState::calendarId() });
        state()->setActiveViewId(group.id);
        show();
        QTRY_VERIFY(m_month->isBusy(march(20)));
        group.calendarIds = u"[\"%1\"]"_qs.arg(other);
        QVERIFY(state()->views()->update(group));
        QTRY_VERIFY(!m_month->isBusy(march(20)));
        QVERIFY(state()->views()->softDelete(group.id));
        QTRY_VERIFY(m_month->isBusy(march(20)));
        QVERIFY(state()->calendars()->setVisible(ScratchState::calendarId(), false));
        QTRY_VERIFY(!m_month->isBusy(march(20)));
    }

    void hiddenMonthsWait()
    {
        show();
        m_month->hide();
        QSignalSpy changes(state()->events(), &EventRepository::eventsChanged);
        m_scratch->addAllDayEvent(u"meanwhile"_qs, march(20));
        QVERIFY(changes.wait());
        for (int turn = 0; turn < 3; ++turn) // in which a month on show would load
            QCoreApplication::processEvents();
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
        connect(&other, &QTimer::timeout, this, [&] {
            busyInTheSameTurn = m_month->isBusy(inApril);
            other.stop();
        });
        other.start(0);
        QTRY_VERIFY(m_month->isBusy(inApril));
        QCOMPARE(busyInTheSameTurn, std::optional(false));
    }

    void dots()
    {
        const auto check = [](QSize cell, int numberWidth, qreal digitsBelow, qreal radius, qreal filledY) {
            const QRect rect({}, cell);
            QCOMPARE(MiniMonthGeometry::dayRadius(rect, numberWidth), radius);
            QCOMPARE(MiniMonthGeometry::dotCentreY(rect, digitsBelow, radius, true), filledY);
            QCOMPARE(MiniMonthGeometry::dotCentreY(rect, digitsBelow, radius, false), cell.height() - 5.0);
        };
        check({ 33, 34 }, 16, 4.5, 12.5, 25.5);
        check({ 30, 38 }, 22, 7.0, 14.0, 29.0); // narrow with large digits
        check({ 20, 34 }, 16, 4.5, 9.0, 29.0); // no room in the circle
    }

    void titleKeepsItsYear()
    {
        state()->setCurrentDate(QDate(2026, 9, 11));
        QCOMPARE(m_month->title(), u"September 2026"_qs);
        setFontSize(20);
        m_month->resize(m_month->minimumSizeHint());
        QCOMPARE(m_month->title(), QLocale().toString(QDate(2026, 9, 1), u"MMM yyyy"_qs));
        QFont bold = m_month->font(); // as titles are, and a point larger
        bold.setPointSize(21);
        bold.setBold(true);
        QVERIFY(QFontMetrics(bold).horizontalAdvance(m_month->title()) < buttons().at(0)->x());
    }

    void clickPicksTheDay()
    {
        clickOn(march(25));
        QCOMPARE(state()->currentDate(), march(25));
        clickOn(QDate(2026, 4, 2)); // in the last row
        QCOMPARE(state()->currentDate(), QDate(2026, 4, 2));
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 4, 1));
        QTest::mouseClick(m_month.get(), Qt::RightButton, {}, m_month->dateRect(QDate(2026, 4, 20)).center());
        QTest::mouseClick(m_month.get(), Qt::LeftButton, {}, QPoint(20, 50)); // the names of the weekdays
        QCOMPARE(state()->currentDate(), QDate(2026, 4, 2));
        state()->setCurrentDate(march(31));
        m_month->stepMonth(1); // whose grid begins on 30 March
        clickOn(march(31));
        QCOMPARE(m_month->displayedMonth(), march(1));
    }

    void steppingKeepsTheCurrentDate()
    {
        show();
        QTest::mouseClick(buttons().at(1), Qt::LeftButton);
        QTest::mouseClick(buttons().at(1), Qt::LeftButton);
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 5, 1));
        QTest::mouseClick(buttons().at(0), Qt::LeftButton);
        QCOMPARE(m_month->displayedMonth(), QDate(2026, 4, 1));
        QCOMPARE(state()->currentDate(), march(11));
        state()->setCurrentDate(QDate(2026, 3, 31));
        QCOMPARE(m_month->displayedMonth(), march(1));
        QCOMPARE(m_month->gridStart(), QDate(2026, 2, 23));
        state()->preferences()->set(u"ui/weekStartDay"_qs, u"7"_qs);
        QCOMPARE(m_month->gridStart(), march(1));
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
    }

    void keys()
    {
        const auto press = [this](QDate from, Qt::Key key) {
            state()->setCurrentDate(from);
            m_month->stepMonth(5); // the month of the new date must come back
            QTest::keyClick(m_month.get(), key);
            const QDate to = state()->currentDate();
            return m_month->displayedMonth() == QDate(to.year(), to.month(), 1) ? to : QDate();
        };
        QCOMPARE(press(march(1), Qt::Key_Left), QDate(2026, 2, 28));
        QCOMPARE(press(march(31), Qt::Key_Right), QDate(2026, 4, 1));
        QCOMPARE(press(march(11), Qt::Key_Up), march(4));
        QCOMPARE(press(march(30), Qt::Key_Down), QDate(2026, 4, 6));
        QCOMPARE(press(march(31), Qt::Key_PageUp), QDate(2026, 2, 28)); // a shorter month
        QCOMPARE(press(march(15), Qt::Key_PageDown), QDate(2026, 4, 15));
        QCOMPARE(press(march(15), Qt::Key_Home), QDate::currentDate());
        QCOMPARE(press(march(15), Qt::Key_T), QDate()); // a letter is the window's
        QCOMPARE(state()->currentDate(), march(15));
    }

    void weekNumbers()
    {
        // ISO 8601: week 1 has the first Thursday of the year.
        QCOMPARE(MiniMonthGeometry::weekNumber(QDate(2025, 12, 29)), 1); // 2026 begins on a Thursday
        QCOMPARE(MiniMonthGeometry::weekNumber(QDate(2025, 12, 28)), 1); // the same row from Sunday
        QCOMPARE(MiniMonthGeometry::weekNumber(QDate(2025, 12, 27)), 1); // and from Saturday
        QCOMPARE(MiniMonthGeometry::weekNumber(QDate(2026, 12, 28)), 53);
        QCOMPARE(MiniMonthGeometry::weekNumber(QDate(2027, 1, 4)), 1);
    }

    void weekNumbersMakeRoomAtOnce()
    {
        QVERIFY(m_month->dateAt({ 8, 70 }).isValid());
        const int narrow = m_month->minimumSizeHint().width();
        state()->preferences()->setBool(u"ui/showWeekNumbers"_qs, true);
        QVERIFY(!m_month->dateAt({ 8, 70 }).isValid());
        QCOMPARE(m_month->dateAt(m_month->dateRect(march(31)).center()), march(31));
        QVERIFY(m_month->minimumSizeHint().width() >= narrow);
        state()->preferences()->setBool(u"ui/showWeekNumbers"_qs, false);
        QVERIFY(m_month->dateAt({ 8, 70 }).isValid());
    }
};

QTEST_MAIN(tst_MiniMonthCalendar)
#include "tst_MiniMonthCalendar.moc"
