#pragma once

#include "support/FakeCalDav.h"
#include "support/SyncDevice.h"

#include <QStringList>

/// A calendar in which both sides have changed something since they last met.
struct SyncWorld {
    FakeCalDav server;
    SyncDevice device{ server.calendarUrl() };

    SyncWorld();
    /// How many requests an undisturbed sync makes.
    static int requestsOfASync();

    /// What the user wrote that is neither with the server nor still here and waiting.
    QStringList lost();
    /// Where the two sides differ.
    QStringList differences();

private:
    [[nodiscard]] bool serverSays(const QByteArray &name, const QByteArray &line) const;
    [[nodiscard]] bool eventWaits(const QString &uid, const QString &title);
    [[nodiscard]] bool taskWaits(const QString &uid, const QString &title);
};
