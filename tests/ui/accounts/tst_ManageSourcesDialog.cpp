#include "ui/accounts/ManageSourcesDialog.h"

#include "models/Account.h"
#include "models/Calendar.h"
#include "support/FakeCalDav.h"
#include "support/ScratchState.h"
#include "support/TestData.h"
#include "sync/SyncScheduler.h"
#include "ui/accounts/AccountHealth.h"
#include "ui/accounts/CalDavConnectionDialog.h"
#include "ui/dialogs/Prompt.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using State = AccountHealth::State;
using Change = std::function<void(Account &)>;

Q_DECLARE_METATYPE(State)
Q_DECLARE_METATYPE(Change)

class tst_ManageSourcesDialog : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_state = std::make_unique<ScratchState>();
        qputenv("CALENDAR_TOKEN_STORE", "file:" + m_state->path(u"secrets.json"_s).toUtf8());
        m_scheduler = std::make_unique<SyncScheduler>(state());
        state()->setSyncServices(m_scheduler.get(), nullptr);
        m_prompts = std::make_unique<Prompt::ScopedAnswers>();
        m_account = {};
        m_account.id = u"account"_s;
        m_account.name = u"Home"_s;
        m_account.type = AccountType::CalDAV;
        m_account.serverUrl = m_server.url().toString();
        m_account.username = u"alice"_s;
        QVERIFY(state()->accounts()->insert(m_account));
        m_calendarId = m_state->addCalendar(u"Old work"_s, {}, m_account.id);
    }
    void cleanup()
    {
        m_prompts.reset();
        state()->setSyncServices(nullptr, nullptr);
        m_scheduler.reset();
        qunsetenv("CALENDAR_TOKEN_STORE");
    }

    void saysHowAnAccountIsDoing_data()
    {
        columns<Change, QString, State, QString>("change", "calendarError", "state", "summary");
        const Change none = [](Account &) {};
        row("new", none, "", State::Fine, "Not synced yet");
        row("calendar failed", none, "HTTP 503", State::Failing, "Sync failed");
        row("off", Change([](Account &account) { account.enabled = false; }), "HTTP 503", State::Disabled,
            "Turned off");
        row("no password", Change([](Account &account) { account.lastSyncError = SyncScheduler::passwordMissing(); }),
            "HTTP 503", State::PasswordMissing, "Password missing");
        row("certificate", Change([](Account &account) { account.pendingCertSha256 = u"AB"_s; }), "HTTP 503",
            State::CertificateChanged, "Certificate changed");
        row("sign-in", Change([](Account &account) {
                account.type = AccountType::Google;
                account.lastSyncError = u"Sign in required"_s;
            }),
            "", State::SignInRequired, "Sign in required");
        row("local", Change([](Account &account) { account.type = AccountType::Quillon; }), "", State::Local,
            "On this device");
    }
    void saysHowAnAccountIsDoing()
    {
        QFETCH(const Change, change);
        QFETCH(const QString, calendarError);
        QFETCH(const State, state);
        Calendar calendar = this->state()->calendars()->getById(m_calendarId).value();
        calendar.lastSyncError = calendarError;
        QVERIFY(this->state()->calendars()->update(calendar));
        change(m_account);
        const AccountHealth health = AccountHealth::of(this->state(), m_account);
        QCOMPARE(health.state, state);
        QTEST(health.summary, "summary");
        QCOMPARE(health.detail.contains(u"Old work: HTTP 503"_s), state == State::Failing);
    }

    void storesSettingsAndFollowsChanges()
    {
        ManageSourcesDialog dialog(state());
        dialog.show();
        dialog.selectAccount(m_account.id);
        auto *interval = dialog.findChild<QComboBox *>();
        QCOMPARE(interval->currentData().toInt(), 15);
        interval->setFocus();
        QTest::keyClick(interval, Qt::Key_Home);
        QCOMPARE(stored().syncIntervalMinutes, 0);
        for (QCheckBox *box : dialog.findChildren<QCheckBox *>())
            box->click();
        QVERIFY(!stored().enabled && stored().excludeFromSync);
        QTRY_COMPARE(detailOf(dialog, m_account.id), u"Turned off"_s);

        Account elsewhere = stored();
        elsewhere.enabled = true;
        elsewhere.lastSyncError = SyncScheduler::passwordMissing();
        elsewhere.syncIntervalMinutes = 7;
        QVERIFY(state()->accounts()->update(elsewhere));
        QTRY_COMPARE(detailOf(dialog, m_account.id), u"Password missing"_s);
        QCOMPARE(interval->currentData().toInt(), 7);
        button(dialog, u"Enter Password…"_s)->click();
        QVERIFY(dialog.findChild<CalDavConnectionDialog *>());

        dialog.selectAccount(LocalDefaults::LocalAccountId);
        for (const QString &text : { u"Edit…"_s, u"Refresh"_s, u"Remove…"_s })
            QVERIFY(!button(dialog, text)->isVisible());
        QVERIFY(!interval->isVisible());
    }

    void removesAfterTellingWhatIsLost()
    {
        Event event = m_state->addEvent(u"Mine"_s, utc("2026-03-15T09:00"), utc("2026-03-15T10:00"));
        event.calendarId = m_calendarId;
        event.syncStatus = SyncStatus::Pending;
        QVERIFY(state()->events()->update(event));
        givePassword();
        ManageSourcesDialog dialog(state());
        dialog.selectAccount(m_account.id);
        button(dialog, u"Remove…"_s)->click();
        QVERIFY(m_prompts->asked.last().text.startsWith(u"Remove \"Home\""_s));
        QVERIFY(m_prompts->asked.last().text.contains(u"\n1 change(s) made here"_s));
        QTRY_VERIFY(!state()->accounts()->getById(m_account.id));
        QVERIFY(!state()->calendars()->getById(m_calendarId));
        QTRY_VERIFY(!secrets().contains("s3cret"));
        QTRY_VERIFY(detailOf(dialog, m_account.id).isEmpty());
    }

    void refreshLooksForCalendarsAndSyncs()
    {
        ManageSourcesDialog dialog(state());
        dialog.show();
        dialog.selectAccount(m_account.id);
        button(dialog, u"Refresh"_s)->click();
        QTRY_COMPARE(dialog.problemText(), u"Enter the password of this account first."_s);
        givePassword();
        m_account.pendingCertSha256 = u"AB"_s;
        QVERIFY(state()->accounts()->update(m_account));
        QTRY_VERIFY(button(dialog, u"Review Certificate…"_s)->isVisible());
        button(dialog, u"Review Certificate…"_s)->click();
        QCOMPARE(dialog.statusText(), u"Connecting…"_s);
        QTRY_COMPARE(dialog.statusText(), u"Discovered 1 new calendar(s)."_s);
        QCOMPARE(state()->calendars()->getByAccount(m_account.id).size(), 2);
        QVERIFY(stored().pendingCertSha256.isEmpty() && !stored().calendarHomeSet.isEmpty());
        QTRY_VERIFY(m_server.count("REPORT") > 0);
        QTRY_VERIFY(!state()->isSyncing());
        QVERIFY(!detailOf(dialog, m_account.id).contains(u"Not synced"));
    }

