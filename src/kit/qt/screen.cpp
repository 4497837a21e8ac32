#include "kit/qt/screen.h"

#include <chrono>

namespace tidewell {

namespace {

/// One frame at 60 Hz.
constexpr auto pace = std::chrono::milliseconds(16);

}  // namespace

Screen::Screen(QObject* parent) : QObject(parent), observer_(pace, [this] { refresh(); }) {}

void Screen::refresh() {
    update();
    emit changed();
}

}  // namespace tidewell
