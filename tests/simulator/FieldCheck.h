#pragma once

#include "simulator/Site.h"

#include <QJsonObject>
#include <QMap>

/// What is wrong with the values of an issue's fields, as someone sends them; messages by field, none when all is right.
/// A field that an edit cannot set is a fault too.
QMap<QString, QString> faultsOfFields(const Site &site, const QJsonObject &fields);
