#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// A text for the pasteboard and what the toast calls it.
struct CopiedText
{
    QString text;
    QString label;

    /// "Lien copié".
    QString toastMessage() const;

    bool operator==(const CopiedText &) const = default;
};

/// The keys of issues, in plain text order and separated by commas, whatever order they come in; nothing without a key.
std::optional<CopiedText> copiedKeys(QStringList keys);
