#include "screens/Bench.h"

#include <QQuickItem>
#include <QSGTextureProvider>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Component
{
    const char *type;
    QString qml;
    QAccessible::Role role;
    QString name;
};

void PrintTo(const Component &component, std::ostream *out)
{
    *out << component.type;
}

const Component components[]{
    {"AppGlyph", u"AppGlyph {}"_s, QAccessible::Graphic, u"Velmora"_s},
    {"AppText", u"AppText { text: 'Mes tickets' }"_s, QAccessible::StaticText, u"Mes tickets"_s},
    {"CheckBox", u"CheckBox { text: 'Ticket interne'; checked: true }"_s, QAccessible::CheckBox,
     u"Ticket interne"_s},
    {"DisclosureButton", u"DisclosureButton { text: 'Détails' }"_s, QAccessible::Button,
     u"Détails"_s},
    {"DueBadge", u"DueBadge { text: 'Hier'; late: true }"_s, QAccessible::StaticText,
     u"Échéance : Hier"_s},
    {"DueBadgeCompact", u"DueBadge { text: 'Hier'; compact: true }"_s, QAccessible::StaticText,
     u"Échéance : Hier"_s},
    {"GlassChip", u"GlassChip { title: 'Statut'; leading: Symbol { name: 'tag' } }"_s,
     QAccessible::Button, u"Statut"_s},
    {"IconButton", u"IconButton { name: 'Ajouter'; symbol: 'plus' }"_s, QAccessible::Button,
     u"Ajouter"_s},
    {"IconButtonGlass", u"IconButton { name: 'Ajouter'; symbol: 'plus'; look: IconButton.Glass }"_s,
     QAccessible::Button, u"Ajouter"_s},
    {"IconButtonProminent",
     u"IconButton { name: 'Ajouter'; symbol: 'plus'; look: IconButton.Prominent }"_s,
     QAccessible::Button, u"Ajouter"_s},
    {"InputField", u"InputField { name: 'Adresse'; placeholderText: 'mon-equipe' }"_s,
     QAccessible::EditableText, u"Adresse"_s},
    {"KeyCap", u"KeyCap { text: 'Ctrl+K' }"_s, QAccessible::StaticText, u"Ctrl+K"_s},
    {"LabelChip", u"LabelChip { name: 'ios' }"_s, QAccessible::StaticText, u"ios"_s},
    {"LabelDot", u"LabelDot { name: 'ios' }"_s, QAccessible::Graphic, u"ios"_s},
    {"MenuPicker", u"MenuPicker { name: 'Trier par'; choices: ['Clé', 'Priorité']; current: 1 }"_s,
     QAccessible::ComboBox, u"Trier par"_s},
    {"OverlayScrollBar", u"OverlayScrollBar { size: 0.5; height: 200; orientation: Qt.Vertical }"_s,
     QAccessible::ScrollBar, u"Défilement vertical"_s},
    {"PopupMenuItem", u"PopupMenuItem { text: 'Copier la clé'; symbol: 'number' }"_s,
     QAccessible::MenuItem, u"Copier la clé"_s},
    {"PriorityIcon", u"PriorityIcon { level: Model.PriorityLevel.High }"_s, QAccessible::Graphic,
     u"Haute"_s},
    {"ProgressBar", u"ProgressBar { name: 'Téléchargement'; value: 0.4 }"_s,
     QAccessible::ProgressBar, u"Téléchargement"_s},
    {"PushButton", u"PushButton { text: 'Créer' }"_s, QAccessible::Button, u"Créer"_s},
    {"PushButtonPlain", u"PushButton { text: 'Créer'; look: PushButton.Plain }"_s,
     QAccessible::Button, u"Créer"_s},
    {"PushButtonProminent",
     u"PushButton { text: 'Créer'; symbol: 'plus'; look: PushButton.Prominent; large: true }"_s,
     QAccessible::Button, u"Créer"_s},
    {"PushButtonDestructive",
     u"PushButton { text: 'Supprimer'; look: PushButton.Prominent; destructive: true }"_s,
     QAccessible::Button, u"Supprimer"_s},
    {"SearchField", u"SearchField { name: 'Filtrer'; placeholderText: 'Filtrer' }"_s,
     QAccessible::EditableText, u"Filtrer"_s},
    {"SecureField", u"SecureField { name: 'Token API'; placeholderText: 'Token' }"_s,
     QAccessible::EditableText, u"Token API"_s},
    {"SidebarRow",
     u"SidebarRow { text: 'Mes tickets'; symbol: 'tray.full'; count: '7'; selected: true; width: 200 }"_s,
     QAccessible::Button, u"Mes tickets, 7"_s},
    {"SkeletonPulse", u"SkeletonPulse { width: 100; SkeletonBar { width: 100 } }"_s,
     QAccessible::Indicator, u"Chargement…"_s},
    {"Spinner", u"Spinner {}"_s, QAccessible::Animation, u"Chargement…"_s},
    {"SplitHandle",
     u"SplitHandle { name: 'Largeur'; value: 240; minimum: 200; maximum: 300; standard: 240; height: 100 }"_s,
     QAccessible::Splitter, u"Largeur"_s},
    {"Symbol", u"Symbol { name: 'lock.fill'; meaning: 'Note interne' }"_s, QAccessible::Graphic,
     u"Note interne"_s},
    {"ToastCard", u"ToastCard { message: 'Lien copié'; symbol: 'link'; isError: false }"_s,
     QAccessible::Notification, u"Lien copié"_s},
    {"ToggleSwitch", u"ToggleSwitch { name: 'Afficher'; checked: true }"_s, QAccessible::CheckBox,
     u"Afficher"_s},
    {"ToolbarCell", u"ToolbarCell { name: 'Liste'; symbol: 'list.bullet'; on: true }"_s,
     QAccessible::Button, u"Liste"_s},
};

