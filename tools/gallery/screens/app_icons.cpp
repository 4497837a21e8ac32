#include "screens/app_icons.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qendian.h>
#include <QtGui/qimage.h>
#include <QtGui/qpainter.h>

namespace tidewell::gallery {

namespace {

QByteArray drawnIcon(const QColor& color) {
    QImage image(128, 128, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(8, 8, 112, 112, 26, 26);
    painter.setBrush(color.lighter(150));
    painter.drawEllipse(38, 38, 52, 52);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return png;
}

QByteArray lengthOf(const QByteArray& content) {
    const auto length = qToBigEndian(static_cast<quint32>(content.size() + 8));
    return {reinterpret_cast<const char*>(&length), sizeof length};
}

}  // namespace

void lookLike(const Sample& sample, const std::string& name, const QColor& color) {
    const auto bundle = "/Applications/" + name + ".app";
    sample.machine.application(bundle, {{"CFBundleIconFile", "Icon"}});
    const auto png = drawnIcon(color);
    const auto picture = "ic07" + lengthOf(png) + png;
    sample.machine.text(bundle + "/Contents/Resources/Icon.icns",
                        ("icns" + lengthOf(picture) + picture).toStdString());
}

}  // namespace tidewell::gallery
