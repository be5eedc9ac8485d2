// Headers that most sources include; compiled once per target.
#pragma once

#include <QCoro/QCoroTask>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>
