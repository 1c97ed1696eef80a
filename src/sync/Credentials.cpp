#include "sync/Credentials.h"

#include "app/state/Platform.h"
#include "platform/TokenStore.h"

#include <QCoreApplication>
#include <QDebug>
#include <QPointer>
#include <QThread>

#include <utility>

using QuillonAccount::TokenStore;

namespace {

// A keyring's prompt may hold the thread; the program does not wait for it at its end.
constexpr int EndTimeoutMs = 500;

QString keyOf(const QString &accountId)
{
    return QStringLiteral("caldav-password-") + accountId;
}

std::unique_ptr<TokenStore> openStore(Credentials::Unlock unlock)
{
    return TokenStore::create(Platform::tokenStoreAppId(),
                              unlock == Credentials::Unlock::MayAsk ? TokenStore::Unlock::Wait
                                                                    : TokenStore::Unlock::Never);
}

}

Credentials::Credentials(QObject *parent)
    : QObject(parent)
    , m_thread(std::make_unique<QThread>())
    , m_worker(new QObject)
{
    m_worker->moveToThread(m_thread.get());
    connect(m_thread.get(), &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread->start();
}

Credentials::~Credentials()
{
    m_thread->quit();
    if (!m_thread->wait(EndTimeoutMs)) {
        qInfo() << "[Credentials] the secret store has not answered";
        (void)m_thread.release();
    }
}

template <typename Work, typename Done> void Credentials::inBackground(QObject *context, Work work, Done done)
{
    // Jobs run one after the other: what is stored first is found by the next.
    QMetaObject::invokeMethod(m_worker, [work, done, context = QPointer(context), self = QPointer(this)] {
        const auto result = work();
        QMetaObject::invokeMethod(QCoreApplication::instance(), [result, done, context, self] {
            if (self && context)
                done(result);
        });
    });
}

void Credentials::caldavPassword(const QString &accountId, Unlock unlock, QObject *context,
                                 std::function<void(const QString &)> found)
{
    const QString key = keyOf(accountId);
    if (const auto known = m_known.constFind(key); known != m_known.cend()) {
        QMetaObject::invokeMethod(
            context, [found = std::move(found), password = *known] { found(password); }, Qt::QueuedConnection);
        return;
    }
    inBackground(
        context,
        [key, unlock] {
            const auto store = openStore(unlock);
            return store ? store->value(key).value_or(QString()) : QString();
        },
        [this, key, found = std::move(found)](const QString &password) {
            // It may have been typed anew while the store was asked.
            const QString current = m_known.value(key, password);
            if (!current.isEmpty())
                m_known.insert(key, current);
            found(current);
        });
}

void Credentials::setCaldavPassword(const QString &accountId, const QString &password, QObject *context,
                                    std::function<void(bool)> stored)
{
    const QString key = keyOf(accountId);
    m_known.insert(key, password);
    inBackground(
        context,
        [key, password] {
            const auto store = openStore(Unlock::MayAsk);
            return store && store->set(key, password);
        },
        std::move(stored));
}

void Credentials::removeCaldavPassword(const QString &accountId)
{
    const QString key = keyOf(accountId);
    m_known.remove(key);
    inBackground(
        this,
        [key] {
            const auto store = openStore(Unlock::MayAsk);
            return !store || store->remove(key);
        },
        [](bool isRemoved) {
            if (!isRemoved)
                qWarning() << "[Credentials] a password could not be removed from the secret store";
        });
}
