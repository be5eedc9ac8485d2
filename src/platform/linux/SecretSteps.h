#pragma once

#include "platform/linux/GLibCalls.h"

#include <QByteArray>
#include <QString>

#include <libsecret/secret.h>
#include <vector>

/// The steps of the operations on the Secret Service. Each fails with `KeychainRefusal`, or with `Cancelled` once the
/// calls are closed.
namespace SecretSteps {

using Calls = std::shared_ptr<GLibCalls>;
using Service = std::shared_ptr<SecretService>;
using Item = std::shared_ptr<SecretItem>;
using Items = std::vector<Item>;

/// Connects to the service on the session bus and opens a session for the transfer of secrets.
QCoro::Task<Service> open(Calls calls);
/// All items of the account, the unlocked ones first.
QCoro::Task<Items> find(Calls calls, Service service, QString account);
/// Unlocks the items; the desktop asks the user if needed. Fails if one is still locked afterwards.
QCoro::Task<> unlock(Calls calls, Service service, Items items);
/// The secret of an unlocked item.
QCoro::Task<QByteArray> secretOf(Calls calls, Item item);
/// Deletes an unlocked item.
QCoro::Task<> erase(Calls calls, Item item);
/// Stores an item in the user's default collection; the desktop may ask the user.
QCoro::Task<> store(Calls calls, Service service, QString account, QByteArray secret);

} // namespace SecretSteps