const QString silent[]{
    u"GlassPanel { width: 200; height: 100 }"_s,
    u"GlassCapsule { width: 100 }"_s,
    u"GlassFrame { width: 50; height: 50; radius: 8; shadow: 'sheet' }"_s,
    u"FocusRing { shown: true; corner: 8 }"_s,
    u"HoverFill { shown: true }"_s,
    u"SkeletonBar { width: 100 }"_s,
    u"PopupMenuSeparator {}"_s,
    u"InputArea { name: 'Description'; problem: 'Trop long'; enabled: false; text: 'Un texte' }"_s,
    u"Item { property issueStatus s; StatusIcon { status: parent.s } }"_s,
    u"Item { property issueType t; TypeIcon { type: parent.t } }"_s,
    u"Item { property project p; ProjectBadge { project: parent.p } }"_s,
    u"Item { property jiraUser u; Avatar { user: parent.u; hasUser: true } Avatar { user: parent.u; hasUser: false } }"_s,
};

} // namespace

class EveryComponent : public testing::TestWithParam<Component>
{
};

INSTANTIATE_TEST_SUITE_P(Kit, EveryComponent, testing::ValuesIn(components),
                         [](const auto &info) { return std::string(info.param.type); });

TEST_P(EveryComponent, IsShownInBothAppearancesWithoutAWarning)
{
    for (const bool dark : {false, true}) {
        Bench bench;
        bench.setToken("theme", "dark", dark);
        auto *item = bench.show(GetParam().qml);
        ASSERT_NE(item, nullptr) << bench.warnings();
        bench.window().grabWindow();
        EXPECT_GT(item->implicitWidth() + item->width(), 0);
        EXPECT_EQ(bench.warnings(), "");
    }
}

TEST_P(EveryComponent, HasARoleAndAName)
{
    Bench bench;
    auto *item = bench.show(GetParam().qml);
    ASSERT_NE(item, nullptr);
    auto *accessible = Bench::accessible(item);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), GetParam().role);
    EXPECT_EQ(accessible->text(QAccessible::Name), GetParam().name);
}

TEST(Components, SilentOnesAreShownInBothAppearancesWithoutAWarning)
{
    for (const auto &qml : silent) {
        Bench bench;
        ASSERT_NE(bench.show(qml), nullptr) << qml.toStdString() << bench.warnings();
        bench.window().grabWindow();
        bench.setToken("theme", "dark", true);
        bench.window().grabWindow();
        EXPECT_EQ(bench.warnings(), "") << qml.toStdString();
    }
}

TEST(Components, NobodyIsCalledNonAssigne)
{
    Bench bench;
    auto *item = bench.show(
        u"Avatar { id: a; hasUser: false; user: o.u; property QtObject o: QtObject { id: o; property jiraUser u } }"_s);
    ASSERT_NE(item, nullptr) << bench.warnings();
    EXPECT_EQ(Bench::accessible(item)->text(QAccessible::Name), u"Non assigné"_s);
}

