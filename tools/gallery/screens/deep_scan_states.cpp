#include "screens/findings.h"
#include "screens/maps.h"
#include "screens/states.h"

namespace tidewell::gallery {

namespace {

using Phase = DeepScanViewModel::Phase;

void find(Sample& sample) {
    findBigItems(*sample.view);
    sample.view->mode = Mode::deepScan;
}

void show(Sample& sample, DiskMap map) {
    find(sample);
    sample.view->diskMapModel->map = std::move(map);
    sample.view->diskMapModel->phase = DiskMapViewModel::Phase::map;
}

const std::vector<ScreenState> states = {
    {"deep-scan-start", [](Sample& sample) { sample.view->mode = Mode::deepScan; }},
    {"deep-scan-scanning",
     [](Sample& sample) {
         sample.view->deepScanModel->phase = Phase::scanning;
         sample.view->deepScanModel->scanProgress = 0.43;
         sample.view->mode = Mode::deepScan;
     }},
    {"deep-scan-nothing",
     [](Sample& sample) {
         sample.view->deepScanModel->phase = Phase::list;
         sample.view->mode = Mode::deepScan;
     }},
    {"deep-scan-safe", find},
    {"deep-scan-containers", find, "Containers & VMs"},
    {"deep-scan-left-out",
     [](Sample& sample) {
         find(sample);
         sample.view->deepScanModel->leftOut = someLeftOut();
     }},
    {"deep-scan-moved",
     [](Sample& sample) {
         find(sample);
         sample.view->deepScanModel->lastResult = BigItemScanner::TrashOutcome{
             .name = "com.example.Browser", .freedBytes = 2'870'000'000, .success = true};
     },
     "Your stuff"},
    {"deep-scan-not-moved",
     [](Sample& sample) {
         find(sample);
         sample.view->deepScanModel->lastResult = BigItemScanner::TrashOutcome{
             .name = "Install Studio.dmg", .freedBytes = 0, .success = false};
     }},
    {"deep-scan-trash",
     [](Sample& sample) {
         find(sample);
         sample.view->deepScanModel->inTrash = someTrash();
     },
     "In the Trash", System::linux},
    {"deep-scan-asks",
     [](Sample& sample) {
         find(sample);
         std::erase_if(sample.view->deepScanModel->items.mutate(),
                       [](const BigItem& item) { return item.kind != BigItem::Kind::personal; });
     },
     "Move Holiday 2019 to Trash"},
    {"map", [](Sample& sample) { show(sample, busyHome(sample.system())); }, "Map"},
    {"map-empty", [](Sample& sample) { show(sample, emptyHome()); }, "Map"},
    {"map-one-file", [](Sample& sample) { show(sample, homeOfOneFile()); }, "Map"},
    {"map-crowded", [](Sample& sample) { show(sample, crowdedHome()); }, "Map"},
    {"map-deep", [](Sample& sample) { show(sample, deepHome()); }, "Map"},
    {"map-unread", [](Sample& sample) { show(sample, homeThatCannotBeRead()); }, "Map"},
    {"map-mapping",
     [](Sample& sample) {
         find(sample);
         sample.view->diskMapModel->phase = DiskMapViewModel::Phase::mapping;
         sample.view->diskMapModel->metBytes = 48'300'000'000;
     },
     "Map"},
    {"map-folder", [](Sample& sample) { show(sample, busyHome(sample.system())); }, "Map > Code"},
    {"map-filter", [](Sample& sample) { show(sample, busyHome(sample.system())); }, "Map > Can go"},
};

}  // namespace

std::vector<ScreenState> deepScanStates() {
    return states;
}

}  // namespace tidewell::gallery
