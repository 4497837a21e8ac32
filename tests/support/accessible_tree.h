#pragma once

#include <QtGui/qaccessible.h>
#include <QtGui/qwindow.h>

#include <functional>

namespace tidewell::test {

using AccessibleCriterion = std::function<bool(QAccessibleInterface&)>;

/// The first thing at or below `place` that assistive tools are told of, is seen and is wanted;
/// null if there is none.
inline QAccessibleInterface* findAccessible(QAccessibleInterface* place,
                                            const AccessibleCriterion& isWanted) {
    if (!place || place->state().invisible) return nullptr;
    if (isWanted(*place)) return place;
    for (int child = 0; child < place->childCount(); ++child)
        if (auto* found = findAccessible(place->child(child), isWanted)) return found;
    return nullptr;
}

inline QAccessibleInterface* findAccessible(QWindow& window, const AccessibleCriterion& isWanted) {
    return findAccessible(QAccessible::queryAccessibleInterface(&window), isWanted);
}

}  // namespace tidewell::test
