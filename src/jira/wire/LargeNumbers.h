#pragma once

#include <QByteArray>

/// The parser refuses a whole text because of one number that is too large for it, even in a member that nobody reads.
namespace LargeNumbers {

/// The same JSON text with numbers that the parser can represent: integers of more than 64 bits are marked as floating
/// point numbers, and numbers beyond the largest floating point number become the largest one. Everything else is
/// unchanged, including malformed numbers.
QByteArray bounded(const QByteArray &json);

} // namespace LargeNumbers
