#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// Parses an absolute address; nothing for an absent text and for a text that is not an absolute address.
std::optional<QUrl> webAddress(const std::optional<QString> &text);
