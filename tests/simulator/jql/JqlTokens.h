#pragma once

#include <QList>
#include <QString>

#include <expected>

/// A word, a quoted text or an operator of a query.
struct JqlToken
{
    enum class Kind { Word, Text, Sign };

    Kind kind = Kind::Word;
    /// For a quoted text, its contents with escapes resolved.
    QString text;

    bool isSign(QLatin1StringView sign) const { return kind == Kind::Sign && text == sign; }
    bool isWord(QLatin1StringView word) const
    {
        return kind == Kind::Word && text.compare(word, Qt::CaseInsensitive) == 0;
    }
};

std::expected<QList<JqlToken>, QString> jqlTokens(const QString &text);
