#pragma once

#include <string_view>

namespace tidewell::test {

/// What a target of this folder defines: reads one input, in no way trusting it. The input has been
/// survived if this returns; a promise that it broke is reported with `require`.
void readHostileInput(std::string_view bytes);

/// Ends the run with the input at hand kept as a finding.
void require(bool promise);

}  // namespace tidewell::test
