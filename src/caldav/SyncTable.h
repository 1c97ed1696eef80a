#pragma once

#include "caldav/CalDavParse.h"
#include "calendar/ResourceComposer.h"
#include "storage/SyncedRepository.h"

#include <QList>
#include <QSet>
#include <QString>

#include <memory>
#include <optional>

class AppState;

/// The pending rows of one resource on their way to the server: what they are when the push is prepared, and what
/// becomes of them with the answer. Rows that change in between keep their change, and stay pending.
class PendingResource {
public:
    virtual ~PendingResource() = default;

    QString uid;
    QString id; ///< of the row that gives the title
    QString title;
    QString status; ///< as EventStatus or TaskStatus
    QString href; ///< empty: not on the server yet
    QString etag;
    bool isDeletion = false; ///< no live row of it is left
    bool hasSynced = false; ///< rows that do not wait are of it too

    /// See ResourceComposer. The text is kept for accepted(). \p newestEtag is that of the text \p newest.
    virtual ResourceComposer::Composed compose(const QByteArray &newest, const QString &newestEtag,
                                               const ResourceComposer::Context &context) = 0;
    /// True if this text of a resource holds something of this UID.
    [[nodiscard]] virtual bool isIn(const QByteArray &text) const = 0;
    /// The server has what was composed last.
    virtual void accepted(const QString &newHref, const QString &newEtag) = 0;
    /// The server has no such resource any more. A row that was restored meanwhile is new to it.
    virtual bool deleted() = 0;
    /// The server never had it, or has lost it: the next push makes it.
    virtual void forgetAddress() = 0;
};

/// One kind of a calendar's rows as a sync run sees them: events, or tasks.
class SyncTable {
public:
    struct Stored {
        int read = 0; ///< components that can be read; see countsPending()
        int written = 0; ///< rows that took the server's content
        bool hasPending = false; ///< a row waits to be pushed over this resource
    };

    virtual ~SyncTable() = default;

    /// Whether rows that wait are told among those that were read.
    [[nodiscard]] virtual bool countsPending() const = 0;
    virtual QList<SyncRow> rows(qint64 afterRowid, int limit) = 0;

    /// Takes what \p resource holds: new rows, and synced ones that exist. A pending row takes address and etag
    /// only. \p known: the rows at this address; of these, the synced ones that are no longer in the text go.
    /// \p listed: the addresses seen so far. \p knownUids: what the calendar may hold already.
    virtual Stored store(const CalDavParse::EventResource &resource, const QList<SyncRow> &known,
                         const QSet<QString> &listed, QSet<QString> &knownUids) = 0;
    /// Deletes the row for good if it is still synced with this address.
    virtual bool purge(const QString &id, const QString &href) = 0;
    /// Makes a row that still waits with this address new to the server; a deletion stays one of that address.
    virtual bool forgetAddress(const QString &id, const QString &href) = 0;

    virtual QList<PendingRow> pendingRows(qint64 afterRowid, int limit) = 0;
    /// The resource at \p href with its rows as they are now; without an address the one that the rows of \p uid are
    /// of, if the server has one. Null if nothing of it waits any more.
    virtual std::unique_ptr<PendingResource> open(const QString &uid, const QString &href) = 0;

    static std::unique_ptr<SyncTable> events(AppState *state, const QString &calendarId);
    static std::unique_ptr<SyncTable> tasks(AppState *state, const QString &calendarId);
};
