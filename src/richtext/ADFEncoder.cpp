#include "richtext/ADFCoding.h"
#include "richtext/ValidText.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

/// Appends JSON to a buffer.
class Writer
{
public:
    void write(const ADFNode &node)
    {
        m_json += "{\"type\":";
        write(node.type);
        member("text", node.text);
        member("content", node.content);
        member("marks", node.marks);
        member("attrs", node.attrs);
        member("version", node.version);
        m_json += '}';
    }

    void write(const ADFMark &mark)
    {
        m_json += "{\"type\":";
        write(mark.type);
        member("attrs", mark.attrs);
        m_json += '}';
    }

    void write(const JSONValue &value)
    {
        if (const auto *flag = value.asBool())
            m_json += *flag ? "true" : "false";
        else if (const auto *number = value.asNumber())
            write(*number);
        else if (const auto *text = value.asString())
            write(*text);
        else if (const auto *array = value.asArray())
            write(*array);
        else if (const auto *object = value.asObject())
            write(*object);
        else
            m_json += "null";
    }

    QByteArray json() && { return std::move(m_json); }

private:
    template <typename T>
    void member(const char *name, const std::optional<T> &value)
    {
        if (!value)
            return;
        m_json.append(",\"").append(name).append("\":");
        write(*value);
    }

    template <typename T>
    void write(const QList<T> &items)
    {
        m_json += '[';
        for (const T &item : items) {
            separate('[');
            write(item);
        }
        m_json += ']';
    }

    void write(const ADFAttributes &object)
    {
        m_json += '{';
        for (auto entry = object.cbegin(); entry != object.cend(); ++entry) {
            separate('{');
            write(entry.key());
            m_json += ':';
            write(entry.value());
        }
        m_json += '}';
    }

    void write(int number) { m_json += QByteArray::number(number); }

    void write(double number)
    {
        // Every integral double below this limit is exactly representable as a 64-bit integer.
        constexpr double exactBound = 9e18;
        if (!std::isfinite(number))
            m_json += "null";
        else if (number == std::trunc(number) && std::abs(number) < exactBound)
            m_json += QByteArray::number(qint64(number));
        else // An integer beyond 64 bits is decoded as a number only if it has an exponent.
            m_json += QByteArray::number(number, std::abs(number) < exactBound ? 'g' : 'e',
                                         QLocale::FloatingPointShortest);
    }

    void write(const QString &text)
    {
        m_json += '"';
        const QByteArray utf8 = validUTF8(text);
        for (auto at = utf8.cbegin(); at != utf8.cend();) {
            const auto end = std::find_if(at, utf8.cend(), isEscaped);
            m_json.append(at, end - at);
            at = end;
            if (at != utf8.cend())
                escape(*at++);
        }
        m_json += '"';
    }

    static bool isEscaped(char byte) { return uchar(byte) < 0x20 || byte == '"' || byte == '\\'; }

    void escape(char byte)
    {
        constexpr std::string_view named = "\"\\\b\f\n\r\t";
        constexpr std::string_view letters = "\"\\bfnrt";
        if (const auto found = named.find(byte); found != std::string_view::npos)
            m_json.append('\\').append(letters[found]);
        else
            m_json.append("\\u00").append(QByteArray(1, byte).toHex());
    }

    void separate(char opening)
    {
        if (!m_json.endsWith(opening))
            m_json += ',';
    }

    QByteArray m_json;
};

template <typename T>
QByteArray encoded(const T &value)
{
    Writer writer;
    writer.write(value);
    return std::move(writer).json();
}

} // namespace

QByteArray ADFCoding::encode(const ADFNode &node)
{
    return encoded(node);
}

QByteArray ADFCoding::encode(const JSONValue &value)
{
    return encoded(value);
}

JSONValue ADFCoding::jsonValueFrom(const ADFNode &node)
{
    return decodeValue(encode(node)).value_or(JSONValue());
}
