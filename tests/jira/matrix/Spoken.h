#pragma once

#include <QString>

#include <optional>
#include <string>

/// A text as people read it, "(success)" when there is none. What is expected may end with an ellipsis; then as much of
/// the text is as good as all.
inline std::string spoken(const std::optional<QString> &text,
                          const std::optional<QString> &beginning = std::nullopt)
{
    const bool isEnough = text && beginning && beginning->endsWith(u'…') &&
                          text->size() > beginning->size() &&
                          text->startsWith(beginning->chopped(1));
    return (isEnough ? beginning : text).value_or(QStringLiteral("(success)")).toStdString();
}
