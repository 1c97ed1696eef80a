#include "models/Account.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/CalendarFormDialog.h"

#include <QLineEdit>
#include <QTest>

class tst_CalendarFormDialog : public QObject {
    Q_OBJECT

private slots:
    void createsALocalCalendar_data()
    {
        QTest::addColumn<bool>("accountThere");
        QTest::addColumn<bool>("tombstoneThere");
        QTest::newRow("in the account that is there") << true << false;
        QTest::newRow("with a new account") << false << false;
        QTest::newRow("over a deleted account") << false << true;
    }

    void createsALocalCalendar()
    {
        QFETCH(bool, accountThere);
        QFETCH(bool, tombstoneThere);
        ScratchState state;
        const QString accountId = LocalDefaults::LocalAccountId;
        if (!accountThere)
            QVERIFY(state->accounts()->remove(accountId));
        if (!accountThere && !tombstoneThere)
            QVERIFY(state->accounts()->reapTombstone(accountId));

        CalendarFormDialog form(state.state());
        form.accept();
        QVERIFY(!form.problemText().isEmpty()); // no name yet
        form.findChild<QLineEdit *>()->setText(QStringLiteral("Allotment"));
        form.accept();
        const auto stored = state->calendars()->getById(form.resultCalendarId());
        QVERIFY(stored);
        QCOMPARE(stored->name, QStringLiteral("Allotment"));
        QCOMPARE(stored->accountId, accountId);
        QCOMPARE(stored->url, QStringLiteral("local://calendar/") + stored->id);
        QVERIFY(stored->supportsTasks());
        QVERIFY(stored->supportedComponents.contains(QStringLiteral("VEVENT")));
        QVERIFY(stored->syncEnabled);
        QVERIFY(stored->isVisible);
        QVERIFY(stored->canonicalKey.isEmpty());
        QCOMPARE(stored->isDefault, !accountThere); // the only calendar then
        QCOMPARE(state->accounts()->getById(accountId)->type, QString(AccountType::Quillon));
    }

    void keepsWhatASyncChangedMeanwhile()
    {
        ScratchState state;
        Calendar calendar = state->calendars()->getById(ScratchState::calendarId()).value();
        calendar.description = QStringLiteral("two\r\nlines");
        QVERIFY(state->calendars()->update(calendar));
        CalendarFormDialog form(state.state(), calendar);
        calendar.ctag = QStringLiteral("after the sync");
        QVERIFY(state->calendars()->update(calendar));
        form.findChild<QLineEdit *>()->setText(QStringLiteral("Renamed"));
        form.accept();
        const Calendar stored = state->calendars()->getById(calendar.id).value();
        QCOMPARE(stored.name, QStringLiteral("Renamed"));
        QCOMPARE(stored.ctag, QStringLiteral("after the sync"));
        QCOMPARE(stored.description, QStringLiteral("two\r\nlines"));
        QCOMPARE(form.resultCalendarId(), calendar.id);
    }
};

QTEST_MAIN(tst_CalendarFormDialog)
#include "tst_CalendarFormDialog.moc"
