#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// One condition of a query, as far as the program asks for it: "assignee = currentUser()", "sprint is EMPTY",
/// "status CHANGED BY currentUser() DURING (…, …)".
struct JqlClause
{
    enum class Operator {
        Equal,
        NotEqual,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual,
        Contains,
        In,
        NotIn,
        Is,
        IsNot,
        Was,
        Changed,
    };

    /// In lower case.
    QString field;
    Operator op = Operator::Equal;
    /// Functions with their brackets: "currentUser()".
    QStringList values;
    std::optional<QString> by;
    std::optional<std::pair<QString, QString>> during;
};

/// A condition, or several joined.
struct JqlTerm
{
    enum class Kind { Clause, And, Or, Not };

    Kind kind = Kind::Clause;
    JqlClause clause;
    QList<JqlTerm> parts;
};

struct JqlOrder
{
    /// In lower case.
    QString field;
    bool isDescending = false;
};

/// A query in Jira's query language.
struct JqlQuery
{
    /// Nothing when the query has no condition.
    std::optional<JqlTerm> where;
    QList<JqlOrder> order;
};
