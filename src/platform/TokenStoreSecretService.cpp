#include "platform/TokenStoreSecretService.h"

#ifdef QUILLON_HAVE_LIBSECRET

#include <QDebug>

#undef signals
#include <libsecret/secret.h>

namespace QuillonAccount {

namespace {

constexpr guint CallTimeoutMs = 3000;
constexpr guint PromptTimeoutMs = 120'000;

const SecretSchema *schema()
{
    static const SecretSchema value = [] {
        SecretSchema made{};
        made.name = "com.quillon.calendar";
        made.flags = SECRET_SCHEMA_NONE;
        made.attributes[0] = { "application", SECRET_SCHEMA_ATTRIBUTE_STRING };
        made.attributes[1] = { "key", SECRET_SCHEMA_ATTRIBUTE_STRING };
        return made;
    }();
    return &value;
}

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename T> using ObjectPtr = std::unique_ptr<T, Unref>;

struct ErrorHolder {
    GError *error = nullptr;
    ~ErrorHolder() { g_clear_error(&error); }
};

/// libsecret's calls on a main context of our own: like its blocking calls, but with an end.
class PrivateContext {
public:
    PrivateContext()
        : m_context(g_main_context_new())
    {
    }
    ~PrivateContext() { g_main_context_unref(m_context); }
    Q_DISABLE_COPY_MOVE(PrivateContext)

    /// Runs an asynchronous call to its end, or cancels it.
    template <typename Start> ObjectPtr<GAsyncResult> run(Start start, guint timeoutMs = CallTimeoutMs)
    {
        const ObjectPtr<GCancellable> cancellable(g_cancellable_new());
        GSource *timeout = g_timeout_source_new(timeoutMs);
        g_source_set_callback(timeout, &PrivateContext::onTimeout, cancellable.get(), nullptr);
        g_source_attach(timeout, m_context);
        g_main_context_push_thread_default(m_context);
        GAsyncResult *result = nullptr;
        start(cancellable.get(), GAsyncReadyCallback(&PrivateContext::onDone), static_cast<gpointer>(&result));
        while (!result)
            g_main_context_iteration(m_context, TRUE);
        g_main_context_pop_thread_default(m_context);
        g_source_destroy(timeout);
        g_source_unref(timeout);
        return ObjectPtr<GAsyncResult>(result);
    }

private:
    static void onDone(GObject *, GAsyncResult *result, gpointer target)
    {
        *static_cast<GAsyncResult **>(target) = G_ASYNC_RESULT(g_object_ref(result));
    }
    static gboolean onTimeout(gpointer cancellable)
    {
        g_cancellable_cancel(G_CANCELLABLE(cancellable));
        return G_SOURCE_REMOVE;
    }

    GMainContext *m_context;
};

class SecretServiceStore : public TokenStore {
public:
    SecretServiceStore(const QString &appId, Unlock unlock)
        : m_appId(appId.toUtf8())
        , m_mayAsk(unlock == Unlock::Wait)
    {
    }

    bool open();
    std::optional<QString> value(const QString &key) override;
    bool set(const QString &key, const QString &value) override;
    bool remove(const QString &key) override;

private:
    struct AttributesDeleter {
        void operator()(GHashTable *table) const { g_hash_table_unref(table); }
    };
    using Attributes = std::unique_ptr<GHashTable, AttributesDeleter>;

    [[nodiscard]] Attributes attributes(const QByteArray &key) const;
    /// Calls \p visit with each item of this key, until it returns false. False if the service failed.
    template <typename Visit> bool search(const QByteArray &key, int flags, Visit visit);
    bool isDefaultCollectionOpen();
    [[nodiscard]] guint timeoutMs() const { return m_mayAsk ? PromptTimeoutMs : CallTimeoutMs; }

