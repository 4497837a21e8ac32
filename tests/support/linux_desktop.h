#pragma once

#include "support/sample_machine.h"

namespace tidewell::test {

/// Fills a Linux machine as a few years of use do: browsers, programs made of a browser's engine,
/// games, flatpaks, snaps, IDEs, toolchains, projects, containers, installers, keys, personal
/// files, and links where following one would lose something. About 5 GB, most of it without
/// content.
void furnishLinuxDesktop(const SampleMachine& machine);

}  // namespace tidewell::test
