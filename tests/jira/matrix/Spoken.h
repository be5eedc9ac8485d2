#pragma once

#include <QString>

#include <optional>
#include <string>

/// The text for comparison, or "(success)" if there is none. If the expected text ends with an ellipsis, only the part
/// before it is compared.
inline std::string spoken(const std::optional<QString> &text,
                          const std::optional<QString> &beginning = std::nullopt)
{
    const bool isEnough = text && beginning && beginning->endsWith(u'…') &&
                          text->size() > beginning->size() &&
                          text->startsWith(beginning->chopped(1));
    return (isEnough ? beginning : text).value_or(QStringLiteral("(success)")).toStdString();
}
