#pragma once

#include <memory>

#include "shell/qt/main_window.h"
#include "support/sample_machine.h"

namespace tidewell::gallery {

/// The whole window over an empty made-up machine: its view models hold what a state puts into
/// them, and nothing that they would do by themselves goes on. Full Disk Access is granted, the
/// disk is healthy, and the user is a developer.
class Sample {
 public:
    explicit Sample(System system);

    System system() const { return machine.host().system; }

    test::SampleMachine machine;
    std::unique_ptr<Application> application;
    std::shared_ptr<ContentView> view;
    std::unique_ptr<MainWindow> window;

 private:
    void layOutMachine() const;
};

}  // namespace tidewell::gallery
