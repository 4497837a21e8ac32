#include "motion/strip.h"

#include <QtGui/qpainter.h>

#include <cstdlib>

namespace tidewell::gallery {

namespace {

constexpr int columns = 3;
constexpr int caption = 18;
constexpr int gap = 6;

double change(const QImage& before, const QImage& now) {
    double sum = 0;
    for (int y = 0; y < now.height(); ++y) {
        const auto* left = before.constScanLine(y);
        const auto* right = now.constScanLine(y);
        for (int x = 0; x < 4 * now.width(); ++x) sum += std::abs(left[x] - right[x]);
    }
    return 1000 * sum / (255.0 * 3 * now.width() * now.height());
}

}  // namespace

QImage strip(const std::vector<Frame>& frames) {
    std::vector<QImage> pictures;
    for (const auto& frame : frames)
        pictures.push_back(frame.picture.convertToFormat(QImage::Format_RGB32)
                               .scaledToWidth(560, Qt::SmoothTransformation));
    const int count = static_cast<int>(frames.size());
    const QSize cell(pictures.front().width() + gap, pictures.front().height() + caption + gap);
    QImage sheet(columns * cell.width(), (count + columns - 1) / columns * cell.height(),
                 QImage::Format_RGB32);
    sheet.fill(QColor(64, 64, 64));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int index = 0; index < count; ++index) {
        const auto at = static_cast<std::size_t>(index);
        const QPoint corner(index % columns * cell.width(), index / columns * cell.height());
        auto text = QString("%1 ms").arg(frames[at].time);
        if (index > 0)
            text += QString("   %1").arg(change(pictures[at - 1], pictures[at]), 0, 'f', 1);
        painter.drawText(corner + QPoint(4, caption - 5), text);
        painter.drawImage(corner + QPoint(0, caption), pictures[at]);
    }
    return sheet;
}

}  // namespace tidewell::gallery
