#pragma once

#include <QString>

/// Whether a warning of Qt says nothing about the program. Every other warning makes a test of windows fail.
bool isExpectedWarning(const QString &message);
