#include "deepscan/deep_scan_view_model.h"

#include <gtest/gtest.h>

#include "deepscan/big_item_support.h"
#include "deepscan/screens/deep_scan_content.h"
#include "support/sample_machine.h"
#include "support/test_loop.h"

namespace tidewell::test {
namespace {

using Kind = BigItem::Kind;
using Phase = DeepScanViewModel::Phase;

TEST(DeepScanMerge, ListsEachPathOnceAndTheMoreExactFindingOfIt) {
    const auto walked = [](std::string path, ByteCount size) {
        return bigItem(std::move(path), Kind::other, size);
    };
    const auto merged = mergeDeepScan(
        {walked("/h/C/docker", 900), walked("/h/C/docker/x", 800), walked("/h/C/docker2", 700),
         walked("/h/D/a.dmg", 100), walked("/h/D/b", 50)},
        {bigItem("/h/D/a.dmg", Kind::installer, 100), bigItem("/h/D/c.dmg", Kind::installer, 50)},
        {bigItem("/h/C/docker/disk", Kind::container, 50)}, {"/h/C/docker", "/h/G"});
    EXPECT_EQ(idsOf(merged), (std::vector<std::string>{"/h/C/docker2", "/h/D/a.dmg", "/h/D/b",
                                                       "/h/D/c.dmg", "/h/C/docker/disk"}));
    EXPECT_EQ(merged[1].kind, Kind::installer);
}

struct DeepScan : testing::Test {
    void scan() { spawn(model, &DeepScanViewModel::scan); }
    void trash(const BigItem& target) { spawn(model, &DeepScanViewModel::trash, target); }
    void undo() { spawn(model, &DeepScanViewModel::putBack, *model->undoable()); }

