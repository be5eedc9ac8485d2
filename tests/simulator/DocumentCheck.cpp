#include "simulator/DocumentCheck.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

using Names = QSet<QString>;

Names names(const QString &blanked)
{
    const QStringList words = blanked.split(u' ');
    return {words.begin(), words.end()};
}

const Names &inlineNodes()
{
    static const Names nodes =
        names(u"text hardBreak mention emoji inlineCard date status mediaInline"_s);
    return nodes;
}

const Names &listItemNodes()
{
    static const Names nodes =
        names(u"paragraph bulletList orderedList codeBlock mediaSingle taskList"_s);
    return nodes;
}

const Names &cellNodes()
{
    static const Names nodes = names(
        u"paragraph heading bulletList orderedList codeBlock blockquote rule panel mediaSingle "
        "mediaGroup taskList decisionList blockCard nestedExpand"_s);
    return nodes;
}

const Names &blockNodes()
{
    static const Names nodes = cellNodes() + names(u"table expand embedCard"_s);
    return nodes;
}

/// The kinds of children that each kind of node may have.
const QHash<QString, Names> &children()
{
    static const QHash<QString, Names> table = {
        {u"doc"_s, blockNodes() - names(u"nestedExpand"_s)},
        {u"paragraph"_s, inlineNodes()},
        {u"heading"_s, inlineNodes()},
        {u"bulletList"_s, names(u"listItem"_s)},
        {u"orderedList"_s, names(u"listItem"_s)},
        {u"listItem"_s, listItemNodes()},
        {u"codeBlock"_s, names(u"text"_s)},
        {u"blockquote"_s,
         names(u"paragraph bulletList orderedList codeBlock mediaSingle mediaGroup"_s)},
        {u"panel"_s, names(u"paragraph heading bulletList orderedList codeBlock rule mediaSingle "
                           "mediaGroup taskList decisionList blockCard"_s)},
        {u"table"_s, names(u"tableRow"_s)},
        {u"tableRow"_s, names(u"tableCell tableHeader"_s)},
        {u"tableCell"_s, cellNodes()},
        {u"tableHeader"_s, cellNodes()},
        {u"mediaSingle"_s, names(u"media caption"_s)},
        {u"mediaGroup"_s, names(u"media"_s)},
        {u"caption"_s, inlineNodes()},
        {u"taskList"_s, names(u"taskItem taskList"_s)},
        {u"taskItem"_s, inlineNodes()},
        {u"decisionList"_s, names(u"decisionItem"_s)},
        {u"decisionItem"_s, inlineNodes()},
        {u"expand"_s, cellNodes()},
        {u"nestedExpand"_s, cellNodes()},
    };
    return table;
}

/// The kinds of nodes that must have at least one child.
const Names &neverEmpty()
{
    static const Names nodes =
        names(u"bulletList orderedList listItem blockquote panel table tableRow "
              "tableCell tableHeader mediaSingle mediaGroup taskList expand"_s);
    return nodes;
}

/// The attributes that are required for each kind of node.
const QHash<QString, QStringList> &neededAttributes()
{
    static const QHash<QString, QStringList> table = {
        {u"heading"_s, {u"level"_s}},       {u"panel"_s, {u"panelType"_s}},
        {u"mention"_s, {u"id"_s}},          {u"emoji"_s, {u"shortName"_s}},
        {u"date"_s, {u"timestamp"_s}},      {u"status"_s, {u"text"_s, u"color"_s}},
        {u"media"_s, {u"id"_s, u"type"_s}}, {u"taskItem"_s, {u"localId"_s, u"state"_s}},
        {u"taskList"_s, {u"localId"_s}},
    };
    return table;
}

const Names &marks()
{
    static const Names known =
        names(u"strong em code strike underline link subsup textColor "
              "backgroundColor annotation border alignment indentation breakout"_s);
    return known;
}

QString named(const QString &type, const QString &fault)
{
    return u"%1 : %2"_s.arg(type, fault);
}

std::optional<QString> faultOfMarks(const QString &type, const QJsonArray &found)
{
    Names kinds;
    for (const QJsonValue mark : found)
        kinds += mark["type"_L1].toString();
    if (!(kinds - marks()).isEmpty() || kinds.size() != found.size())
        return named(type, u"marque inconnue ou répétée"_s);
    if (kinds.contains(u"code"_s) && !(kinds - names(u"code link annotation"_s)).isEmpty())
        return named(type, u"le code ne se combine pas"_s);
    for (const QJsonValue mark : found) {
        if (mark["type"_L1] == "link"_L1 && mark["attrs"_L1]["href"_L1].toString().isEmpty())
            return named(type, u"lien sans adresse"_s);
    }
    return {};
}

std::optional<QString> faultOfText(const QJsonObject &node)
{
    if (node.value("text"_L1).toString().isEmpty())
        return u"text : vide"_s;
    return faultOfMarks(u"text"_s, node.value("marks"_L1).toArray());
}

std::optional<QString> faultOfAttributes(const QString &type, const QJsonObject &node)
{
    const QJsonObject attributes = node.value("attrs"_L1).toObject();
    for (const QString &needed : neededAttributes().value(type)) {
        if (!attributes.contains(needed))
            return named(type, u"sans attribut "_s + needed);
    }
    const int level = attributes.value("level"_L1).toInt();
    if (type == "heading"_L1 && (level < 1 || level > 6))
        return named(type, u"niveau"_s);
    return {};
}

std::optional<QString> faultOfNode(const QString &type, const QJsonObject &node)
{
    if (type == "text"_L1)
        return faultOfText(node);
    if (const auto fault = faultOfAttributes(type, node))
        return fault;
    const QJsonArray content = node.value("content"_L1).toArray();
    if (content.isEmpty() && neverEmpty().contains(type))
        return named(type, u"vide"_s);
    for (const QJsonValue value : content) {
        const QJsonObject child = value.toObject();
        const QString childType = child.value("type"_L1).toString();
        if (!children().value(type).contains(childType))
            return named(type, u"ne contient pas « %1 »"_s.arg(childType));
        if (const auto fault = faultOfNode(childType, child))
            return fault;
        if (type == "codeBlock"_L1 && child.contains("marks"_L1))
            return named(type, u"texte marqué"_s);
    }
    return {};
}

} // namespace

std::optional<QString> faultOf(const QJsonValue &document)
{
    const QJsonObject root = document.toObject();
    if (root.value("type"_L1) != "doc"_L1 || root.value("version"_L1) != 1 ||
        !root.value("content"_L1).isArray())
        return u"ce n’est pas un document"_s;
    return faultOfNode(u"doc"_s, root);
}

qsizetype lengthOf(const QJsonValue &document)
{
    qsizetype length = document["text"_L1].toString().size();
    for (const QJsonValue part : document["content"_L1].toArray())
        length += lengthOf(part);
    return length;
}

QString tooLongText()
{
    return u"Le texte saisi est trop long. Il dépasse la limite autorisée de 32 767 caractères."_s;
}
