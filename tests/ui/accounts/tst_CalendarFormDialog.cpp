#include "ui/accounts/CalendarFormDialog.h"

#include "AccountBench.h"
#include "support/HttpServer.h"
#include "support/TestData.h"

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
        form.findChild<QLineEdit *>()->setText(u"Allotment"_s);
        form.accept();
        const auto stored = state->calendars()->getById(form.resultCalendarId());
        QVERIFY(stored);
        QCOMPARE(stored->name, u"Allotment"_s);
        QCOMPARE(stored->accountId, accountId);
        QCOMPARE(stored->url, u"local://calendar/"_s + stored->id);
        QVERIFY(stored->supportsTasks() && stored->supportedComponents.contains(u"VEVENT"));
        QVERIFY(stored->syncEnabled && stored->isVisible);
        QCOMPARE(stored->isDefault, !accountThere); // the only calendar then
        QCOMPARE(state->accounts()->getById(accountId)->type, QString(AccountType::Quillon));
    }

    void keepsWhatASyncChangedMeanwhile()
    {
        ScratchState state;
        Calendar calendar = state->calendars()->getById(ScratchState::calendarId()).value();
        calendar.description = u"two\r\nlines"_s;
        QVERIFY(state->calendars()->update(calendar));
        CalendarFormDialog form(state.state(), calendar);
        calendar.ctag = u"after the sync"_s;
        QVERIFY(state->calendars()->update(calendar));
        form.findChild<QLineEdit *>()->setText(u"Renamed"_s);
        form.accept();
        const Calendar stored = state->calendars()->getById(calendar.id).value();
        QCOMPARE(stored.name, u"Renamed"_s);
        QCOMPARE(stored.ctag, u"after the sync"_s);
        QCOMPARE(stored.description, u"two\r\nlines"_s);
    }

    void asksTheServerFirst()
    {
        HttpServer server;
        AccountBench bench(server.url().toString());
        ScratchState &state = bench.scratch;
        CalendarFormDialog locked(state.state());
        fillInForServer(locked);
        QTRY_COMPARE(bench.prompts.asked.size(), 1);
        QCOMPARE(bench.prompts.asked.first().title, u"Missing password"_s);
        bench.givePassword();
        server.enqueue({ .status = 201, .body = {}, .headers = {} });
        server.enqueue({ .status = 207, .body = {}, .headers = {} });
        CalendarFormDialog form(state.state());
        fillInForServer(form);
        QTRY_COMPARE(form.statusText(), u"Creating calendar on server…"_s);
        QTRY_COMPARE(form.result(), int(QDialog::Accepted));
        Calendar calendar = state->calendars()->getById(form.resultCalendarId()).value();
        QCOMPARE(calendar.accountId + calendar.name, bench.account.id + u"Shared"_s);

        // Does it take tasks? No. And what is read-only here asks nobody.
        calendar.supportedComponents = u"[\"VEVENT\"]"_s;
        QVERIFY(state->calendars()->update(calendar));
        server.enqueue({ .status = 403, .body = {}, .headers = {} });
        CalendarFormDialog edit(state.state(), calendar);
        auto *allowTasks = edit.findChild<QCheckBox *>();
        allowTasks->setChecked(true);
        edit.accept();
        QTRY_COMPARE(edit.problemText(), u"This calendar does not accept tasks (server returned HTTP 403)."_s);
        QVERIFY(!allowTasks->isChecked() && allowTasks->isEnabled());
        state.makeReadOnly(calendar.id);
        CalendarFormDialog readOnly(state.state(), state->calendars()->getById(calendar.id).value());
        QVERIFY(!readOnly.findChild<QCheckBox *>());
        readOnly.findChild<QLineEdit *>()->setText(u"Here only"_s);
        readOnly.accept();
        QCOMPARE(state->calendars()->getById(calendar.id)->name, u"Here only"_s);
        QCOMPARE(server.requests().size(), 3);
    }

private:
    static void fillInForServer(CalendarFormDialog &form)
    {
        form.findChild<QLineEdit *>()->setText(u"Shared"_s);
        auto *account = form.findChild<QComboBox *>();
        account->setCurrentIndex(account->findText(u"Home"_s));
        form.accept();
    }
};

QTEST_MAIN(tst_CalendarFormDialog)
#include "tst_CalendarFormDialog.moc"
