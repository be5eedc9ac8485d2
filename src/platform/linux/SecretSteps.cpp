#include "platform/linux/SecretSteps.h"

#include "platform/linux/KeychainLinux.h"
#include "platform/linux/KeychainRefusal.h"

#include <algorithm>
#include <functional>

namespace {

constexpr auto ServiceKey = "service";
constexpr auto AccountKey = "account";

/// Receives the error of a `…_finish` function.
class ErrorSlot
{
public:
    GError **out() { return &m_error; }
    void throwIfSet()
    {
        if (!m_error)
            return;
        const GLibPointer<GError> error(m_error);
        throw refusalFor(*error);
    }

private:
    GError *m_error = nullptr;
};

SecretSchema schemaWith(SecretSchemaFlags flags)
{
    static const QByteArray name = Keychain::serviceName().toUtf8();
    SecretSchema schema = {};
    schema.name = name.constData();
    schema.flags = flags;
    schema.attributes[0] = {ServiceKey, SECRET_SCHEMA_ATTRIBUTE_STRING};
    schema.attributes[1] = {AccountKey, SECRET_SCHEMA_ATTRIBUTE_STRING};
    return schema;
}

const SecretSchema &schema()
{
    static const SecretSchema schema = schemaWith(SECRET_SCHEMA_NONE);
    return schema;
}

/// Finds items by service and account only. Of a keyring that was locked when its daemon started, the daemon does not
/// know the names of the schemas.
const SecretSchema &anySchema()
{
    static const SecretSchema schema = schemaWith(SECRET_SCHEMA_DONT_MATCH_NAME);
    return schema;
}

bool isLocked(const SecretSteps::Item &item)
{
    return secret_item_get_locked(item.get());
}

std::shared_ptr<GHashTable> attributesOf(const QString &account)
{
    return {secret_attributes_build(&schema(), ServiceKey,
                                    Keychain::serviceName().toUtf8().constData(), AccountKey,
                                    account.toUtf8().constData(), nullptr),
            GLibRelease()};
}

QCoro::Task<GLibPointer<GAsyncResult>>
answered(SecretSteps::Calls calls, std::chrono::milliseconds limit, GLibCalls::Start start)
{
    try {
        co_return co_await GLibCalls::run(calls, limit, start);
    } catch (const GLibCalls::TimedOut &) {
        throw KeychainRefusal(KeychainLinux::TimedOut);
    }
}

gboolean keepRunning(GSignalInvocationHint *, guint, const GValue *values, gpointer)
{
    g_dbus_connection_set_exit_on_close(G_DBUS_CONNECTION(g_value_get_object(values)), FALSE);
    return TRUE;
}

/// By default, GLib ends the process when the session bus closes. The hook runs before GLib decides that. A connection
/// can be told only once it is open, which is too late if the bus closes at that moment.
void outliveEveryBus()
{
    static const gulong hook = [] {
        const std::shared_ptr<void> type(g_type_class_ref(G_TYPE_DBUS_CONNECTION),
                                         g_type_class_unref);
        const guint closed = g_signal_lookup("closed", G_TYPE_DBUS_CONNECTION);
        return g_signal_add_emission_hook(closed, 0, &keepRunning, nullptr, nullptr);
    }();
    Q_UNUSED(hook)
}

QCoro::Task<std::shared_ptr<GDBusConnection>> openBus(SecretSteps::Calls calls)
{
    outliveEveryBus();
    const GLibCalls::Start start = [](GCancellable *stop, GAsyncReadyCallback done, gpointer data) {
        g_bus_get(G_BUS_TYPE_SESSION, stop, done, data);
    };
    const auto result = co_await answered(calls, KeychainLinux::ServiceLimit, start);
    ErrorSlot error;
    std::shared_ptr<GDBusConnection> bus(g_bus_get_finish(result.get(), error.out()),
                                         GLibRelease());
    error.throwIfSet();
    // On a closed bus, libsecret would report the missing response as "nothing found".
    if (g_dbus_connection_is_closed(bus.get()))
        throw KeychainRefusal(KeychainLinux::Absent);
    co_return bus;
}

} // namespace

QCoro::Task<SecretSteps::Service> SecretSteps::open(Calls calls)
{
    const auto bus = co_await openBus(calls);
    const GLibCalls::Start start = [](GCancellable *stop, GAsyncReadyCallback done, gpointer data) {
        secret_service_open(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, stop, done,
                            data);
    };
    const auto result = co_await answered(calls, KeychainLinux::ServiceLimit, start);
    ErrorSlot error;
    Service service(secret_service_open_finish(result.get(), error.out()), GLibRelease());
    error.throwIfSet();
    co_return service;
}

