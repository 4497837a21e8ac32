#pragma once

class QQmlEngine;

namespace tidewell {

/// Lets an engine find the components and screens of this program: `import Tidewell`.
void importTidewellModule(QQmlEngine& engine);

}  // namespace tidewell
