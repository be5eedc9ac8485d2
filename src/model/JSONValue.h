#pragma once

#include <QHashFunctions>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>
#include <variant>

/// Any JSON value. Numbers are doubles, as in JSON itself.
class JSONValue
{
public:
    using Array = QList<JSONValue>;
    using Object = QMap<QString, JSONValue>;
    struct Null
    {
        bool operator==(const Null &) const = default;
    };

    JSONValue() = default;
    JSONValue(const char16_t *text) : m_value(QString::fromUtf16(text)) {}
    JSONValue(QString text) : m_value(std::move(text)) {}
    JSONValue(double number) : m_value(number) {}
    JSONValue(int number) : m_value(double(number)) {}
    JSONValue(bool value) : m_value(value) {}
    JSONValue(Array array) : m_value(std::move(array)) {}
    JSONValue(Object object) : m_value(std::move(object)) {}

    bool isNull() const { return std::holds_alternative<Null>(m_value); }
    const QString *asString() const { return std::get_if<QString>(&m_value); }
    const double *asNumber() const { return std::get_if<double>(&m_value); }
    const bool *asBool() const { return std::get_if<bool>(&m_value); }
    const Array *asArray() const { return std::get_if<Array>(&m_value); }
    const Object *asObject() const { return std::get_if<Object>(&m_value); }

    /// The text itself, or a number in its shortest decimal form ("2", "2.5"); nothing for other kinds of value.
    std::optional<QString> string() const;
    /// The integer part of a number, or the integer that a text contains (with an optional sign); nothing otherwise.
    std::optional<qint64> integer() const;

    bool operator==(const JSONValue &other) const { return m_value == other.m_value; }

private:
    std::variant<Null, bool, double, QString, Array, Object> m_value;
};

size_t qHash(const JSONValue &value, size_t seed = 0);
