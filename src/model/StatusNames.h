#pragma once

#include <QHash>
#include <QString>

/// The canonical key of a status name's synonym ("inprogress" for "en cours"), or the name itself, without the spaces
/// and tabs at its ends, when no synonym is known. Expects a folded name.
QString statusGroupKey(const QString &foldedName);

/// The French label of each canonical key.
const QHash<QString, QString> &statusLabels();
