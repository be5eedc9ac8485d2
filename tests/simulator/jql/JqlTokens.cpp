#include "simulator/jql/JqlTokens.h"

using namespace Qt::StringLiterals;

namespace {

bool isWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || u"-_./"_s.contains(character);
}

/// Reads the quoted text that begins at `at` and moves `at` past it.
std::expected<JqlToken, QString> quotedText(const QString &text, qsizetype &at)
{
    JqlToken token{.kind = JqlToken::Kind::Text};
    for (++at; at < text.size() && text[at] != u'"'; ++at) {
        if (text[at] == u'\\' && at + 1 < text.size())
            ++at;
        token.text += text[at];
    }
    if (at >= text.size())
        return std::unexpected(
            u"Erreur dans la requête JQL : le texte entre guillemets n'est pas terminé."_s);
    ++at;
    return token;
}

JqlToken word(const QString &text, qsizetype &at)
{
    const qsizetype begin = at;
    while (at < text.size() && isWordCharacter(text[at]))
        ++at;
    return {JqlToken::Kind::Word, text.sliced(begin, at - begin)};
}

JqlToken sign(const QString &text, qsizetype &at)
{
    for (const QString &two : {u"!="_s, u">="_s, u"<="_s, u"!~"_s}) {
        if (text.sliced(at).startsWith(two)) {
            at += 2;
            return {JqlToken::Kind::Sign, two};
        }
    }
    return {JqlToken::Kind::Sign, text[at++]};
}

} // namespace

std::expected<QList<JqlToken>, QString> jqlTokens(const QString &text)
{
    QList<JqlToken> tokens;
    for (qsizetype at = 0; at < text.size();) {
        if (text[at].isSpace()) {
            ++at;
        } else if (text[at] == u'"') {
            const auto quoted = quotedText(text, at);
            if (!quoted)
                return std::unexpected(quoted.error());
            tokens += *quoted;
        } else {
            tokens += isWordCharacter(text[at]) ? word(text, at) : sign(text, at);
        }
    }
    return tokens;
}
