#pragma once

#include "platform/linux/GLibCalls.h"

#include <QByteArray>
#include <QString>

#include <libsecret/secret.h>
#include <optional>

/// The steps of the operations on the Secret Service. Each fails with `KeychainRefusal`, or with `Cancelled` once the
/// calls are closed.
namespace SecretSteps {

using Calls = std::shared_ptr<GLibCalls>;
using Service = std::shared_ptr<SecretService>;
using Item = std::shared_ptr<SecretItem>;

/// Connects to the service on the session bus and opens a session for the transfer of secrets.
QCoro::Task<Service> open(Calls calls);
/// The item of the account; null if there is none. If there are several, an unlocked one is preferred.
QCoro::Task<Item> find(Calls calls, Service service, QString account);
/// Unlocks the item; the desktop asks the user if needed. Fails if the item is still locked afterwards.
QCoro::Task<> unlock(Calls calls, Service service, Item item);
/// The secret of an unlocked item.
QCoro::Task<QByteArray> secretOf(Calls calls, Item item);
/// Deletes all unlocked items of the account.
QCoro::Task<> clear(Calls calls, Service service, QString account);
/// Stores an item in the user's default collection; the desktop may ask the user.
QCoro::Task<> store(Calls calls, Service service, QString account, QByteArray secret);

} // namespace SecretSteps
