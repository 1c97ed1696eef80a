#include "app/state/DefaultCalendar.h"
#include "calendar/services/EventEdits.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/Prompt.h"
#include "ui/forms/AttendeesEditor.h"
#include "ui/forms/CalendarCombo.h"
#include "ui/forms/DateTimePicker.h"
#include "ui/forms/EventFormDialog.h"
#include "ui/forms/RecurrenceButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

namespace {

const QDate May1(2026, 5, 1);

Event stored(ScratchState &state, const QString &id)
{
    return state->events()->getById(id).value_or(Event());
}

template <typename Widget> Widget *named(const QDialog &dialog, const QString &text)
{
    const QList<Widget *> widgets = dialog.findChildren<Widget *>();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&text](const Widget *widget) {
        if constexpr (std::is_base_of_v<QLineEdit, Widget>)
            return widget->placeholderText().startsWith(text);
        else
            return widget->text().remove(u'&').startsWith(text);
    });
    return found == widgets.end() ? nullptr : *found;
}

}

class TestEventFormDialog : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ScratchState> m_state;

    [[nodiscard]] static QLineEdit *title(const EventFormDialog &form)
    {
        return named<QLineEdit>(form, QStringLiteral("Lunch"));
    }
    [[nodiscard]] static DateTimePicker *picker(const EventFormDialog &form, int index)
    {
        return form.findChildren<DateTimePicker *>().at(index);
    }

