#include "demo/DemoPicture.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSaveFile>

#include <array>

namespace {

constexpr int width = 1200;
constexpr int height = 760;
/// 96 dots per inch. The default would be that of the screen.
constexpr int dotsPerMeter = 3780;

constexpr int cardWidth = 1120;
/// The distance from the bottom of the picture to a card, and the length of the card's title.
struct Card
{
    int bottom;
    int titleWidth;
};
constexpr std::array cards{Card{470, 260}, Card{350, 330}, Card{230, 400}, Card{110, 470}};

/// Fills rectangles with round corners. Their positions are measured from the bottom left of the picture.
class Canvas
{
public:
    explicit Canvas(QImage &image) : m_painter(&image)
    {
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(Qt::NoPen);
        m_painter.translate(0, height);
        m_painter.scale(1, -1);
    }

    void fill(const QRect &area, int radius, const QColor &color)
    {
        m_painter.setBrush(color);
        m_painter.drawRoundedRect(area, radius, radius);
    }

private:
    QPainter m_painter;
};

QColor rgb(float red, float green, float blue)
{
    return QColor::fromRgbF(red, green, blue);
}

void drawWindow(Canvas &canvas)
{
    canvas.fill({0, 0, width, height}, 0, rgb(0.96F, 0.96F, 0.97F));
    canvas.fill({0, 696, width, 64}, 0, Qt::white);
    canvas.fill({28, 720, 14, 14}, 7, rgb(1.0F, 0.37F, 0.34F));
    canvas.fill({52, 720, 14, 14}, 7, rgb(1.0F, 0.74F, 0.18F));
    canvas.fill({76, 720, 14, 14}, 7, rgb(0.16F, 0.79F, 0.25F));
}

void drawBanner(Canvas &canvas, const QColor &accent)
{
    canvas.fill({40, 590, cardWidth, 70}, 14, accent);
    canvas.fill({70, 615, 420, 18}, 9, Qt::white);
}

void drawCard(Canvas &canvas, const Card &card, const QColor &accent)
{
    canvas.fill({40, card.bottom, cardWidth, 96}, 14, Qt::white);
    canvas.fill({70, card.bottom + 54, card.titleWidth, 14}, 7, rgb(0.75F, 0.76F, 0.80F));
    canvas.fill({70, card.bottom + 26, 180, 12}, 6, rgb(0.86F, 0.87F, 0.90F));
    canvas.fill({980, card.bottom + 30, 140, 36}, 10, accent);
}

void draw(QImage &image, const QColor &accent)
{
    Canvas canvas(image);
    drawWindow(canvas);
    drawBanner(canvas, accent);
    for (const Card &card : cards)
        drawCard(canvas, card, accent);
}

QImage picture(const QColor &accent)
{
    QImage image(width, height, QImage::Format_RGBA8888_Premultiplied);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    draw(image, accent);
    return image;
}

} // namespace

void DemoPicture::write(const QString &path, const QColor &accent)
{
    if (QFile::exists(path))
        return;
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && picture(accent).save(&file, "PNG"))
        file.commit();
}
