#pragma once

#include <QHash>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QThread;

/// Passwords of CalDAV accounts: from the secure store, without ever holding the event loop for it, and remembered
/// while the program runs. Where there is no store a password lives until the program ends.
class Credentials : public QObject {
    Q_OBJECT

public:
    /// Whether a locked keyring may ask its owner for the key. Never from a timer.
    enum class Unlock { Never, MayAsk };

    explicit Credentials(QObject *parent = nullptr);
    ~Credentials() override;

    /// \p found runs from the event loop, with an empty text if there is no password, and not once \p context is gone.
    void caldavPassword(const QString &accountId, Unlock unlock, QObject *context,
                        std::function<void(const QString &password)> found);

    /// \p stored hears whether the secure store has it; false: it lives until the program ends.
    void setCaldavPassword(const QString &accountId, const QString &password, QObject *context,
                           std::function<void(bool isStored)> stored);
    void removeCaldavPassword(const QString &accountId);

private:
    /// \p work runs on the thread, \p done with its result here.
    template <typename Work, typename Done> void inBackground(QObject *context, Work work, Done done);

    std::unique_ptr<QThread> m_thread;
    QObject *m_worker; // lives on the thread
    QHash<QString, QString> m_known; // token store key to secret
};
