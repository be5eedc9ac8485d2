#pragma once

#include <QStringList>

#include <functional>

/// The width of a column that holds all the keys, in logical pixels: the widest one plus 4, rounded up, between 36 and
/// 150, and 36 without keys. So the keys of one screen line up, and a long project key leaves enough width for the row.
/// `advance` measures one text.
int keyColumnWidth(const QStringList &keys, const std::function<qreal(const QString &)> &advance);
/// The same, measured in the font of keys.
int keyColumnWidth(const QStringList &keys);