TEST(Components, IconsThatLookTheSameShareOneTexture)
{
    Bench bench;
    auto *holder =
        bench.show(u"Row { property issueStatus s; property project p; "
                   "StatusIcon { status: parent.s } StatusIcon { status: parent.s } "
                   "PriorityIcon { level: 1 } PriorityIcon { level: 1 } "
                   "ProjectBadge { project: parent.p } ProjectBadge { project: parent.p } "
                   "PriorityIcon { level: 2 } }"_s);
    ASSERT_NE(holder, nullptr) << bench.warnings();
    bench.window().grabWindow();
    QList<QSGTexture *> textures;
    for (const auto *icon : holder->childItems())
        textures += icon->textureProvider()->texture();
    ASSERT_EQ(textures.size(), 7);
    EXPECT_EQ(textures[0], textures[1]);
    EXPECT_EQ(textures[2], textures[3]);
    EXPECT_EQ(textures[4], textures[5]);
    EXPECT_EQ(QSet<QSGTexture *>(textures.begin(), textures.end()).size(), 4);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Components, GrowWithTheirText)
{
    const std::pair<QString, QString> texts[]{
        {u"PushButton { text: '%1' }"_s, u"Créer"_s},
        {u"LabelChip { name: '%1' }"_s, u"ios"_s},
        {u"DueBadge { text: '%1' }"_s, u"Hier"_s},
        {u"KeyCap { text: '%1' }"_s, u"Ctrl+K"_s},
        {u"AppText { text: '%1' }"_s, u"Titre"_s},
        {u"PopupMenuItem { text: '%1' }"_s, u"Copier"_s},
        {u"ToastCard { symbol: 'link'; isError: false; message: '%1' }"_s, u"Copié"_s},
        {u"GlassChip { title: '%1' }"_s, u"Statut"_s},
        {u"CheckBox { text: '%1' }"_s, u"Interne"_s},
        {u"DisclosureButton { text: '%1' }"_s, u"Détails"_s},
        {u"MenuPicker { name: 'Trier'; choices: ['%1']; current: 0 }"_s, u"Clé"_s},
    };
    for (const auto &[qml, text] : texts) {
        Bench bench;
        const qreal narrow = bench.show(qml.arg(text))->implicitWidth();
        const qreal wide = bench.show(qml.arg(text + u" et encore"_s))->implicitWidth();
        EXPECT_GT(wide, narrow + 30) << qml.toStdString();
    }
}

TEST(Components, HaveTheHeightsOfTheMetrics)
{
    const std::pair<QString, qreal> heights[]{
        {u"LabelChip { name: 'ios' }"_s, 19},
        {u"DueBadge { text: 'Hier' }"_s, 19},
        {u"KeyCap { text: '1' }"_s, 18},
        {u"PushButton { text: 'Créer' }"_s, 30},
        {u"PushButton { text: 'Créer'; large: true }"_s, 40},
        {u"SearchField { name: 'Filtrer' }"_s, 32},
        {u"SidebarRow { text: 'Mes tickets' }"_s, 30},
        {u"ToastCard { message: 'Copié'; symbol: 'link'; isError: false }"_s, 38},
        {u"PopupMenuItem { text: 'Copier' }"_s, 26},
        {u"AppText { text: 'Titre' }"_s, 18},
        {u"AppText { text: 'Titre'; role: TypeScale.Title1 }"_s, 28},
        {u"AppText { text: 'Un texte long'; width: 20; wrapMode: Text.Wrap; maximumLineCount: 2 }"_s,
         36},
        {u"Symbol { name: 'plus'; size: 13 }"_s, 15},
        {u"IconButton { name: 'Ajouter'; symbol: 'plus' }"_s, 22},
        {u"CheckBox { text: 'Ticket interne' }"_s, 22},
    };
    for (const auto &[qml, height] : heights) {
        Bench bench;
        auto *item = bench.show(qml);
        ASSERT_NE(item, nullptr) << qml.toStdString();
        EXPECT_DOUBLE_EQ(item->implicitHeight(), height) << qml.toStdString();
    }
}

TEST(Components, KeyCapIsAtLeastSquare)
{
    Bench bench;
    EXPECT_DOUBLE_EQ(bench.show(u"KeyCap { text: '1' }"_s)->implicitWidth(), 18);
}

TEST(Components, LongToastStopsAt460AndWraps)
{
    Bench bench;
    auto *toast = bench.show(u"ToastCard { symbol: 'link'; isError: true; message: '%1' }"_s.arg(
        u"Impossible de joindre le serveur, vérifie ta connexion. "_s.repeated(3)));
    ASSERT_NE(toast, nullptr);
    EXPECT_DOUBLE_EQ(toast->implicitWidth(), 460);
    EXPECT_GE(toast->implicitHeight(), 38 + 2 * 18);
}

TEST(Components, SymbolSaysNothingWithoutAMeaning)
{
    Bench bench;
    auto *holder = bench.show(
        u"Item { Accessible.role: Accessible.Pane; Accessible.name: 'Essai'; Symbol { name: 'plus' } }"_s);
    EXPECT_EQ(Bench::accessible(holder)->childCount(), 0);
}

TEST(Components, UnknownSymbolWarns)
{
    Bench bench;
    bench.show(u"Symbol { name: 'no.such.symbol' }"_s);
    EXPECT_TRUE(bench.warnings().find("no.such.symbol") != std::string::npos);
}
