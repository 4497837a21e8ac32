#pragma once

#include "support/sample_machine.h"

/// Furnishes the machine with the home of somebody who works and plays on a Linux desktop:
/// something for each tool, and traps for each rule about what must stay.
void furnishLinuxDesktop(const tidewell::test::SampleMachine& machine);