private:
    AppState *state() { return m_state->state(); }
    Account stored() { return state()->accounts()->getById(m_account.id).value(); }

    static QPushButton *button(const QDialog &dialog, const QString &text)
    {
        const auto buttons = dialog.findChildren<QPushButton *>();
        const auto found = std::ranges::find_if(
            buttons, [&](const QPushButton *candidate) { return QString(candidate->text()).remove(u'&') == text; });
        return found == buttons.end() ? nullptr : *found;
    }

    static QString detailOf(const QDialog &dialog, const QString &accountId)
    {
        const auto *list = dialog.findChild<QListWidget *>();
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->data(Qt::UserRole) == accountId)
                return list->item(row)->data(Qt::AccessibleDescriptionRole).toString();
        }
        return {};
    }

    QByteArray secrets()
    {
        QFile file(m_state->path(u"secrets.json"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void givePassword()
    {
        m_scheduler->credentials()->setCaldavPassword(m_account.id, u"s3cret"_s, this, [](bool) {});
        QTRY_VERIFY(secrets().contains("s3cret"));
    }

    FakeCalDav m_server;
    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<SyncScheduler> m_scheduler;
    std::unique_ptr<Prompt::ScopedAnswers> m_prompts;
    Account m_account;
    QString m_calendarId;
};

QTEST_MAIN(tst_ManageSourcesDialog)
#include "tst_ManageSourcesDialog.moc"
