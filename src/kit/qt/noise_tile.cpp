#include "kit/qt/noise_tile.h"

#include <QtGui/qimage.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickimageprovider.h>

#include <cstdint>
#include <random>

namespace tidewell {

namespace {

constexpr int side = 128;  // in pixels; side * side random values
constexpr auto providerName = "noise";

QImage makeTile() {
    QImage tile(side, side, QImage::Format_Grayscale8);
    std::minstd_rand random;  // seeded alike each time, so that two pictures of a window match
    std::uniform_int_distribution<int> value(0, 255);
    for (int y = 0; y < side; ++y) {
        auto* line = tile.scanLine(y);
        for (int x = 0; x < side; ++x) line[x] = static_cast<std::uint8_t>(value(random));
    }
    return tile;
}

class NoiseProvider : public QQuickImageProvider {
 public:
    NoiseProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

    QImage requestImage(const QString&, QSize* size, const QSize&) override {
        *size = {side, side};
        return makeTile();
    }
};

}  // namespace

NoiseTile* NoiseTile::create(QQmlEngine* engine, QJSEngine*) {
    engine->addImageProvider(providerName, new NoiseProvider);
    return new NoiseTile;
}

QUrl NoiseTile::source() {
    return QUrl(QStringLiteral("image://%1/tile").arg(QLatin1String(providerName)));
}

}  // namespace tidewell
