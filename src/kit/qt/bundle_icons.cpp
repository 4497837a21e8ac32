#include "kit/qt/bundle_icons.h"

#include <QtCore/qbuffer.h>
#include <QtGui/qimagereader.h>

#include <algorithm>

#include "platform/files.h"
#include "platform/icon_image.h"
#include "platform/icon_theme.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr int usualSide = 128;

QImage noIcon() {
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(Qt::transparent);
    return pixel;
}

QImage decoded(const std::string& picture, const char* format, int side) {
    auto bytes = QByteArray::fromStdString(picture);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, format);
    reader.setScaledSize({side, side});
    return reader.read();
}

/// The icon of a bundle, or a picture by itself.
QImage iconAt(const std::string& path, int side) {
    for (const auto* format : {"png", "svg"}) {
        if (pathExtension(path) != format) continue;
        const auto picture = readFile(path, themeIconLimit);
        return picture ? decoded(*picture, format, side) : QImage();
    }
    const auto png = bundleIcon(path, side);
    return png ? decoded(*png, "png", side) : QImage();
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
    auto icon = iconAt(path, side);
    if (icon.isNull()) icon = noIcon();
    *size = icon.size();
    return icon;
}

}  // namespace tidewell