QCoro::Task<SecretSteps::Items> SecretSteps::find(Calls calls, Service service, QString account)
{
    const auto attributes = attributesOf(account);
    const GLibCalls::Start start = [=](GCancellable *stop, GAsyncReadyCallback done,
                                       gpointer data) {
        secret_service_search(service.get(), &anySchema(), attributes.get(), SECRET_SEARCH_ALL,
                              stop, done, data);
    };
    const auto result = co_await answered(calls, KeychainLinux::ServiceLimit, start);
    ErrorSlot error;
    GList *const found = secret_service_search_finish(service.get(), result.get(), error.out());
    error.throwIfSet();
    Items items;
    for (const GList *entry = found; entry; entry = entry->next)
        items.emplace_back(SECRET_ITEM(entry->data),
                           [](SecretItem *item) { g_object_unref(item); });
    g_list_free(found);
    std::ranges::partition(items, std::not_fn(isLocked));
    co_return items;
}

QCoro::Task<> SecretSteps::unlock(Calls calls, Service service, Items items)
{
    std::erase_if(items, std::not_fn(isLocked));
    if (items.empty())
        co_return;
    const GLibCalls::Start start = [=](GCancellable *stop, GAsyncReadyCallback done,
                                       gpointer data) {
        GList *objects = nullptr;
        for (const Item &item : items)
            objects = g_list_append(objects, item.get());
        secret_service_unlock(service.get(), objects, stop, done, data);
        g_list_free(objects);
    };
    const auto result = co_await answered(calls, KeychainLinux::PromptLimit, start);
    ErrorSlot error;
    const int unlocked =
        secret_service_unlock_finish(service.get(), result.get(), nullptr, error.out());
    error.throwIfSet();
    if (unlocked < int(items.size()))
        throw KeychainRefusal(KeychainLinux::Locked);
}

QCoro::Task<QByteArray> SecretSteps::secretOf(Calls calls, Item item)
{
    const GLibCalls::Start start = [=](GCancellable *stop, GAsyncReadyCallback done,
                                       gpointer data) {
        secret_item_load_secret(item.get(), stop, done, data);
    };
    const auto result = co_await answered(calls, KeychainLinux::ServiceLimit, start);
    ErrorSlot error;
    secret_item_load_secret_finish(item.get(), result.get(), error.out());
    error.throwIfSet();
    const std::shared_ptr<SecretValue> value(secret_item_get_secret(item.get()),
                                             [](SecretValue *held) {
                                                 if (held)
                                                     secret_value_unref(held);
                                             });
    gsize length = 0;
    const gchar *bytes = value ? secret_value_get(value.get(), &length) : nullptr;
    co_return QByteArray(bytes, qsizetype(length));
}

QCoro::Task<> SecretSteps::erase(Calls calls, Item item)
{
    const GLibCalls::Start start = [=](GCancellable *stop, GAsyncReadyCallback done,
                                       gpointer data) {
        secret_item_delete(item.get(), stop, done, data);
    };
    const auto result = co_await answered(calls, KeychainLinux::PromptLimit, start);
    ErrorSlot error;
    const bool isErased = secret_item_delete_finish(item.get(), result.get(), error.out());
    error.throwIfSet();
    // No error and no deletion mean that the user refused the desktop's request.
    if (!isErased)
        throw KeychainRefusal(KeychainLinux::Locked);
}

QCoro::Task<> SecretSteps::store(Calls calls, Service service, QString account, QByteArray secret)
{
    const auto attributes = attributesOf(account);
    const QByteArray label = Keychain::label(account).toUtf8();
    const std::shared_ptr<SecretValue> value(
        secret_value_new(secret.constData(), secret.size(), "text/plain"), secret_value_unref);
    const GLibCalls::Start start = [=](GCancellable *stop, GAsyncReadyCallback done,
                                       gpointer data) {
        secret_service_store(service.get(), &schema(), attributes.get(), SECRET_COLLECTION_DEFAULT,
                             label.constData(), value.get(), stop, done, data);
    };
    const auto result = co_await answered(calls, KeychainLinux::PromptLimit, start);
    ErrorSlot error;
    const bool isStored = secret_service_store_finish(service.get(), result.get(), error.out());
    error.throwIfSet();
    // No error and no item mean that the user refused the desktop's request.
    if (!isStored)
        throw KeychainRefusal(KeychainLinux::Locked);
}
