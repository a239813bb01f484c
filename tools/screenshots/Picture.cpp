#include "tools/screenshots/Picture.h"

#include <QHash>
#include <QVector>

#include <algorithm>
#include <utility>

namespace orvex::Screenshots {
namespace {

constexpr int paletteSize = 256;
// Of a channel: shades that nobody can tell apart share a place in the palette.
constexpr QRgb significantBits = 0xfffcfcfc;

QVector<QRgb> mostUsedColours(const QImage& picture) {
    struct Use {
        QRgb colour = 0;
        int pixels = 0;
    };
    QHash<QRgb, QHash<QRgb, int>> shades;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            ++shades[colour & significantBits][colour];
        }
    }
    QVector<Use> uses;
    for (const auto& alike : std::as_const(shades)) {
        Use use;
        int most = 0;
        for (auto shade = alike.begin(); shade != alike.end(); ++shade) {
            use.pixels += shade.value();
            if (shade.value() > most) {
                most = shade.value();
                use.colour = shade.key();
            }
        }
        uses << use;
    }
    std::sort(uses.begin(), uses.end(), [](const Use& left, const Use& right) {
        return std::pair(-left.pixels, left.colour) < std::pair(-right.pixels, right.colour);
    });
    QVector<QRgb> colours;
    for (const Use& use : uses.mid(0, paletteSize)) {
        colours << use.colour;
    }
    return colours;
}

} // namespace

bool savePicture(const QImage& picture, const QString& file) {
    const QImage opaque = picture.convertToFormat(QImage::Format_RGB32);
    const QImage indexed =
        opaque.convertToFormat(QImage::Format_Indexed8, mostUsedColours(opaque), Qt::ThresholdDither);
    constexpr int smallest = 0;
    return indexed.save(file, "PNG", smallest);
}

} // namespace orvex::Screenshots
