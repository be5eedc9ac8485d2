#pragma once

#include <QHash>
#include <QString>

/// The canonical key for a known status name ("inprogress" for "en cours"). For an unknown name, the name itself
/// without leading and trailing spaces and tabs. `foldedName` must be folded.
QString statusGroupKey(const QString &foldedName);

/// Maps each canonical key to its French label.
const QHash<QString, QString> &statusLabels();
