#pragma once

#include <gtest/gtest.h>

#include <functional>

namespace tidewell::test {

/// Runs the body in a new process of its own, which may change its limits, its user and its mounts.
/// The test fails if an expectation of the body does, and is skipped if the body says so. The
/// calling test runs again in that process up to this call, so nothing should stand before it.
void expectInSeparateProcess(const std::function<void()>& body);

/// For the body: ends the process, since the machine does not allow what the test needs.
[[noreturn]] void skipSeparateProcess();

/// For the body: gives up the rights of the superuser, if it has them, so that rights count.
void becomeOrdinaryUser();

/// For the body: this process may mount from now on, and nobody else sees it. False where that is
/// not allowed.
bool enterOwnMountSpace();

/// For the body: how many descriptors the process may have open.
void limitDescriptors(unsigned limit);

}  // namespace tidewell::test
