#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// One condition of a query, of the kinds that the program uses: "assignee = currentUser()", "sprint is EMPTY", "status
/// CHANGED BY currentUser() DURING (…, …)".
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
    /// Functions include their parentheses: "currentUser()".
    QStringList values;
    std::optional<QString> by;
    std::optional<std::pair<QString, QString>> during;
};

/// A single condition, or several conditions with an operator.
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
    /// Absent if the query has no condition.
    std::optional<JqlTerm> where;
    QList<JqlOrder> order;
};