    PrivateContext m_context;
    QByteArray m_appId;
    bool m_mayAsk;
    ObjectPtr<SecretService> m_service;
};

bool SecretServiceStore::open()
{
    const auto result = m_context.run([](GCancellable *cancellable, GAsyncReadyCallback done, gpointer data) {
        // Not the shared instance of the library: its signals would arrive on a context that is gone.
        secret_service_open(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, cancellable, done, data);
    });
    ErrorHolder holder;
    m_service.reset(secret_service_open_finish(result.get(), &holder.error));
    if (!m_service)
        return false;
    // By default GLib ends the process when the session bus goes away.
    g_dbus_connection_set_exit_on_close(g_dbus_proxy_get_connection(G_DBUS_PROXY(m_service.get())), FALSE);
    return true;
}

SecretServiceStore::Attributes SecretServiceStore::attributes(const QByteArray &key) const
{
    return Attributes(
        secret_attributes_build(schema(), "application", m_appId.constData(), "key", key.constData(), nullptr));
}

template <typename Visit> bool SecretServiceStore::search(const QByteArray &key, int flags, Visit visit)
{
    const Attributes wanted = attributes(key);
    const int unlocking = m_mayAsk ? SECRET_SEARCH_UNLOCK : SECRET_SEARCH_NONE;
    const auto result = m_context.run(
        [&](GCancellable *cancellable, GAsyncReadyCallback done, gpointer data) {
            secret_service_search(m_service.get(), schema(), wanted.get(),
                                  static_cast<SecretSearchFlags>(flags | unlocking), cancellable, done, data);
        },
        timeoutMs());
    ErrorHolder holder;
    GList *items = secret_service_search_finish(m_service.get(), result.get(), &holder.error);
    if (holder.error) {
        qWarning() << "[TokenStore] search failed:" << holder.error->message;
        return false;
    }
    for (GList *item = items; item && visit(SECRET_ITEM(item->data)); item = item->next) { }
    g_list_free_full(items, g_object_unref);
    return true;
}

std::optional<QString> SecretServiceStore::value(const QString &key)
{
    const QByteArray keyText = key.toUtf8();
    std::optional<QString> found;
    search(keyText, SECRET_SEARCH_ALL | SECRET_SEARCH_LOAD_SECRETS, [&](SecretItem *item) {
        if (secret_item_get_locked(item))
            return true;
        if (SecretValue *secret = secret_item_get_secret(item)) {
            gsize length = 0;
            const gchar *text = secret_value_get(secret, &length);
            found = QString::fromUtf8(text, static_cast<qsizetype>(length));
            secret_value_unref(secret);
        }
        return !found.has_value();
    });
    return found;
}

bool SecretServiceStore::isDefaultCollectionOpen()
{
    const auto result = m_context.run([&](GCancellable *cancellable, GAsyncReadyCallback done, gpointer data) {
        secret_collection_for_alias(m_service.get(), SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, cancellable,
                                    done, data);
    });
    ErrorHolder holder;
    const ObjectPtr<SecretCollection> collection(secret_collection_for_alias_finish(result.get(), &holder.error));
    return collection && !secret_collection_get_locked(collection.get());
}

bool SecretServiceStore::set(const QString &key, const QString &value)
{
    const QByteArray keyText = key.toUtf8();
    const QByteArray valueText = value.toUtf8();
    const QByteArray label = "Quillon Calendar (" + keyText + ')';
    if (!m_mayAsk && !isDefaultCollectionOpen()) {
        qWarning() << "[TokenStore] the secret store is locked or empty";
        return false;
    }
    const Attributes wanted = attributes(keyText);
    SecretValue *secret = secret_value_new(valueText.constData(), valueText.size(), "text/plain");
    const auto result = m_context.run(
        [&](GCancellable *cancellable, GAsyncReadyCallback done, gpointer data) {
            secret_service_store(m_service.get(), schema(), wanted.get(), SECRET_COLLECTION_DEFAULT,
                                 label.constData(), secret, cancellable, done, data);
        },
        timeoutMs());
    secret_value_unref(secret);
    ErrorHolder holder;
    const bool stored = secret_service_store_finish(m_service.get(), result.get(), &holder.error);
    if (holder.error)
        qWarning() << "[TokenStore] storing failed:" << holder.error->message;
    return stored;
}

bool SecretServiceStore::remove(const QString &key)
{
    const QByteArray keyText = key.toUtf8();
    bool isLocked = false;
    const bool searched = search(keyText, SECRET_SEARCH_ALL, [&](SecretItem *item) {
        isLocked |= secret_item_get_locked(item) != 0;
        return true;
    });
    if (!searched || isLocked)
        return false;
    const Attributes wanted = attributes(keyText);
    const auto result = m_context.run([&](GCancellable *cancellable, GAsyncReadyCallback done, gpointer data) {
        secret_service_clear(m_service.get(), schema(), wanted.get(), cancellable, done, data);
    });
    ErrorHolder holder;
    secret_service_clear_finish(m_service.get(), result.get(), &holder.error); // false also if there was none
    if (holder.error)
        qWarning() << "[TokenStore] removing failed:" << holder.error->message;
    return !holder.error;
}

}

std::unique_ptr<TokenStore> openSecretService(const QString &appId, TokenStore::Unlock unlock)
{
    auto store = std::make_unique<SecretServiceStore>(appId, unlock);
    if (!store->open())
        return nullptr;
    return store;
}

} // namespace QuillonAccount

#else

namespace QuillonAccount {

std::unique_ptr<TokenStore> openSecretService(const QString &, TokenStore::Unlock)
{
    return nullptr;
}

} // namespace QuillonAccount

#endif
