#pragma once

#include "caldav/CalDavClient.h"

#include <QObject>

class QTimer;

/// Ends a request that nothing has been heard of for too long: a server that accepts a connection and stays silent
/// would hold its job open for ever. One request at a time.
class SilenceGuard : public QObject {
    Q_OBJECT

public:
    static constexpr int SilenceMs = 2 * 60 * 1000;
    /// A server may build its cache of a large calendar before the first byte of the listing.
    static constexpr int ListingMs = 10 * 60 * 1000;

    explicit SilenceGuard(CalDavClient *client, QObject *parent = nullptr);

    /// The continuation to hand to the client with the next request, in place of \p next. If nothing is heard for
    /// \p firstByteMs after the request went out, or for SilenceMs later, the request is given up, and \p next gets a
    /// response with an error. It does not run once another request is guarded, nor after stop().
    CalDavClient::Callback guarded(int firstByteMs, CalDavClient::Callback next);
    void stop();

    /// For tests: divides every wait.
    static void setHaste(int factor);

private:
    void wait(int silenceMs);
    void finish(const CalDavClient::Response &response);

    CalDavClient *m_client;
    QTimer *m_timer;
    int m_firstByteMs = SilenceMs;
    int m_request = 0; // counts those that were guarded or stopped
    CalDavClient::Callback m_next;
};
