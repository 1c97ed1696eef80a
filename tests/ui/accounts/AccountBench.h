#pragma once

#include "models/Account.h"
#include "support/ScratchState.h"
#include "sync/SyncScheduler.h"
#include "ui/dialogs/Prompt.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

/// A state with a scheduler, a secret store of its own, and one CalDAV account of alice, whose password is "s3cret".
struct AccountBench {
    explicit AccountBench(const QString &serverUrl)
    {
        qputenv("CALENDAR_TOKEN_STORE", "file:" + scratch.path(u"secrets.json"_s).toUtf8());
        state->setSyncServices(&scheduler, nullptr);
        account.id = u"account"_s;
        account.name = u"Home"_s;
        account.type = AccountType::CalDAV;
        account.serverUrl = serverUrl;
        account.username = u"alice"_s;
        account.createdAt = account.updatedAt = QDateTime::currentDateTimeUtc();
        if (!state->accounts()->insert(account))
            qFatal("cannot store an account");
    }
    ~AccountBench()
    {
        state->setSyncServices(nullptr, nullptr);
        qunsetenv("CALENDAR_TOKEN_STORE");
    }

    Account stored() { return state->accounts()->getById(account.id).value(); }
    QByteArray secrets()
    {
        QFile file(scratch.path(u"secrets.json"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void givePassword()
    {
        scheduler.credentials()->setCaldavPassword(account.id, u"s3cret"_s, &scheduler, [](bool) {});
        QTRY_VERIFY(secrets().contains("s3cret"));
    }
    /// Names of its calendars, by their order.
    QString calendars(const QString &accountId)
    {
        QStringList names;
        for (const Calendar &calendar : state->calendars()->getByAccount(accountId))
            names.append(calendar.name);
        return names.join(u' ');
    }
    static QPushButton *button(const QDialog &dialog, const QString &text)
    {
        const auto buttons = dialog.findChildren<QPushButton *>();
        const auto found = std::ranges::find_if(
            buttons, [&](const QPushButton *one) { return QString(one->text()).remove(u'&') == text; });
        return found == buttons.end() ? nullptr : *found;
    }

    ScratchState scratch;
    AppState *state = scratch.state();
    SyncScheduler scheduler{ state };
    Prompt::ScopedAnswers prompts;
    Account account;
};
