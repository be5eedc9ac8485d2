#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// The absolute address that a text spells; nothing for a text that spells none, or for no text.
std::optional<QUrl> webAddress(const std::optional<QString> &text);
