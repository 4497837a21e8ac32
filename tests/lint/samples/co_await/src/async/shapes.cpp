// Only looked at, never compiled. A "co_await {" in a comment or a text is none.

Task<int> refused(Group& group, bool early) {
    co_await background([early] { return early; });  // caught
    co_await sleepFor(Duration{3});                  // caught
    auto pair = co_await read({1, 2});               // caught
    auto value = early ? co_await first() : 2;       // caught
    auto other = co_await first() ? 1 : 2;           // caught
    Plain plain{1, co_await second()};               // caught
    Plain named = {.one = co_await second()};        // caught
    Plain alone{co_await second()};                  // caught
    use(co_await second());                          // caught
    auto sum = co_await first() + rows[0];           // caught
    if (co_await check(Plain{1})) return;            // caught
    auto result =
        co_await call(1, [] { return 2; });  // caught
    co_return Plain{
        .one = 1,
        .two = co_await second(),  // caught
    };
}

Task<int> allowed(Group& group, std::shared_ptr<Object> kept) {
    co_await sleepFor(900ms);
    auto value = co_await walk;
    const std::vector<int>& rows = co_await read(1, std::move(value));
    const auto [first, second] = co_await both();
    kept->total += co_await group.next();
    this->state = co_await scanner.run("{ ? [");
    while (group.running() > 0) co_await group.next();
    for (int turn = 0; turn < 3; ++turn) co_await nextTurn;
    if (co_await check(1)) {
        co_await first();
    } else if (const auto found = co_await check(2)) {
        co_return 1;
    }
    if (const auto found = co_await check(3); found.isGood()) use();
    while (!co_await ended()) use();
    for (const auto& row : co_await read(2)) use(row);
    for (const auto& [key, number] : co_await read(3)) use(key);
    co_await (kept.get()->*call)(std::move(given)...);
    co_return co_await last();
}

struct Awaitable {
    auto operator co_await() & { return Awaiter{this}; }
};
