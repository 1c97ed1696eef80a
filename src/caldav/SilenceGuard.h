#pragma once

#include <QObject>

#include <functional>

class CalDavClient;
class QTimer;

/// Ends a request that nothing has been heard of for too long: a server that accepts a connection and stays silent
/// would hold its job open for ever.
class SilenceGuard : public QObject {
    Q_OBJECT

public:
    static constexpr int SilenceMs = 2 * 60 * 1000;
    /// A server may build its cache of a large calendar before the first byte of the listing.
    static constexpr int ListingMs = 10 * 60 * 1000;

    explicit SilenceGuard(CalDavClient *client, QObject *parent = nullptr);

    /// Until stop(): if the client hears nothing for \p firstByteMs after the request went out, and later for
    /// SilenceMs, it aborts, and \p onSilence runs instead of the request's continuation.
    void watch(int firstByteMs, std::function<void()> onSilence);
    void stop();

    static QString message(); ///< what to tell the user
    /// For tests: divides every wait.
    static void setHaste(int factor);

private:
    void wait(int silenceMs);
    void onTimeout();

    CalDavClient *m_client;
    QTimer *m_timer;
    int m_firstByteMs = SilenceMs;
    std::function<void()> m_onSilence;
};
