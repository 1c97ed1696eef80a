#include "ui/accounts/ManageSourcesDialog.h"

#include "AccountBench.h"
#include "support/FakeCalDav.h"
#include "support/TestData.h"
#include "ui/accounts/AccountHealth.h"
#include "ui/accounts/CalDavConnectionDialog.h"

using State = AccountHealth::State;
using Change = std::function<void(Account &)>;

Q_DECLARE_METATYPE(State)
Q_DECLARE_METATYPE(Change)

class tst_ManageSourcesDialog : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_bench = std::make_unique<AccountBench>(m_server.url().toString());
        m_calendarId = m_bench->scratch.addCalendar(u"Old work"_s, {}, m_bench->account.id);
    }
    void cleanup() { m_bench.reset(); }

    void saysHowAnAccountIsDoing_data()
    {
        columns<Change, State, QString>("change", "state", "summary");
        row("failed", Change([](Account &) {}), State::Failing, "Sync failed");
        row("off", Change([](Account &account) { account.enabled = false; }), State::Disabled, "Turned off");
        row("no password", Change([](Account &account) { account.lastSyncError = SyncScheduler::passwordMissing(); }),
            State::PasswordMissing, "Password missing");
        row("certificate", Change([](Account &account) { account.pendingCertSha256 = u"AB"_s; }),
            State::CertificateChanged, "Certificate changed");
        row("sign-in", Change([](Account &account) { account.lastSyncError = u"Sign in required"_s; }),
            State::SignInRequired, "Sign in required");
        row("local", Change([](Account &account) { account.type = AccountType::Quillon; }), State::Local,
            "On this device");
    }
    void saysHowAnAccountIsDoing()
    {
        QFETCH(const Change, change);
        QFETCH(const State, state);
        QCOMPARE(AccountHealth::of(m_bench->state, m_bench->account).summary, u"Not synced yet"_s);
        Calendar calendar = m_bench->state->calendars()->getById(m_calendarId).value();
        calendar.lastSyncError = u"HTTP 503"_s;
        QVERIFY(m_bench->state->calendars()->update(calendar));
        change(m_bench->account);
        const AccountHealth health = AccountHealth::of(m_bench->state, m_bench->account);
        QCOMPARE(health.state, state);
        QTEST(health.summary, "summary");
        QCOMPARE(health.detail.contains(u"Old work: HTTP 503"_s), state == State::Failing);
    }

    void storesSettingsAndFollowsChanges()
    {
        ManageSourcesDialog dialog(m_bench->state);
        dialog.show();
        dialog.selectAccount(m_bench->account.id);
        auto *interval = dialog.findChild<QComboBox *>();
        QCOMPARE(interval->currentData().toInt(), 15);
        QTest::keyClick(interval, Qt::Key_Home);
        QCOMPARE(m_bench->stored().syncIntervalMinutes, 0);
        for (QCheckBox *box : dialog.findChildren<QCheckBox *>())
            box->click();
        QVERIFY(!m_bench->stored().enabled && m_bench->stored().excludeFromSync);
        QTRY_COMPARE(detail(dialog), u"Turned off"_s);

        Account elsewhere = m_bench->stored();
        elsewhere.enabled = true;
        elsewhere.lastSyncError = SyncScheduler::passwordMissing();
        elsewhere.syncIntervalMinutes = 7;
        QVERIFY(m_bench->state->accounts()->update(elsewhere));
        QTRY_COMPARE(detail(dialog), u"Password missing"_s);
        QCOMPARE(interval->currentData().toInt(), 7);
        m_bench->button(dialog, u"Enter Password…"_s)->click();
        QVERIFY(dialog.findChild<CalDavConnectionDialog *>());

        dialog.selectAccount(LocalDefaults::LocalAccountId);
        for (const QString &text : { u"Edit…"_s, u"Refresh"_s, u"Remove…"_s })
            QVERIFY(!m_bench->button(dialog, text)->isVisible());
        QVERIFY(!interval->isVisible());
    }

    void removesAfterTellingWhatIsLost()
    {
        Event event = m_bench->scratch.addEvent(u"Mine"_s, utc("2026-03-15T09:00"), utc("2026-03-15T10:00"));
        event.calendarId = m_calendarId;
        event.syncStatus = SyncStatus::Pending;
        QVERIFY(m_bench->state->events()->update(event));
        m_bench->givePassword();
        ManageSourcesDialog dialog(m_bench->state);
        dialog.selectAccount(m_bench->account.id);
        m_bench->button(dialog, u"Remove…"_s)->click();
        const QString question = m_bench->prompts.asked.last().text;
        QVERIFY(question.startsWith(u"Remove \"Home\""_s) && question.contains(u"\n1 change(s) made here"_s));
        QTRY_VERIFY(!m_bench->state->accounts()->getById(m_bench->account.id));
        QVERIFY(!m_bench->state->calendars()->getById(m_calendarId));
        QTRY_VERIFY(!m_bench->secrets().contains("s3cret"));
        QTRY_VERIFY(detail(dialog).isEmpty());
    }

    void refreshLooksForCalendarsAndSyncs()
    {
        ManageSourcesDialog dialog(m_bench->state);
        dialog.show();
        dialog.selectAccount(m_bench->account.id);
        m_bench->button(dialog, u"Refresh"_s)->click();
        QTRY_COMPARE(dialog.problemText(), u"Enter the password of this account first."_s);
        m_bench->givePassword();
        m_bench->account.pendingCertSha256 = u"AB"_s;
        QVERIFY(m_bench->state->accounts()->update(m_bench->account));
        QPushButton *review = nullptr;
        QTRY_VERIFY((review = m_bench->button(dialog, u"Review Certificate…"_s)) && review->isVisible());
        review->click();
        QCOMPARE(dialog.statusText(), u"Connecting…"_s);
        QTRY_COMPARE(dialog.statusText(), u"Discovered 1 new calendar(s)."_s);
        QCOMPARE(m_bench->calendars(m_bench->account.id), u"Old work Work"_s);
        QVERIFY(m_bench->stored().pendingCertSha256.isEmpty() && !m_bench->stored().calendarHomeSet.isEmpty());
        QTRY_VERIFY(m_server.count("REPORT") > 0);
        QTRY_VERIFY(!m_bench->state->isSyncing());
        QVERIFY(!detail(dialog).contains(u"Not synced"_s));
    }

private:
    /// The second line of the account in the list.
    QString detail(const QDialog &dialog) const
    {
        const auto items = dialog.findChild<QListWidget *>()->findItems(m_bench->account.name, Qt::MatchExactly);
        return items.isEmpty() ? QString() : items.first()->data(Qt::AccessibleDescriptionRole).toString();
    }

    FakeCalDav m_server;
    std::unique_ptr<AccountBench> m_bench;
    QString m_calendarId;
};

QTEST_MAIN(tst_ManageSourcesDialog)
#include "tst_ManageSourcesDialog.moc"