    SampleMachine machine;
    TestLoop loop;
    std::shared_ptr<DeepScanViewModel> model = std::make_shared<DeepScanViewModel>(machine.host());
};

TEST_F(DeepScan, JoinsTheThreeScannersWithoutTellingRoomTwice) {
    machine.file("~/Library/Containers/com.docker.docker/Data/vms/disk", 110 * megabyte);
    machine.file("~/Library/Group Containers/group.com.docker/x", 90 * megabyte);
    machine.file("~/Library/Application Support/Docker Desktop/x", 90 * megabyte);
    machine.file("~/Downloads/Big.dmg", 100 * megabyte);
    machine.file("~/Movies/film", 90 * megabyte);
    scan();
    loop.runAll();
    EXPECT_EQ(idsOf(model->items()),
              (std::vector{machine.path("~/Library/Containers/com.docker.docker/Data/vms"),
                           machine.path("~/Downloads/Big.dmg"), machine.path("~/Movies/film")}));
    EXPECT_EQ(model->items()[1].kind, Kind::installer);
    EXPECT_EQ(model->totalBytes(), 300 * megabyte);
    EXPECT_EQ(model->scanProgress(), 1.0);
}

TEST_F(DeepScan, ScansOnceAtATimeAndKeepsTheOldListUntilTheNewOneIsIn) {
    machine.file("~/Movies/first", 90 * megabyte);
    scan();
    loop.runAll();
    trash(bigItem(machine.path("~/Movies/gone"), Kind::other));
    loop.runAll();
    ASSERT_TRUE(model->lastResult());

    machine.file("~/Movies/second", 90 * megabyte);
    scan();
    scan();
    loop.runTurns();
    EXPECT_EQ(loop.inBackground(), 1) << "a scan during a scan does nothing";
    EXPECT_EQ(model->phase(), Phase::scanning);
    EXPECT_EQ(model->scanProgress(), 0.0);
    EXPECT_FALSE(model->lastResult());
    std::vector<std::size_t> counts;
    const auto watching = model->willChange.subscribe([&] {
        if (counts.empty() || counts.back() != model->items().size())
            counts.push_back(model->items().size());
    });
    loop.runAll();
    EXPECT_EQ(counts, (std::vector<std::size_t>{1, 2})) << "in one step";
    EXPECT_EQ(model->phase(), Phase::list);
}

TEST_F(DeepScan, TakesATrashedItemOutOfTheListAndKeepsOneThatCouldNotBeMoved) {
    machine.file("~/Movies/film", 90 * megabyte);
    machine.file("~/.colima/disk", 110 * megabyte);
    scan();
    loop.runAll();
    ASSERT_EQ(model->items().size(), 2);
    const auto disk = model->items()[0];
    const auto film = model->items()[1];

    trash(disk);
    loop.runAll();
    EXPECT_EQ(model->items().size(), 2);
    EXPECT_FALSE(model->lastResult()->success);

    trash(film);
    loop.runAll();
    EXPECT_EQ(idsOf(model->items()), std::vector{disk.id});
    EXPECT_EQ(model->lastResult()->freedBytes, 90 * megabyte);
    EXPECT_TRUE(machine.has("~/.Trash/film"));
    EXPECT_EQ(model->phase(), Phase::list);

    machine.text("~/Movies/film", "in the way");
    undo();
    loop.runAll();
    EXPECT_EQ(model->lastPutBack()->problem, "Something stands there already.");
    EXPECT_EQ(idsOf(model->items()), std::vector{disk.id});
    machine.remove("~/Movies/film");
    undo();
    undo();
    loop.runAll();
    EXPECT_EQ(model->lastPutBack()->problem, "");
    EXPECT_EQ(idsOf(model->items()), (std::vector{disk.id, film.id}));
    EXPECT_TRUE(machine.has("~/Movies/film"));
    EXPECT_FALSE(machine.has("~/.Trash/film"));
    EXPECT_FALSE(model->undoable());
}

TEST(DeepScanOfALinuxMachine, TellsOfTheTrashApartAndPutsBackWhatAnyoneMovedThere) {
    const SampleMachine machine(System::linux);
    TestLoop loop;
    const auto model = std::make_shared<DeepScanViewModel>(machine.host());
    const auto end = [&](auto operation, auto... arguments) {
        spawn(model, operation, arguments...);
        loop.runAll();
    };
    machine.file("~/Videos/film", 90 * megabyte);
    machine.file("~/.local/share/Trash/files/note.2", 8192);
    machine.text("~/.local/share/Trash/info/note.2.trashinfo",
                 "[Trash Info]\nPath=" + machine.path("~/Videos/note") + "\n");
    machine.file("~/.local/share/Trash/files/stray", 4096);
    end(&DeepScanViewModel::scan);
    ASSERT_EQ(model->inTrash().size(), 2);
    end(&DeepScanViewModel::trash, model->items()[0]);
    EXPECT_EQ(model->totalBytes(), 0) << "what lies in the Trash is no big item";
    ASSERT_EQ(model->inTrash().size(), 3);

    const auto content = deepScanContent(*model, {});
    ASSERT_EQ(content.rail.size(), 1);
    EXPECT_EQ(content.rail[0].line, "3 · 94.4 MB");
    std::vector<std::string> cards;
    for (const auto& card : content.cards)
        cards.push_back(card.item.location + "|" + card.item.name + "|" +
                        (card.putBack ? card.putBack->help : card.note) +
                        (card.trashHelp ? "|may go" : ""));
    EXPECT_EQ(cards, (std::vector<std::string>{
                         "Videos|film|Put film back where it was",
                         "Videos|note|Put note back where it was",
                         "|stray|Moved to the Trash. It is not known where it came from: move it "
                         "back by hand.",
                     }));
    for (const auto& card : content.cards)
        if (card.putBack) end(&DeepScanViewModel::putBack, card.putBack->item);
    EXPECT_TRUE(machine.has("~/Videos/film") && machine.has("~/Videos/note"));
    EXPECT_EQ(model->items().size(), 1) << "what was in the list is there again";
    EXPECT_EQ(model->inTrash().size(), 1);
    EXPECT_EQ(deepScanContent(*model, {}).banner->text, "Put note back where it was.");

    machine.remove("~/.local/share/Trash/files/stray");
    end(&DeepScanViewModel::putBack, model->inTrash()[0].item);
    EXPECT_EQ(model->lastPutBack()->problem, "It is not in the Trash any more.");
    EXPECT_TRUE(model->inTrash().empty() && !model->undoable());
}

TEST_F(DeepScan, TakesLateProgressButIsNotKeptAliveByIt) {
    const auto hop = model->progressHop();
    hop(0.5);
    EXPECT_EQ(model->scanProgress(), 0.0) << "in a later turn";
    loop.runTurns();
    EXPECT_EQ(model->scanProgress(), 0.5);

    scan();
    loop.runTurns();
    const std::weak_ptr<DeepScanViewModel> watched = model;
    model.reset();
    EXPECT_FALSE(watched.expired()) << "its scan keeps it";
    loop.runAll();
    EXPECT_TRUE(watched.expired());
    hop(1.0);
    loop.runTurns();
}

}  // namespace
}  // namespace tidewell::test
