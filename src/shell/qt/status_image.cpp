#include "shell/qt/status_image.h"

#include <QtGui/qfont.h>
#include <QtGui/qimagereader.h>
#include <QtGui/qpainter.h>
#include <QtGui/qpixmap.h>

#include "kit/qt/kit.h"
#include "kit/qt/text.h"
#include "shell/screens/menu_bar_content.h"

namespace tidewell {

namespace {

/// In points; the desktop takes what suits its scale.
constexpr int imageHeight = 18;
constexpr int largestScale = 4;

int widthOf(const QSize& image, int height) {
    return image.height() > 0 ? height * image.width() / image.height() : height;
}

QPixmap picture(const QString& file, int height) {
    QImageReader reader(file);
    reader.setScaledSize({widthOf(reader.size(), height), height});
    return QPixmap::fromImage(reader.read());
}

QPixmap symbol(int height) {
    QPixmap image(height, height);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QFont font(Kit::symbolFamilyName());
    font.setPixelSize(height);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, Kit::glyph(toText(statusItemSymbol)));
    return image;
}

}  // namespace

QIcon statusImage(const QString& file) {
    QIcon icon;
    for (int scale = 1; scale <= largestScale; ++scale) {
        const auto image = picture(file, scale * imageHeight);
        icon.addPixmap(image.isNull() ? symbol(scale * imageHeight) : image);
    }
    icon.setIsMask(true);
    return icon;
}

}  // namespace tidewell
