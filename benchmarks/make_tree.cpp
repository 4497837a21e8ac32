#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

namespace {

/// A folder of the tree under construction.
class Folder {
 public:
    explicit Folder(int descriptor) : descriptor_(descriptor) {
        if (descriptor < 0) fail("cannot make a folder");
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { ::close(descriptor_); }

    int makeFolder(const std::string& name) const {
        if (::mkdirat(descriptor_, name.c_str(), 0755) != 0 && errno != EEXIST) fail(name);
        return ::openat(descriptor_, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    }

    void makeFile(const std::string& name, std::size_t bytes) const {
        static const std::string content(64 * 1024, 'x');
        const int file = ::openat(descriptor_, name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        if (file < 0 || ::write(file, content.data(), bytes) != static_cast<ssize_t>(bytes))
            fail(name);
        ::close(file);
    }

    void makeLink(const std::string& file, const std::string& name) const {
        if (::linkat(descriptor_, file.c_str(), descriptor_, name.c_str(), 0) != 0) fail(name);
    }

    [[noreturn]] static void fail(const std::string& what) {
        std::perror(what.c_str());
        std::exit(1);
    }

 private:
    int descriptor_;
};

/// The same tree for the same arguments, on every machine.
class TreeMaker {
 public:
    explicit TreeMaker(long files) : left_(files) {}

    /// Packages of many small files and few large folders, as package managers leave them; some
    /// flat caches, and some long chains.
    void makePackages(const Folder& top) {
        for (int cache = 0; cache < 3; ++cache) makeFlat(top, numbered("cache", cache), left_ / 50);
        for (int chain = 0; chain < 5; ++chain) makeChain(top, numbered("chain", chain), 150, 1);
        for (int project = 0; left_ > 0; ++project) {
            const Folder folder(top.makeFolder(numbered("project", project)));
            folder.makeFile("package.json", 300);
            const Folder modules(folder.makeFolder("node_modules"));
            const int packages = 200 + below(1200);
            for (int package = 0; package < packages && left_ > 0; ++package)
                makePackage(modules, numbered("package", package), 0);
        }
    }

    /// Few folders of many files.
    void makeFlatFolders(const Folder& top) {
        constexpr int folders = 8;
        const long each = left_ / folders;
        for (int folder = 0; folder < folders; ++folder)
            makeFlat(top, numbered("flat", folder), each);
    }

    /// One folder of nearly all files, and one long chain.
    void makeExtremes(const Folder& top) {
        makeChain(top, "chain", 2000, 2);
        makeFlat(top, "wide", left_);
    }

    /// Empty files, as names of one and the same: what counts is how many there are.
    void makeManyFiles(const Folder& top) {
        for (int folder = 0; left_ > 0; ++folder)
            makeLinks(Folder(top.makeFolder(numbered("many", folder))), 1000000);
    }

    /// One folder of empty folders.
    void makeManyFolders(const Folder& top) {
        for (; left_ > 0; --left_) ::close(top.makeFolder(numbered("folder", left_)));
    }

    /// A chain of folders that each have a file and a folder with a file beside the next one: who
    /// goes down must come back to every level.
    void makeComb(const Folder& top) {
        int current = top.makeFolder("next");
        for (; left_ > 0; left_ -= entriesOfTooth) {
            const Folder folder(current);
            makeTooth(folder);
            current = folder.makeFolder("next");
        }
        ::close(current);
    }

    /// The same entries, none of them deep.
    void makeFlatComb(const Folder& top) {
        for (; left_ > 0; left_ -= entriesOfTooth)
            makeTooth(Folder(top.makeFolder(numbered("next", left_))));
    }

    /// A home folder whose files lie nearly all in what projects can make anew.
    void makeHome(const Folder& top) {
        const Folder code(top.makeFolder("Code"));
        for (int project = 0; left_ > 0; ++project) {
            const Folder folder(code.makeFolder(numbered("project", project)));
            folder.makeFile("package.json", 300);
            const Folder sources(folder.makeFolder("src"));
            for (int file = 0; file < 25; ++file) makeSmallFile(sources, file);
            const Folder output(folder.makeFolder("build"));
            makeSmallFile(output, 0);
            const Folder modules(folder.makeFolder("node_modules"));
            const long rest = left_ - 3000 - below(40000);
            for (int package = 0; left_ > std::max(rest, 0L); ++package)
                makePackage(modules, numbered("package", package), 0);
        }
    }

 private:
    static constexpr long entriesOfTooth = 4;  ///< with the next folder

    static void makeTooth(const Folder& folder) {
        folder.makeFile("file", 100);
        Folder(folder.makeFolder("side")).makeFile("file", 100);
    }

    static std::string numbered(std::string_view name, long number) {
        return std::string(name) + "-" + std::to_string(number);
    }

    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint64_t>(limit)); }

    /// A tenth are empty, most take one block, a few up to four.
    std::size_t smallSize() {
        const int kind = below(100);
        if (kind < 10) return 0;
        if (kind < 80) return static_cast<std::size_t>(1 + below(3000));
        return static_cast<std::size_t>(4097 + below(kind < 97 ? 7000 : 12000));
    }

    void makeSmallFile(const Folder& folder, long number) {
        folder.makeFile(numbered("module", number) + ".js", smallSize());
        --left_;
    }

    void makeFlat(const Folder& top, const std::string& name, long files) {
        const Folder folder(top.makeFolder(name));
        for (long file = 0; file < files; ++file) {
            folder.makeFile(std::to_string(random_()), smallSize());
            --left_;
        }
    }

    void makeLinks(const Folder& folder, long links) {
        folder.makeFile("file", 0);
        for (long link = 0; link < links && left_ > 0; ++link, --left_)
            folder.makeLink("file", numbered("link", link));
    }

    void makeChain(const Folder& top, const std::string& name, int levels, int filesInEach) {
        int current = top.makeFolder(name);
        for (int level = 0; level < levels; ++level) {
            const Folder folder(current);
            for (int file = 0; file < filesInEach; ++file) makeSmallFile(folder, file);
            current = folder.makeFolder("next");
        }
        ::close(current);
    }

    /// Many packages are small and shallow, a few are large and deep.
    void makePackage(const Folder& top, const std::string& name, int depth) {
        const Folder folder(top.makeFolder(name));
        const int files = below(below(100) < 85 ? 16 : 120);
        for (int file = 0; file < files && left_ > 0; ++file) makeSmallFile(folder, file);
        const bool isLeaf = depth > 9 || (depth > 0 && below(100) < 45);
        const int folders = isLeaf ? 0 : 1 + below(depth == 0 ? 6 : 4);
        for (int inner = 0; inner < folders && left_ > 0; ++inner)
            makePackage(folder, numbered("lib", inner), depth + 1);
    }

    long left_;
    std::mt19937_64 random_{20240229};
};

struct Shape {
    std::string_view name;
    void (TreeMaker::*make)(const Folder&);
};

constexpr std::array<Shape, 8> shapes = {{
    {"packages", &TreeMaker::makePackages},
    {"flat", &TreeMaker::makeFlatFolders},
    {"extremes", &TreeMaker::makeExtremes},
    {"home", &TreeMaker::makeHome},
    {"comb", &TreeMaker::makeComb},
    {"flat-comb", &TreeMaker::makeFlatComb},
    {"many-files", &TreeMaker::makeManyFiles},
    {"many-folders", &TreeMaker::makeManyFolders},
}};

}  // namespace

/// Makes a tree of about so many files in a new folder.
int main(int count, char** arguments) {
    const auto* shape =
        count == 4 ? std::ranges::find(shapes, arguments[1], &Shape::name) : nullptr;
    if (!shape || shape == shapes.end()) {
        std::fprintf(stderr, "Usage: make_tree SHAPE FOLDER N\nSHAPE is one of:");
        for (const auto& each : shapes)
            std::fprintf(stderr, " %.*s", static_cast<int>(each.name.size()), each.name.data());
        std::fprintf(stderr, "\n");
        return 2;
    }
    if (::mkdir(arguments[2], 0755) != 0) Folder::fail(arguments[2]);
    const Folder top(::open(arguments[2], O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    TreeMaker maker(std::atol(arguments[3]));
    (maker.*shape->make)(top);
    return 0;
}
