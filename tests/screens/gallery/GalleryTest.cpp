#include "screens/Bench.h"
#include "screens/StoredPicture.h"
#include "screens/gallery/PictureDifference.h"

#include <QGuiApplication>
#include <QSet>
#include <QStyleHints>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Page
{
    QString name;
    QSize size;
};

const Page pages[]{
    {u"icons"_s, {1150, 900}}, {u"symbols"_s, {1270, 960}},  {u"states"_s, {930, 960}},
    {u"fields"_s, {930, 960}}, {u"forms"_s, {940, 680}},     {u"controls"_s, {1270, 420}},
    {u"panels"_s, {930, 680}}, {u"overlays"_s, {870, 530}},  {u"menus"_s, {870, 420}},
    {u"sheets"_s, {620, 440}}, {u"documents"_s, {960, 870}}, {u"attachments"_s, {808, 616}}};

int scale()
{
    return qRound(qGuiApp->devicePixelRatio());
}

/// All popups and overlays have finished their animations.
bool isSettled(QQuickWindow &window)
{
    for (const auto *object : window.findChildren<QObject *>()) {
        const bool isPopup = object->inherits("QQuickPopup");
        if (isPopup && object->property("visible").toBool() && !object->property("opened").toBool())
            return false;
    }
    const auto *overlay = window.property("_q_QQuickOverlay").value<QQuickItem *>();
    const auto layers = overlay ? overlay->childItems() : QList<QQuickItem *>();
    return std::all_of(layers.begin(), layers.end(),
                       [](const auto *layer) { return layer->opacity() == 1; });
}

QImage drawn(const Page &page, bool dark)
{
    Bench bench;
    bench.setToken("motion", "reduced", true);
    bench.setToken("theme", "dark", dark);
    bench.window().setColor(bench.token("theme", "content").value<QColor>());
    bench.window().resize(page.size);
    auto *shown = bench.show(
        u"import Velmora.Gallery\nGalleryPage { x: 24; y: 24; width: %1; height: %2; page: '%3' }"_s
            .arg(page.size.width() - 48)
            .arg(page.size.height() - 48)
            .arg(page.name));
    EXPECT_NE(shown, nullptr);
    bench.window().grabWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return isSettled(bench.window()); }))
        << page.name.toStdString();
    const QImage picture = bench.window().grabWindow();
    EXPECT_EQ(bench.warnings(), "") << page.name.toStdString();
    return picture.convertToFormat(QImage::Format_RGB32);
}

/// The bounding box of what is drawn in a part of a picture, without the background.
QRect inkWithin(const QImage &picture, const QRect &part)
{
    const QRgb ground = picture.pixel(0, 0);
    QRect ink;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (std::abs(qGray(picture.pixel(x, y)) - qGray(ground)) > 60)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

/// The picture with one part moved. The original position of the part is filled with the background.
QImage moved(const QImage &picture, const QRect &part, QPoint by)
{
    QImage result = picture;
    const QRgb ground = picture.pixel(0, 0);
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            result.setPixel(x, y, ground);
    }
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            result.setPixel(QPoint(x, y) + by, picture.pixel(x, y));
    }
    return result;
}

/// The comparison detects that the drawing in a part of a picture is shifted by one pixel. Directions in which the
/// drawing fills the whole part are not checked, because shifting a bar along its length changes nothing.
bool isShiftSeen(const QImage &picture, const QRect &part, const QRect &ink)
{
    const QRect room = part.adjusted(-1, -1, 1, 1);
    const QImage before = picture.copy(room);
    const QRect local = ink.translated(-room.topLeft());
    const auto isSeen = [&](QPoint by) {
        return !pictureDifference(before, moved(before, local, by)).isForgiven();
    };
    return (ink.width() == part.width() || isSeen({1, 0})) &&
           (ink.height() == part.height() || isSeen({0, 1}));
}

std::string nameOf(const std::tuple<int, bool> &param)
{
    const QString &page = pages[std::get<0>(param)].name;
    return (page + (std::get<1>(param) ? u"Dark"_s : u"Light"_s)).toStdString();
}

/// The item and its descendants that can be pressed or typed into.
QList<QQuickItem *> controlsBelow(QQuickItem *item)
{
    QList<QQuickItem *> controls;
    if (item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextField") ||
        item->inherits("QQuickTextArea") || item->activeFocusOnTab())
        controls += item;
    for (auto *child : item->childItems())
        controls += controlsBelow(child);
    return controls;
}

/// The item or an enclosing one has an accessible name. The inner field of a secret field has none on purpose.
bool isSpokenFor(QQuickItem *item)
{
    for (auto *at = item; at; at = at->parentItem()) {
        auto *accessible = QAccessible::queryAccessibleInterface(at);
        const bool isNamed = accessible && !accessible->text(QAccessible::Name).isEmpty();
        if (isNamed && accessible->role() != QAccessible::NoRole)
            return true;
        if (at->isFocusScope() && at != item)
            return false;
    }
    return false;
}

} // namespace

class GalleryPictures : public testing::TestWithParam<std::tuple<int, bool>>
{
protected:
    GalleryPictures() { QGuiApplication::styleHints()->setCursorFlashTime(0); }
};

