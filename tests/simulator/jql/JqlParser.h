#pragma once

#include "simulator/jql/JqlQuery.h"

#include <expected>

/// Parses a query; the error is a message for the author of the query. Supports only the part of the language that the
/// program uses.
std::expected<JqlQuery, QString> parseJql(const QString &text);
