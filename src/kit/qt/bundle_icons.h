#pragma once

#include <QtCore/qstring.h>
#include <QtQuick/qquickimageprovider.h>

#include <string>

namespace tidewell {

/// Gives QML the icons of applications: of bundles, and pictures of an icon theme. They are read
/// and decoded in a thread of the toolkit's. A bundle without a legible icon gives one transparent
/// pixel, for which whoever shows icons shows something of its own.
class BundleIcons final : public QQuickImageProvider {
 public:
    static constexpr auto name = "bundle-icon";

    BundleIcons() : QQuickImageProvider(Image, ForceAsynchronousImageLoading) {}

    /// Under which address QML gets the icon of the bundle, or the PNG or SVG, at `path`.
    static QString address(const std::string& path);

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace tidewell
