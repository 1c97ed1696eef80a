#include "support/ScratchState.h"
#include "support/TestData.h"
#include "ui/accounts/CalendarFormDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_CalendarFormDialog : public QObject {
    Q_OBJECT

private slots:
    void createsALocalCalendar_data()
    {
        columns<bool, bool>("accountThere", "tombstoneThere");
        row("in the account that is there", true, false);
        row("with a new account", false, false);
        row("over a deleted account", false, true);
    }

    void createsALocalCalendar()
    {
        QFETCH(bool, accountThere);
        QFETCH(bool, tombstoneThere);
        ScratchState state;
        const QString accountId = LocalDefaults::LocalAccountId;
        QVERIFY(accountThere || state->accounts()->remove(accountId));
        QVERIFY(accountThere || tombstoneThere || state->accounts()->reapTombstone(accountId));

        CalendarFormDialog form(state.state());
        form.accept();
        QVERIFY(!form.problemText().isEmpty()); // no name yet
        form.findChild<QLineEdit *>()->setText(u"Allotment"_qs);
        form.accept();
        const auto stored = state->calendars()->getById(form.resultCalendarId());
        QVERIFY(stored);
        QCOMPARE(stored->name, u"Allotment"_qs);
        QCOMPARE(stored->accountId, accountId);
        QCOMPARE(stored->url, u"local://calendar/"_qs + stored->id);
        QVERIFY(stored->supportsTasks() && stored->supportedComponents.contains(u"VEVENT"));
        QVERIFY(stored->syncEnabled && stored->isVisible);
        QCOMPARE(stored->isDefault, !accountThere); // the only calendar then
        QCOMPARE(state->accounts()->getById(accountId)->type, QString(AccountType::Quillon));
    }

    void keepsWhatASyncChangedMeanwhile()
    {
        ScratchState state;
        Calendar calendar = state->calendars()->getById(ScratchState::calendarId()).value();
        calendar.description = u"two\r\nlines"_qs;
        QVERIFY(state->calendars()->update(calendar));
        CalendarFormDialog form(state.state(), calendar);
        calendar.ctag = u"after the sync"_qs;
        QVERIFY(state->calendars()->update(calendar));
        form.findChild<QLineEdit *>()->setText(u"Renamed"_qs);
        form.accept();
        const Calendar stored = state->calendars()->getById(calendar.id).value();
        QCOMPARE(stored.name, u"Renamed"_qs);
        QCOMPARE(stored.ctag, u"after the sync"_qs);
        QCOMPARE(stored.description, u"two\r\nlines"_qs);
    }
};

QTEST_MAIN(tst_CalendarFormDialog)
#include "tst_CalendarFormDialog.moc"