INSTANTIATE_TEST_SUITE_P(Pages, GalleryPictures,
                         testing::Combine(testing::Range(0, int(std::size(pages))),
                                          testing::Bool()),
                         [](const auto &info) { return nameOf(info.param); });

TEST_P(GalleryPictures, LookAsTheyAreStored)
{
    const auto [index, dark] = GetParam();
    const Page &page = pages[index];
    const QImage picture = drawn(page, dark);
    EXPECT_EQ(StoredPicture(page.name, dark).differenceTo(picture), "");
}

class GalleryControls : public testing::TestWithParam<QString>
{
};

INSTANTIATE_TEST_SUITE_P(Pages, GalleryControls,
                         testing::Values(u"states"_s, u"fields"_s, u"forms"_s, u"panels"_s,
                                         u"controls"_s, u"attachments"_s),
                         [](const auto &info) { return info.param.toStdString(); });

TEST_P(GalleryControls, AllHaveANameAndARole)
{
    Bench bench;
    auto *shown = bench.show(
        u"import Velmora.Gallery\nGalleryPage { width: 1200; height: 900; page: '%1' }"_s.arg(
            GetParam()));
    ASSERT_NE(shown, nullptr);
    const auto controls = controlsBelow(shown);
    EXPECT_GT(controls.size(), 10);
    for (auto *control : controls)
        EXPECT_TRUE(isSpokenFor(control) || !control->isEnabled())
            << control->metaObject()->className();
    EXPECT_EQ(bench.warnings(), "");
}

class ReachableControls : public testing::TestWithParam<QString>
{
};

// The pages with popups are left out, because an open popup keeps the keyboard focus.
INSTANTIATE_TEST_SUITE_P(Pages, ReachableControls,
                         testing::Values(u"states"_s, u"fields"_s, u"forms"_s, u"panels"_s,
                                         u"controls"_s, u"attachments"_s),
                         [](const auto &info) { return info.param.toStdString(); });

TEST_P(ReachableControls, AreReachedByTabUnlessTheyAreDisabled)
{
    Bench bench;
    bench.window().resize(1200, 900);
    auto *shown = bench.show(
        u"import Velmora.Gallery\nGalleryPage { width: 1200; height: 900; page: '%1' }"_s.arg(
            GetParam()));
    ASSERT_NE(shown, nullptr);
    QSet<QQuickItem *> reached;
    const auto controls = controlsBelow(shown);
    for (qsizetype i = 0; i < controls.size() + 10; ++i) {
        QTest::keyClick(&bench.window(), Qt::Key_Tab);
        reached.insert(bench.window().activeFocusItem());
    }
    for (auto *control : controls) {
        const bool isWanted = control->isEnabled() && control->isVisible() &&
                              control->property("focusPolicy").toInt() != Qt::NoFocus;
        EXPECT_TRUE(!isWanted || reached.contains(control))
            << control->metaObject()->className() << ' '
            << control->property("accessibleName").toString().toStdString();
    }
}

class PictureShift : public testing::TestWithParam<std::tuple<int, bool>>
{
};

INSTANTIATE_TEST_SUITE_P(Pages, PictureShift,
                         testing::Combine(testing::Range(0, int(std::size(pages))),
                                          testing::Bool()),
                         [](const auto &info) { return nameOf(info.param); });

TEST_P(PictureShift, WhatMovesByOnePixelIsSeenWhereverItStands)
{
    const auto [index, dark] = GetParam();
    const QImage picture = StoredPicture(pages[index].name, dark).image();
    ASSERT_FALSE(picture.isNull());
    const int tile = 70 * scale();
    int parts = 0;
    for (int y = 1; y + tile < picture.height(); y += tile) {
        for (int x = 1; x + tile < picture.width(); x += tile) {
            const QRect place(x, y, tile, tile);
            const QRect ink = inkWithin(picture, place);
            if (ink.width() < 4 || ink.height() < 4)
                continue;
            ++parts;
            EXPECT_TRUE(isShiftSeen(picture, place, ink));
        }
    }
    EXPECT_GT(parts, 15);
}

TEST(PictureDifference, SmallestIconThatMovesByOnePixelIsSeen)
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QImage other = picture;
    // Three pixels in a line are the smallest element of the gallery pages.
    for (int i = 0; i < 3; ++i) {
        picture.setPixel(10, 10 + i, qRgb(140, 140, 140));
        other.setPixel(11, 10 + i, qRgb(140, 140, 140));
    }
    EXPECT_FALSE(pictureDifference(picture, other).isForgiven());
}

TEST(PictureDifference, PicturesOfTwoSizesDiffer)
{
    EXPECT_FALSE(pictureDifference(QImage(10, 10, QImage::Format_RGB32), QImage()).isForgiven());
    EXPECT_FALSE(pictureDifference(QImage(), QImage(10, 10, QImage::Format_RGB32)).isForgiven());
}

TEST(PictureDifference, TheFaintestFillIsSeen)
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QImage other = picture;
    // The primary colour at an opacity of 0.04 over white.
    other.fill(qRgb(246, 246, 246));
    EXPECT_FALSE(pictureDifference(picture, other).isForgiven());
}

TEST(PictureDifference, ANeighbouringShadeIsForgiven)
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(qRgb(100, 100, 100));
    QImage other = picture;
    other.fill(qRgb(105, 100, 100));
    EXPECT_TRUE(pictureDifference(picture, other).isForgiven());
}
