// Only looked at, never compiled. unlink(path) in a comment is no call.

void refused(const std::string& path) {
    ::unlink(path.c_str());                                  // caught
    unlinkat(folder, "x", 0);                                // caught
    rmdir(path.c_str());                                     // caught
    std::rename(path.c_str(), "y");                          // caught
    ::renameat2(1, "x", 2, "y", 0);                          // caught
    ::renameatx_np(1, "x", 2, "y", 0);                       // caught
    std::remove(path.c_str());                               // caught
    std::filesystem::remove_all(path);                       // caught
    fs::remove(path);                                        // caught
    syscall(SYS_unlinkat, 1, "x", 0);                        // caught
    std::ofstream(path) << 1;                                // caught
    ::open(path.c_str(), O_RDONLY | O_TRUNC);                // caught
    ::mkdir(path.c_str(), 0700);                             // caught
    fs::create_directories(path);                            // caught
    std::system("rm -rf x");                                 // caught
    posix_spawn(&child, path.c_str(), nullptr, nullptr, a);  // caught
    socket(AF_INET, SOCK_STREAM, 0);                         // caught
}

void allowed(std::list<int>& list, Store& store, const char* text = "unlink(x) AF_INET") {
    list.remove(3);
    store->rename("x");
    list.erase(std::ranges::remove_if(list, isOld).begin(), list.end());
    ::open(text, O_RDONLY | O_CLOEXEC);
    removeItem(path);
}
