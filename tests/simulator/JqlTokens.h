#pragma once

#include <QList>
#include <QString>

#include <expected>

/// A word, a text in quotes, or a sign of a query.
struct JqlToken
{
    enum class Kind { Word, Text, Sign };

    Kind kind = Kind::Word;
    /// Of a text, what the quotes and the backslashes stand for.
    QString text;

    bool isSign(QLatin1StringView sign) const { return kind == Kind::Sign && text == sign; }
    bool isWord(QLatin1StringView word) const
    {
        return kind == Kind::Word && text.compare(word, Qt::CaseInsensitive) == 0;
    }
};

std::expected<QList<JqlToken>, QString> jqlTokens(const QString &text);
