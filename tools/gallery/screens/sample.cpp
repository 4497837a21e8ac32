#include "screens/sample.h"

#include <string>

namespace tidewell::gallery {

Sample::Sample(System system) : machine(system) {
    layOutMachine();
    application = std::make_unique<Application>(
        machine.host(),
        Workspace{.openUrl = [](const std::string&) {}, .reveal = [](const std::string&) {}},
        [] {});
    view = std::make_shared<ContentView>(*application);
    view->hasOnboarded = true;
    view->theme->totalBytes = 494'384'795'648;
    view->theme->freeBytes = 182'402'719'744;
    view->theme->palette = themePalette(view->theme->freeFraction(), system);
    window = std::make_unique<MainWindow>(*application, view);
}

void Sample::layOutMachine() const {
    machine.folder("~/.cargo");
    machine.text("/Library/Application Support/com.apple.TCC/TCC.db", "");
}

}  // namespace tidewell::gallery
