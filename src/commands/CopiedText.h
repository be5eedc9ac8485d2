#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// A text for the clipboard, and its name in the toast.
struct CopiedText
{
    QString text;
    QString label;

    /// The text of the toast, such as "Lien copié".
    QString toastMessage() const;

    bool operator==(const CopiedText &) const = default;
};

/// The keys of issues, sorted in plain text order and separated by commas; nothing if there are no keys.
std::optional<CopiedText> copiedKeys(QStringList keys);
