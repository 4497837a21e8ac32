#include "deepscan/disk_map_view_model.h"

#include <algorithm>
#include <chrono>
#include <mutex>
#include <utility>

#include "async/background.h"
#include "platform/path_text.h"

namespace tidewell {

namespace {

constexpr Duration noPause{0};

/// Tells of the bytes met on the main thread, and no more often than can be read.
class MetHop {
 public:
    explicit MetHop(std::weak_ptr<DiskMapViewModel> model)
        : model_(std::move(model)), executor_(Executor::main()) {}

    void operator()(ByteCount bytes) {
        constexpr auto pause = std::chrono::milliseconds(100);
        const std::unique_lock lock(mutex_, std::try_to_lock);
        const auto now = std::chrono::steady_clock::now();
        if (!lock || now < next_) return;
        next_ = now + pause;
        executor_.post([weak = model_, bytes] {
            if (const auto model = weak.lock()) model->metBytes = bytes;
        });
    }

 private:
    const std::weak_ptr<DiskMapViewModel> model_;
    Executor& executor_;
    std::mutex mutex_;
    std::chrono::steady_clock::time_point next_{};
};

}  // namespace

DiskMapViewModel::DiskMapViewModel(std::shared_ptr<DeepScanViewModel> list)
    : list_(std::move(list)), observer_(noPause, [this] { follow(); }) {
    observer_.watch(list_->willChange);
}

Task<> DiskMapViewModel::make() {
    if (phase() == Phase::mapping) co_return;
    const auto before = phase();
    phase = Phase::mapping;
    metBytes = 0;
    stop_ = {};
    try {
        auto walking = background([machine = host(), stop = stop_.get_token(),
                                   met = std::make_shared<MetHop>(weak_from_this())] {
            return mapDisk(machine, machine.home,
                           {.stop = stop, .progress = [met](ByteCount bytes) { (*met)(bytes); }});
        });
        auto made = co_await walking;
        if (stop_.stop_requested()) {
            phase = before;
            co_return;
        }
        map = std::move(made);
        gone_.clear();
        phase = Phase::map;
    } catch (...) {
        phase = before;
        throw;
    }
}

BigItem DiskMapViewModel::item(std::uint32_t node) const {
    const auto& shown = map()[node];
    const auto path = map().path(node);
    BigItem item{.id = path,
                 .name = std::string(lastPathComponent(path)),
                 .location = std::string(host().relativeToHome(parentPath(path))),
                 .sizeBytes = shown.bytes,
                 .isDirectory = shown.what == DiskMapNode::What::folder,
                 .kind = shown.verdict.kind,
                 .note = std::nullopt,
                 .reclaimCommand = std::nullopt};
    if (!shown.verdict.sentence.empty()) item.note = shown.verdict.sentence;
    return item;
}

void DiskMapViewModel::follow() {
    if (map().isEmpty()) return;
    putBackWhatCame();
    takeWhatWent();
}

/// What was moved to the Trash since the walk, from the map or from the list.
void DiskMapViewModel::takeWhatWent() {
    for (const auto& thing : list_->inTrash()) {
        if (!thing.was || std::ranges::find(gone_, thing.item, &Gone::item) != gone_.end())
            continue;
        const auto node = map().find(thing.was->path());
        if (!node || map().path(*node) != thing.was->path() || map()[*node].bytes == 0) continue;
        gone_.push_back(
            {.item = thing.item, .name = thing.name(), .taken = map.mutate().take(*node)});
    }
}

/// What is on its way is no longer in the Trash, and not back yet.
void DiskMapViewModel::putBackWhatCame() {
    const auto& back = list_->lastPutBack();
    if (!back || !back->problem.empty()) return;
    std::erase_if(gone_, [&](const Gone& gone) {
        const auto& trash = list_->inTrash();
        const bool isBack = gone.name == back->name &&
                            std::ranges::find(trash, gone.item, &TrashedThing::item) == trash.end();
        if (isBack) map.mutate().putBack(gone.taken);
        return isBack;
    });
}

}  // namespace tidewell
