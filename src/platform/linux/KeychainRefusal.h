#pragma once

#include "platform/Keychain.h"

#include <gio/gio.h>

/// Why the Secret Service did not perform a step of an operation; used as an exception.
struct KeychainRefusal : std::exception
{
    explicit KeychainRefusal(qint32 status, QString detail = {})
        : status(status), detail(std::move(detail))
    {
    }

    qint32 status;
    /// The service's description, for a code that has no text in this program.
    QString detail;
};

/// The reason for an error of GLib, D-Bus or libsecret. A missing bus and a missing service both give `Absent`.
KeychainRefusal refusalFor(const GError &error);

/// The refusal as the result of a read; its text is a short reason.
Keychain::Failed asLookup(const KeychainRefusal &refusal);
/// The refusal as the failure of a save or a deletion; its text is a sentence that tells the user what to do.
Keychain::Failure asFailure(const KeychainRefusal &refusal);
