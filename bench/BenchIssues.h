#pragma once

#include "derivation/IssueDerivationInputs.h"

/// A fictitious issue, always the same for the same number. The issues have forty people, five statuses and dates
/// within two months.
inline Issue sample(int number)
{
    const QStringList names{QStringLiteral("À faire"), QStringLiteral("En cours"),
                            QStringLiteral("En revue"), QStringLiteral("Terminé"),
                            QStringLiteral("Staging")};
    const QStringList categories{QStringLiteral("new"), QStringLiteral("indeterminate"),
                                 QStringLiteral("indeterminate"), QStringLiteral("done"),
                                 QStringLiteral("indeterminate")};
    const int kind = number * 7 % 5;
    Issue issue;
    issue.key = QStringLiteral("WEB-") + QString::number(number);
    issue.projectKey = QStringLiteral("WEB");
    issue.summary = QStringLiteral("La recherche globale ignore les accents de la page nº ") +
                    QString::number(number * 31 % 997);
    issue.status = IssueStatus(names[kind], names[kind], categories[kind]);
    issue.priority = IssuePriority(QStringLiteral("p"), number % 3 == 0 ? QStringLiteral("High")
                                                                        : QStringLiteral("Medium"));
    const auto person = QString::number(number % 40);
    issue.assignee =
        JiraUser{person, QStringLiteral("Noam Talvère ") + person, std::nullopt, std::nullopt};
    issue.labels = {QStringLiteral("web"), QStringLiteral("été")};
    issue.updated = QDateTime::fromMSecsSinceEpoch(
        1'700'000'000'000 + qint64(number) * 7919 % 100'000 * 60'000, Qt::UTC);
    issue.created = issue.updated;
    return issue;
}

/// Inputs with the given number of issues.
inline IssueDerivationInputs samples(int count)
{
    IssueDerivationInputs inputs;
    inputs.locale = QLocale(QStringLiteral("fr_FR"));
    for (int number = 0; number < count; ++number)
        inputs.issues.append(sample(number));
    return inputs;
}
