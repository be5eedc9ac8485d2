#pragma once

#include "simulator/JqlQuery.h"

#include <expected>

/// Reads a query; the error is for the one who wrote it. Knows the words that the program's queries are made of.
std::expected<JqlQuery, QString> parseJql(const QString &text);
