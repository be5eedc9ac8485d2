#pragma once

#include "derivation/IssueDerivationInputs.h"

/// An issue with a key, a status and an update; everything else empty. The project is what stands before the dash.
Issue sampleIssue(const QString &key, const QString &statusName = QStringLiteral("À faire"));
/// The instant `minutes` after a fixed one, in UTC.
QDateTime minute(int minutes);
IssueStatus todo(const QString &name = QStringLiteral("À faire"));
IssueStatus inProgress(const QString &name = QStringLiteral("En cours"));
IssueStatus done(const QString &name = QStringLiteral("Terminé"));
JiraUser user(const QString &id, const QString &name);
Project project(const QString &key, const QString &name);
IssuePriority priority(const QString &name);
/// Inputs with the French locale and these issues.
IssueDerivationInputs inputsOf(const QList<Issue> &issues);
QStringList keysOf(const IssueList &issues);

/// Issues, filters and settings at random, the same for each seed. Texts have accents, projects share statuses, dates
/// repeat.
IssueList randomIssues(quint32 seed, int count);
IssueDerivationInputs randomInputs(quint32 seed, int count);
/// One setting of the inputs, or their issues, becomes that of others; which one, goes round with the number.
IssueDerivationInputs withOneSettingOf(IssueDerivationInputs inputs,
                                       const IssueDerivationInputs &other, quint32 which);
