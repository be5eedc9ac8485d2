#include "jira/WebAddress.h"

std::optional<QUrl> webAddress(const std::optional<QString> &text)
{
    if (!text)
        return std::nullopt;
    const QUrl address(*text);
    return address.isValid() && !address.isRelative() ? std::optional(address) : std::nullopt;
}
