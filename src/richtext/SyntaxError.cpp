#include "richtext/SyntaxError.h"

using namespace Qt::StringLiterals;

namespace {

QString messageOf(simdjson::error_code error)
{
    switch (error) {
    case simdjson::EMPTY:
        return u"contenu vide"_s;
    case simdjson::UTF8_ERROR:
        return u"caractères qui ne sont pas en UTF-8"_s;
    case simdjson::DEPTH_ERROR:
        return u"imbrication trop profonde"_s;
    case simdjson::NUMBER_ERROR:
    case simdjson::NUMBER_OUT_OF_RANGE:
        return u"nombre invalide"_s;
    case simdjson::STRING_ERROR:
    case simdjson::UNESCAPED_CHARS:
    case simdjson::UNCLOSED_STRING:
        return u"texte mal formé"_s;
    case simdjson::CAPACITY:
    case simdjson::MEMALLOC:
        return u"contenu trop volumineux"_s;
    default:
        return u"JSON mal formé"_s;
    }
}

} // namespace

DecodingError syntaxError(simdjson::error_code error)
{
    return {{}, messageOf(error)};
}
