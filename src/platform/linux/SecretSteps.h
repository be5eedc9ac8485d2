#pragma once

#include "platform/linux/GLibCalls.h"

#include <QByteArray>
#include <QString>

#include <libsecret/secret.h>
#include <optional>

/// The steps that operations on the Secret Service are made of. Each fails with `KeychainRefusal`, or with `Cancelled`
/// once the calls are closed.
namespace SecretSteps {

using Calls = std::shared_ptr<GLibCalls>;
using Service = std::shared_ptr<SecretService>;
using Item = std::shared_ptr<SecretItem>;

/// The service of the session bus, with a session to carry secrets.
QCoro::Task<Service> open(Calls calls);
/// The account's item, of several rather one that is unlocked; null when there is none.
QCoro::Task<Item> find(Calls calls, Service service, QString account);
/// Has the desktop ask the user, where need be. Refused when the item is still locked then.
QCoro::Task<> unlock(Calls calls, Service service, Item item);
/// What an unlocked item holds.
QCoro::Task<QByteArray> secretOf(Calls calls, Item item);
/// Deletes all items of the account that are not locked.
QCoro::Task<> clear(Calls calls, Service service, QString account);
/// Puts an item into the collection that the user has as default; the desktop may ask the user.
QCoro::Task<> store(Calls calls, Service service, QString account, QByteArray secret);

} // namespace SecretSteps