private slots:
    void init() { m_state = std::make_unique<ScratchState>(); }

    void startsAtTheNextHalfHour_data()
    {
        QTest::addColumn<QTime>("now");
        QTest::addColumn<QTime>("start");
        QTest::newRow("10:31") << QTime(10, 31) << QTime(11, 0);
        QTest::newRow("10:30") << QTime(10, 30) << QTime(10, 30);
        QTest::newRow("10:00:45") << QTime(10, 0, 45) << QTime(10, 0);
        QTest::newRow("10:01") << QTime(10, 1) << QTime(10, 30);
        QTest::newRow("23:45") << QTime(23, 45) << QTime(0, 0);
    }
    void startsAtTheNextHalfHour()
    {
        QFETCH(QTime, now);
        QTEST(EventFormDialog::defaultStart(QDateTime(May1, now)).time(), "start");
    }

    void refusesWhatCannotBeStored()
    {
        Prompt::ScopedAnswers answers;
        EventFormDialog form(m_state->state(), nullptr);
        title(form)->setText(QStringLiteral("   "));
        form.accept();
        QCOMPARE(answers.asked.size(), 1);
        QCOMPARE(answers.asked.at(0),
                 (Prompt::ScopedAnswers::Asked{ u"warning"_qs, u"Title required"_qs,
                                                u"Please enter a title for the event."_qs }));
        QCOMPARE(form.result(), 0);
        m_state->makeReadOnly(ScratchState::calendarId());
        EventFormDialog homeless(m_state->state(), nullptr);
        title(homeless)->setText(QStringLiteral("x"));
        homeless.accept();
        QCOMPARE(answers.asked.last().text, u"Create a calendar first."_qs);
    }

    void aSeriesHasAFirstEvent()
    {
        Prompt::ScopedAnswers answers;
        for (const bool isNew : { true, false }) {
            const Event event =
                m_state->addEvent(u"Call"_qs, QDateTime(May1, QTime(9, 0)), QDateTime(May1, QTime(9, 5)));
            EventFormDialog form(m_state->state(), event, nullptr);
            EventFormDialog fresh(m_state->state(), nullptr);
            fresh.setInitialStart(event.startTime, 5);
            title(fresh)->setText(event.title);
            EventFormDialog &tested = isNew ? fresh : form;
            tested.findChild<RecurrenceButton *>()->setRule(QStringLiteral("FREQ=DAILY;UNTIL=20260430"));
            tested.accept();
            QCOMPARE(answers.asked.takeLast().title, u"Not saved"_qs);
            tested.findChild<RecurrenceButton *>()->setRule(QStringLiteral("FREQ=DAILY;UNTIL=20260501"));
            tested.accept();
            QVERIFY(!tested.eventId().isEmpty());
        }
    }

    void aNewEventIsStoredAsAnInstant()
    {
        const QString other = m_state->addCalendar(QStringLiteral("Other"));
        m_state->state()->preferences()->set(DefaultCalendar::defaultKey(false), DefaultCalendar::sentinel());
        EventFormDialog form(m_state->state(), nullptr);
        form.setInitialStart(QDateTime(May1, QTime(9, 0)), 45);
        title(form)->setText(QStringLiteral(" Dentist "));
        QVERIFY(form.findChild<CalendarCombo *>()->select(other));
        form.accept();
        const Event event = stored(*m_state, form.eventId());
        QCOMPARE(event.title, u"Dentist"_qs);
        QCOMPARE(event.calendarId, other);
        QCOMPARE(event.startTime, QDateTime(May1, QTime(9, 0)));
        QCOMPARE(event.startTime.timeSpec(), Qt::UTC);
        QCOMPARE(event.startTime.secsTo(*event.endTime), 45 * 60);
        QCOMPARE(event.syncStatus, QString(SyncStatus::Pending));
        QVERIFY(event.rawIcalendar.contains(u"SUMMARY:Dentist\r\n"_qs));
        QCOMPARE(DefaultCalendar::preferredCalendarId(m_state->state()->preferences(), false), other);
    }

    void wholeDaysShowTheirLastDay()
    {
        const Event before = m_state->addAllDayEvent(QStringLiteral("Trip "), May1, 3);
        EventFormDialog form(m_state->state(), before, nullptr);
        QCOMPARE(picker(form, 0)->date(), May1);
        QCOMPARE(picker(form, 1)->date(), May1.addDays(2));
        QVERIFY(!form.edited().endTime->isNull());
        QCOMPARE(form.edited(), before); // opened and left alone
        picker(form, 0)->setDate(May1.addDays(7));
        emit picker(form, 0)->dateTimeChanged({});
        form.accept();
        const Event after = stored(*m_state, before.id);
        QCOMPARE(after.startTime, QDateTime(May1.addDays(7), QTime(0, 0), Qt::UTC));
        QCOMPARE(*after.endTime, QDateTime(May1.addDays(10), QTime(0, 0), Qt::UTC));
    }

    void aLateOccurrenceDoesNotTakeTheSeriesThere()
    {
        Event series =
            m_state->addEvent(QStringLiteral("Standup"), QDateTime(May1, QTime(9, 0)), QDateTime(May1, QTime(9, 15)));
        series.recurrenceRule = QStringLiteral("FREQ=DAILY");
        QVERIFY(m_state->state()->events()->update(series));
        const QDateTime late(May1.addDays(10), QTime(9, 0));
        EventFormDialog form(m_state->state(), EventEdits::shownAt(series, late), nullptr);
        QCOMPARE(picker(form, 0)->dateTime(), late);
        picker(form, 0)->setDateTime(late.addSecs(3600));
        emit picker(form, 0)->dateTimeChanged({});
        form.accept();
        const Event after = stored(*m_state, series.id);
        QCOMPARE(after.startTime.toLocalTime(), QDateTime(May1, QTime(10, 0)));
        QCOMPARE(after.startTime.secsTo(*after.endTime), 15 * 60);
    }

    void lastDayOfASeriesIsIncluded()
    {
        Event series =
            m_state->addEvent(QStringLiteral("Standup"), QDateTime(May1, QTime(9, 0)), QDateTime(May1, QTime(9, 15)));
        EventFormDialog form(m_state->state(), series, nullptr);
        form.findChild<RecurrenceButton *>()->setRule(QStringLiteral("FREQ=DAILY;UNTIL=20260510"));
        const QString until =
            QDateTime(QDate(2026, 5, 10), QTime(23, 59, 59)).toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_qs);
        QCOMPARE(form.edited().recurrenceRule, u"FREQ=DAILY;UNTIL="_qs + until);
        named<QCheckBox>(form, QStringLiteral("All day"))->setChecked(true);
        QCOMPARE(form.edited().recurrenceRule, u"FREQ=DAILY;UNTIL=20260510"_qs);
    }

    void returnTakesOverATypedTime()
    {
        for (const bool withCtrl : { false, true }) {
            EventFormDialog form(m_state->state(), nullptr);
            form.setInitialStart(QDateTime(May1, QTime(9, 0)), 60);
            title(form)->setText(QStringLiteral("Dentist"));
            form.show();
            QVERIFY(QTest::qWaitForWindowActive(&form));
            auto *time = picker(form, 0)->findChild<QComboBox *>();
            time->setFocus();
            time->lineEdit()->selectAll();
            QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("15:30"));
            QTest::keyClick(form.windowHandle(), Qt::Key_Return, withCtrl ? Qt::ControlModifier : Qt::NoModifier);
            QCOMPARE(form.isVisible(), !withCtrl); // Ctrl+Return stores the form
            const Event event = withCtrl ? stored(*m_state, form.eventId()) : form.edited();
            QCOMPARE(event.startTime, QDateTime(May1, QTime(15, 30)));
        }
    }

    void tabVisitsRowsAsTheyStand()
    {
        Event event =
            m_state->addEvent(QStringLiteral("Call"), QDateTime(May1, QTime(9, 0)), QDateTime(May1, QTime(10, 0)));
        Attendee ann;
        ann.email = QStringLiteral("ann@example.org");
        event.attendees = { ann, ann };
        event.reminders = { Reminder(), Reminder() };
        EventFormDialog form(m_state->state(), event, nullptr);
        form.show();
        QList<int> tops;
        for (QWidget *w = form.nextInFocusChain(); w != &form; w = w->nextInFocusChain()) {
            if (w->isVisibleTo(&form) && (w->focusPolicy() & Qt::TabFocus) && !w->focusProxy())
                tops.append(w->mapTo(&form, w->rect().center()).y() / 8); // of one row if a few pixels apart
        }
        QVERIFY(tops.size() > 20);
        QVERIFY(std::is_sorted(tops.cbegin(), tops.cend()));
    }

    void hoursKeepTheDaysThatAWholeDayEventGot()
    {
        EventFormDialog form(m_state->state(), nullptr);
        form.setInitialStart(QDateTime(May1, QTime(9, 0)), 60);
        auto *allDay = named<QCheckBox>(form, QStringLiteral("All day"));
        allDay->setChecked(true);
        picker(form, 1)->setDate(May1.addDays(2));
        emit picker(form, 1)->dateTimeChanged({});
        allDay->setChecked(false);
        picker(form, 0)->setDate(May1.addDays(1));
        emit picker(form, 0)->dateTimeChanged({});
        QCOMPARE(*form.edited().endTime, QDateTime(May1.addDays(3), QTime(10, 0)));
    }

    void anAnswerBelongsToItsAddress()
    {
        AttendeesEditor editor;
        Attendee ann;
        ann.email = QStringLiteral("ann@example.org");
        ann.status = QStringLiteral("accepted");
        editor.setAttendees({ ann });
        QLineEdit *address = editor.findChildren<QLineEdit *>().at(1);
        address->setText(QStringLiteral("Ann@example.org"));
        QCOMPARE(editor.attendees().at(0).status, ann.status);
        address->setText(QStringLiteral("bob@example.org"));
        QCOMPARE(editor.attendees().at(0).status, Attendee().status);
    }

    void readOnlyEventsAreForReading()
    {
        const Event event =
            m_state->addEvent(QStringLiteral("Theirs"), QDateTime(May1, QTime(9, 0)), QDateTime(May1, QTime(10, 0)));
        m_state->makeReadOnly(event.calendarId);
        EventFormDialog form(m_state->state(), event, nullptr);
        QVERIFY(title(form)->isReadOnly());
        QCOMPARE(form.findChild<CalendarCombo *>()->calendarId(), event.calendarId); // listed all the same
        title(form)->setText(QStringLiteral("Mine"));
        form.accept();
        QCOMPARE(stored(*m_state, event.id).title, u"Theirs"_qs);
    }

    void cancelAsksBeforeInputIsLost()
    {
        Prompt::ScopedAnswers answers;
        answers.sayYes = false;
        EventFormDialog form(m_state->state(), nullptr);
        form.show();
        title(form)->setText(QStringLiteral("typed"));
        form.reject();
        QCOMPARE(answers.asked.size(), 1);
        QVERIFY(form.isVisible());
        title(form)->clear();
        form.reject(); // nothing to lose
        QCOMPARE(answers.asked.size(), 1);
        QVERIFY(!form.isVisible());
    }
};

QTEST_MAIN(TestEventFormDialog)
#include "tst_EventFormDialog.moc"
