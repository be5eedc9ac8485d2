#include "model/DisplayProperties.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLatin1StringView>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Field
{
    QLatin1StringView name;
    bool DisplayProperties::*member;
};

constexpr std::array fields{
    Field{"key"_L1, &DisplayProperties::key},
    Field{"priority"_L1, &DisplayProperties::priority},
    Field{"type"_L1, &DisplayProperties::type},
    Field{"labels"_L1, &DisplayProperties::labels},
    Field{"assignee"_L1, &DisplayProperties::assignee},
    Field{"dueDate"_L1, &DisplayProperties::dueDate},
    Field{"updated"_L1, &DisplayProperties::updated},
};

} // namespace

QByteArray DisplayProperties::toJson() const
{
    QJsonObject object;
    for (const Field &field : fields)
        object.insert(field.name, this->*field.member);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<DisplayProperties> DisplayProperties::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    DisplayProperties properties;
    for (const Field &field : fields) {
        const QJsonValue value = object.value(field.name);
        if (!value.isBool())
            return std::nullopt;
        properties.*field.member = value.toBool();
    }
    return properties;
}
