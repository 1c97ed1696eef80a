#pragma once

#include "caldav/CalDavClient.h"
#include "caldav/CalDavParse.h"
#include "storage/SyncedRepository.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <optional>
#include <vector>

class CalDavSession;
class SyncTable;

/// One kind of component of a calendar, brought here from the server: a complete listing with texts, then the rows
/// that are no longer in it. Stores in slices of the event loop, each a transaction of its own. Ends with finished(),
/// or with refused() if the listing did not come.
class CalendarPull : public QObject {
    Q_OBJECT

public:
    enum class MissingText {
        Fetch, ///< with a multiget
        Leave,
    };
    /// Texts of the server's resources over which local changes wait, by address.
    using Texts = QHash<QString, CalDavParse::EventResource>;
    struct Listing {
        Texts texts;
        QSet<QString> addresses; ///< of all that is there
    };

    CalendarPull(CalDavSession *session, SyncTable *table, const QString &component, MissingText missingText,
                 QObject *parent);

    void start();

    [[nodiscard]] int readCount() const { return m_readCount; } ///< components, unchanged ones too
    [[nodiscard]] bool hasChanged() const { return m_writtenCount + m_removedCount > 0; } ///< what is stored here
    [[nodiscard]] int removedCount() const { return m_removedCount; }
    [[nodiscard]] int resourceCount() const { return m_resourceCount; }
    [[nodiscard]] int missingCount() const { return int(m_missing.size()); } ///< resources whose text is not known
    [[nodiscard]] Listing takeListing() { return { .texts = std::move(m_texts), .addresses = std::move(m_listed) }; }
    /// Why the listing cannot be trusted to be whole; empty if it can. What arrived is stored all the same.
    [[nodiscard]] QString shortfall() const { return m_shortfall; }

signals:
    void progressed(int readCount); ///< every 25 components
    void finished();
    /// \p error if no answer came, else the \p status of the answer.
    void refused(const QString &error, int status);

private:
    enum class Phase { Index, Store, Reconcile };

    void onListing(const CalDavClient::Response &response);
    void onMultiget(const CalDavClient::Response &response);
    void beginStoring(const CalDavClient::Response &response);
    void runSlice();
    void indexRows();
    void storeNext();
    void finishListing();
    void finishMultiget();
    void take(const CalDavParse::EventResource &resource);
    void takeListed(CalDavParse::EventResource resource);
    bool takeUnchanged(const CalDavParse::EventResource &resource);
    void count(int read);
    void reconcileNext();
    [[nodiscard]] QList<SyncRow> rowsAt(const QString &href) const;

    CalDavSession *m_session;
    SyncTable *m_table;
    QString m_component;
    MissingText m_missingText;
    QTimer m_slices;
    Phase m_phase = Phase::Index;

    std::vector<SyncRow> m_rows;
    QHash<QString, QList<int>> m_rowsByHref; // positions in m_rows
    QSet<QString> m_knownUids;
    qint64 m_lastRowid = -1;

    std::optional<CalDavParse::EventResourceReader> m_reader;
    bool m_isMultiget = false; // m_reader reads its answer
    bool m_canReconcile = false;
    QSet<QString> m_listed; // addresses
    QHash<QString, QString> m_missing; // addresses without text, to etag
    QList<QString> m_missingHrefs; // the same, as XML; only what is to be fetched
    Texts m_texts;
    size_t m_nextToReconcile = 0;
    int m_resourceCount = 0;
    int m_fetchedCount = 0; // by a multiget
    int m_readCount = 0;
    int m_announced = 0;
    int m_writtenCount = 0;
    int m_removedCount = 0;
    int m_writtenInSlice = 0;
    QString m_shortfall;
};
