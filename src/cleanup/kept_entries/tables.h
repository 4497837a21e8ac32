#pragma once

#include "cleanup/kept_entries.h"

namespace tidewell {

extern const KeptKnowledge macOSKeptKnowledge;
extern const KeptKnowledge linuxKeptKnowledge;

}  // namespace tidewell
