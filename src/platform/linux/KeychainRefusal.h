#pragma once

#include "platform/Keychain.h"

#include <gio/gio.h>

/// Why the Secret Service did not do what it was asked, on its way through the steps of an operation.
struct KeychainRefusal : std::exception
{
    explicit KeychainRefusal(qint32 status, QString detail = {})
        : status(status), detail(std::move(detail))
    {
    }

    qint32 status;
    /// What the service said, for a reason that has no words of ours.
    QString detail;
};

/// The reason that an error of GLib, D-Bus or libsecret stands for. No bus and no service are the same: absent.
KeychainRefusal refusalFor(const GError &error);

/// As the outcome of a read: the reason in a few words.
Keychain::Failed asLookup(const KeychainRefusal &refusal);
/// As the outcome of a save: a sentence with what to do about it.
Keychain::Failure asFailure(const KeychainRefusal &refusal);
