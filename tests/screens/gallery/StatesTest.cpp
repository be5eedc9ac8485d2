#include "screens/Bench.h"
#include "screens/gallery/PictureDifference.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

enum State { Rest, Hovered, Pressed, Focused, Disabled };

struct Pair
{
    State first;
    State second;
};

/// Gallery rows whose control looks the same in both states of a pair, each with the reason.
const std::map<QString, QList<Pair>> reasoned{
    // A press places the caret and is shown as the focus.
    {u"champ"_s, {{Hovered, Pressed}}},
    {u"champ vide"_s, {{Hovered, Pressed}}},
    {u"champ, erreur"_s, {{Hovered, Pressed}}},
    {u"champ secret"_s, {{Hovered, Pressed}}},
    {u"recherche"_s, {{Hovered, Pressed}}},
    {u"recherche, texte"_s, {{Hovered, Pressed}}},
    {u"zone de texte"_s, {{Hovered, Pressed}}},
    {u"zone vide"_s, {{Hovered, Pressed}}},
    {u"zone, erreur"_s, {{Hovered, Pressed}}},
    // A row that is already chosen does not react to hovering.
    {u"ligne latérale, choisie"_s, {{Rest, Hovered}}},
    // A toast is never disabled.
    {u"notification"_s, {{Rest, Disabled}}},
    // The handle follows the pointer, and has a colour of its own only while the pointer is over it.
    {u"poignée"_s, {{Hovered, Pressed}, {Rest, Disabled}}},
    // A scroll bar never has the focus, because the keyboard scrolls the view that it belongs to.
    {u"défilement"_s, {{Rest, Focused}, {Rest, Disabled}}},
};

bool isReasoned(const QString &caption, Pair pair)
{
    const auto found = reasoned.find(caption);
    if (found == reasoned.end())
        return false;
    return std::ranges::any_of(found->second, [pair](const Pair &known) {
        return known.first == pair.first && known.second == pair.second;
    });
}

QList<QQuickItem *> tableRows(QQuickItem *page)
{
    QList<QQuickItem *> rows;
    for (auto *item : page->findChildren<QQuickItem *>()) {
        if (item->property("caption").isValid() && item->property("sample").isValid())
            rows += item;
    }
    return rows;
}

/// The five states of a row's control, cut out of the screenshot of the window.
QList<QImage> statesOf(const QQuickItem *row, const QImage &window)
{
    const qreal scale = row->window()->effectiveDevicePixelRatio();
    QList<QImage> states;
    for (const auto *cell : row->childItems()) {
        if (!cell->property("sample").isValid())
            continue;
        const QRectF box = cell->mapRectToScene(cell->boundingRect());
        // A focus ring begins to the left of its cell, and the shadow of the next cell's control ends inside this cell.
        const QRectF seen = box.adjusted(-6, 0, -40, 0);
        states += window.copy(QRectF(seen.topLeft() * scale, seen.size() * scale).toAlignedRect());
    }
    return states;
}

} // namespace

class GalleryStates : public testing::TestWithParam<QString>
{
};

INSTANTIATE_TEST_SUITE_P(Pages, GalleryStates, testing::Values(u"states"_s, u"fields"_s),
                         [](const auto &info) { return info.param.toStdString(); });

TEST_P(GalleryStates, EachStateOfAControlIsToldFromTheOthers)
{
    Bench bench;
    bench.setToken("motion", "reduced", true);
    bench.window().resize(930, 960);
    auto *shown = bench.show(
        u"import Velmora.Gallery\nGalleryPage { x: 24; y: 24; width: 880; height: 910; page: '%1' }"_s
            .arg(GetParam()));
    ASSERT_NE(shown, nullptr) << bench.warnings();
    bench.window().grabWindow();
    const QImage picture = bench.window().grabWindow();
    const auto rows = tableRows(shown);
    EXPECT_GT(rows.size(), 14);
    for (const auto *row : rows) {
        const QString caption = row->property("caption").toString();
        const auto states = statesOf(row, picture);
        ASSERT_EQ(states.size(), 5) << caption.toStdString();
        for (const auto pair : {Pair{Rest, Hovered}, Pair{Hovered, Pressed}, Pair{Rest, Focused},
                                Pair{Rest, Disabled}}) {
            const bool isSame =
                pictureDifference(states[pair.first], states[pair.second]).isForgiven();
            EXPECT_EQ(isSame, isReasoned(caption, pair))
                << caption.toStdString() << ": " << pair.first << " and " << pair.second;
        }
    }
}
