#include "platform/Wording.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Replacement
{
    QStringView mac;
    QStringView linux;
};

/// Applied in this order: a longer text must come before a word that it contains.
constexpr std::array Replacements = {
    Replacement{u"trousseau macOS", u"trousseau du système"},
    Replacement{u"nécessite macOS", u"nécessite le système en version"},
    Replacement{u"macOS n'a pas", u"Le système n'a pas"},
    Replacement{u"puis « Toujours autoriser »", u"puis déverrouille ton trousseau"},
    Replacement{u"macOS", u"le système"},
    Replacement{u"Finder", u"gestionnaire de fichiers"},
};

struct Modifier
{
    /// The modifier signs of macOS that this modifier replaces.
    QStringView macSigns;
    QStringView name;
};

/// In the order in which French Linux desktops write the modifiers of a shortcut.
constexpr std::array Modifiers = {
    Modifier{u"⌘⌃", u"Ctrl"},
    Modifier{u"⌥", u"Alt"},
    Modifier{u"⇧", u"Maj"},
};

bool isModifierSign(QChar c)
{
    return std::ranges::any_of(Modifiers, [c](const auto &m) { return m.macSigns.contains(c); });
}

/// The names of the modifiers whose signs occur in `signs`, joined by "+".
QString modifierNames(QStringView run)
{
    QStringList names;
    for (const auto &modifier : Modifiers) {
        if (std::ranges::any_of(run, [&](QChar c) { return modifier.macSigns.contains(c); }))
            names += modifier.name.toString();
    }
    return names.join(u'+');
}

/// True if `rest` starts with the key of a shortcut. Modifiers without a key get no "+".
bool startsWithKey(QStringView rest)
{
    return !rest.isEmpty() && !rest.front().isSpace() && rest.front() != u')';
}

QString withNamedModifiers(QStringView text)
{
    QString result;
    while (!text.isEmpty()) {
        const auto end = std::ranges::find_if_not(text, isModifierSign);
        const auto length = std::distance(text.begin(), end);
        if (length == 0) {
            result += text.front();
            text = text.sliced(1);
            continue;
        }
        result += modifierNames(text.first(length));
        text = text.sliced(length);
        if (startsWithKey(text))
            result += u'+';
    }
    return result;
}

} // namespace

QString Wording::localized(const QString &macText)
{
    QString text = macText;
    for (const auto &[mac, linux] : Replacements)
        text.replace(mac.toString(), linux.toString());
    return withNamedModifiers(text);
}
