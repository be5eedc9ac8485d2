#pragma once

#include "simulator/Site.h"

#include <QJsonObject>
#include <QMap>

/// Checks the received values of an issue's fields. Returns a message for each invalid field, including fields that
/// cannot be edited; empty if all are valid.
QMap<QString, QString> faultsOfFields(const Site &site, const QJsonObject &fields);
