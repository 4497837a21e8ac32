#include "kit/qt/bundle_icons.h"

#include <QtCore/qbuffer.h>
#include <QtGui/qimagereader.h>

#include <algorithm>

#include "platform/icon_image.h"

namespace tidewell {

namespace {

constexpr int usualSide = 128;

QImage noIcon() {
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(Qt::transparent);
    return pixel;
}

QImage decoded(const std::string& png, int side) {
    auto bytes = QByteArray::fromStdString(png);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    reader.setScaledSize({side, side});
    return reader.read();
}

}  // namespace

QString BundleIcons::address(const std::string& path) {
    // A path is bytes, and an address would take some of them for its own.
    return "image://" + QString(name) + "/" + QByteArray::fromStdString(path).toHex();
}

QImage BundleIcons::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const auto path = QByteArray::fromHex(id.toLatin1()).toStdString();
    const auto side = requestedSize.isEmpty()
                          ? usualSide
                          : std::max(requestedSize.width(), requestedSize.height());
    const auto png = bundleIcon(path, side);
    auto icon = png ? decoded(*png, side) : QImage();
    if (icon.isNull()) icon = noIcon();
    *size = icon.size();
    return icon;
}

}  // namespace tidewell
