#pragma once

#include "derivation/IssueDerivationInputs.h"

/// An issue with a key, a status and an update time. All other fields are empty. The project key is the part of the
/// issue key before the dash.
Issue sampleIssue(const QString &key, const QString &statusName = QStringLiteral("À faire"));
/// The instant `minutes` after a fixed one, in UTC.
QDateTime minute(int minutes);
IssueStatus todo(const QString &name = QStringLiteral("À faire"));
IssueStatus inProgress(const QString &name = QStringLiteral("En cours"));
IssueStatus done(const QString &name = QStringLiteral("Terminé"));
JiraUser user(const QString &id, const QString &name);
Project project(const QString &key, const QString &name);
IssuePriority priority(const QString &name);
/// Inputs with the French locale and the given issues.
IssueDerivationInputs inputsOf(const QList<Issue> &issues);
QStringList keysOf(const IssueList &issues);

/// Random issues, filters and settings, always the same for one seed. Some texts have accents, some statuses belong to
/// several projects, and some dates are equal.
IssueList randomIssues(quint32 seed, int count);
IssueDerivationInputs randomInputs(quint32 seed, int count);
/// Replaces one setting, or the issues, by that of `other`. `which` selects it, modulo the number of settings.
IssueDerivationInputs withOneSettingOf(IssueDerivationInputs inputs,
                                       const IssueDerivationInputs &other, quint32 which);
