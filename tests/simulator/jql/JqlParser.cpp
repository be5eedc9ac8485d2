#include "simulator/jql/JqlParser.h"

#include "simulator/jql/JqlTokens.h"

using namespace Qt::StringLiterals;

namespace {

using Operator = JqlClause::Operator;

/// An error in a query; used only inside this file.
struct SyntaxError
{
    QString text;
};

/// A recursive-descent parser over the tokens, with one function for each grammar rule.
class Parser
{
public:
    explicit Parser(QList<JqlToken> tokens) : m_tokens(std::move(tokens)) {}

    JqlQuery query()
    {
        JqlQuery query;
        if (!isAtEnd() && !isWord("ORDER"_L1))
            query.where = alternatives();
        if (takeWord("ORDER"_L1)) {
            expectWord("BY"_L1);
            do
                query.order += order();
            while (takeSign(","_L1));
        }
        if (!isAtEnd())
            fail();
        return query;
    }

private:
    JqlTerm alternatives()
    {
        JqlTerm term{.kind = JqlTerm::Kind::Or, .parts = {conditions()}};
        while (takeWord("OR"_L1))
            term.parts += conditions();
        return term;
    }

    JqlTerm conditions()
    {
        JqlTerm term{.kind = JqlTerm::Kind::And, .parts = {condition()}};
        while (takeWord("AND"_L1))
            term.parts += condition();
        return term;
    }

    JqlTerm condition()
    {
        if (takeWord("NOT"_L1))
            return {.kind = JqlTerm::Kind::Not, .parts = {condition()}};
        if (takeSign("("_L1)) {
            const JqlTerm term = alternatives();
            expectSign(")"_L1);
            return term;
        }
        return {.kind = JqlTerm::Kind::Clause, .clause = clause()};
    }

    JqlClause clause()
    {
        JqlClause clause{.field = take().text.toLower()};
        clause.op = comparison();
        if (clause.op == Operator::In || clause.op == Operator::NotIn)
            clause.values = list();
        else if (clause.op != Operator::Changed)
            clause.values = {value()};
        if (clause.op == Operator::Was || clause.op == Operator::Changed)
            takePredicates(clause);
        return clause;
    }

    Operator comparison()
    {
        static const QHash<QString, Operator> signs = {
            {u"="_s, Operator::Equal},    {u"!="_s, Operator::NotEqual},
            {u"<"_s, Operator::Less},     {u"<="_s, Operator::LessOrEqual},
            {u">"_s, Operator::Greater},  {u">="_s, Operator::GreaterOrEqual},
            {u"~"_s, Operator::Contains},
        };
        const JqlToken token = take();
        if (token.kind == JqlToken::Kind::Sign && signs.contains(token.text))
            return signs.value(token.text);
        if (token.isWord("in"_L1))
            return Operator::In;
        if (token.isWord("was"_L1))
            return Operator::Was;
        if (token.isWord("changed"_L1))
            return Operator::Changed;
        if (token.isWord("is"_L1))
            return takeWord("not"_L1) ? Operator::IsNot : Operator::Is;
        if (!token.isWord("not"_L1))
            fail();
        expectWord("in"_L1);
        return Operator::NotIn;
    }

    /// A function with several values, or a list in parentheses.
    QStringList list()
    {
        if (!takeSign("("_L1))
            return {value()};
        QStringList values;
        do
            values += value();
        while (takeSign(","_L1));
        expectSign(")"_L1);
        return values;
    }

    void takePredicates(JqlClause &clause)
    {
        for (;;) {
            if (takeWord("BY"_L1)) {
                clause.by = value();
            } else if (takeWord("DURING"_L1)) {
                expectSign("("_L1);
                const QString from = value();
                expectSign(","_L1);
                clause.during = {from, value()};
                expectSign(")"_L1);
            } else {
                return;
            }
        }
    }

    QString value()
    {
        const JqlToken token = take();
        if (token.kind == JqlToken::Kind::Sign)
            fail();
        if (token.kind == JqlToken::Kind::Word && takeSign("("_L1)) {
            expectSign(")"_L1);
            return token.text + u"()"_s;
        }
        return token.text;
    }

    JqlOrder order()
    {
        JqlOrder order{.field = take().text.toLower()};
        order.isDescending = takeWord("DESC"_L1);
        if (!order.isDescending)
            takeWord("ASC"_L1);
        return order;
    }

    bool isAtEnd() const { return m_at == m_tokens.size(); }
    bool isWord(QLatin1StringView word) const { return !isAtEnd() && m_tokens[m_at].isWord(word); }

    bool takeWord(QLatin1StringView word)
    {
        const bool fits = isWord(word);
        m_at += fits ? 1 : 0;
        return fits;
    }

    bool takeSign(QLatin1StringView sign)
    {
        const bool fits = !isAtEnd() && m_tokens[m_at].isSign(sign);
        m_at += fits ? 1 : 0;
        return fits;
    }

    JqlToken take()
    {
        if (isAtEnd())
            fail();
        return m_tokens[m_at++];
    }

    void expectWord(QLatin1StringView word)
    {
        if (!takeWord(word))
            fail();
    }

    void expectSign(QLatin1StringView sign)
    {
        if (!takeSign(sign))
            fail();
    }

    [[noreturn]] void fail() const
    {
        const QString near = isAtEnd() ? u"la fin"_s : u"« %1 »"_s.arg(m_tokens[m_at].text);
        throw SyntaxError{u"Erreur dans la requête JQL, près de %1."_s.arg(near)};
    }

    QList<JqlToken> m_tokens;
    qsizetype m_at = 0;
};

} // namespace

std::expected<JqlQuery, QString> parseJql(const QString &text)
{
    const auto tokens = jqlTokens(text);
    if (!tokens)
        return std::unexpected(tokens.error());
    try {
        return Parser(*tokens).query();
    } catch (const SyntaxError &error) {
        return std::unexpected(error.text);
    }
}
