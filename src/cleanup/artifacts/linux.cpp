#include <array>

#include "cleanup/artifacts/names.h"

namespace tidewell {

namespace {

constexpr auto besideMarker = std::to_array<std::string_view>({
    ".ruff_cache",
    ".nox",
    ".svelte-kit",
    ".godot",
    "zig-out",
    ".zig-cache",
    ".stack-work",
    "dist-newstyle",
    "cmake-build-*",
});

/// Each marks the folder that holds it as a project.
constexpr auto markers = std::to_array<std::string_view>({
    "package.json",  "Cargo.toml",       "pubspec.yaml",    "CMakeLists.txt",   "Makefile",
    "go.mod",        "pyproject.toml",   "setup.py",        "requirements.txt", "gradlew",
    "build.gradle",  "build.gradle.kts", "settings.gradle", "mix.exs",          "Package.swift",
    "pom.xml",       "build.sbt",        "build.zig",       "stack.yaml",       "cabal.project",
    "project.godot",
});

/// Folders directly in the home folder that hold no projects.
constexpr auto skippedInHome = std::to_array<std::string_view>(
    {"Applications", "Movies", "Music", "Pictures", "Public", "Sites", "snap"});

constexpr auto notes = std::to_array<ArtifactNote>({
    {"node_modules", "JavaScript dependencies. Re-created by npm / yarn / pnpm install"},
    {".dart_tool", "Dart/Flutter tooling cache. Re-created by pub get"},
    {".next", "Next.js build output. Re-created by the next build"},
    {".nuxt", "Nuxt build output. Re-created by the next build"},
    {".svelte-kit", "SvelteKit build output. Re-created by the next build"},
    {".gradle", "Gradle project cache. Re-created on the next build"},
    {".venv", "Python virtual environment. Re-created from requirements"},
    {"venv", "Python virtual environment. Re-created from requirements"},
    {"__pycache__", "Python bytecode cache. Re-created automatically"},
    {".nox", "Python test environments. Re-created by the next nox run"},
    {".ruff_cache", "Results of ruff's checks. Re-created by the next run"},
    {".terraform", "Terraform providers. Re-created by terraform init"},
    {".godot", "Godot's imported assets. Re-created when the project opens"},
    {".stack-work", "Haskell build output. Re-created by stack build"},
    {"dist-newstyle", "Haskell build output. Re-created by cabal build"},
    {"zig-out", "Zig build output. Re-created by zig build"},
    {".zig-cache", "Zig build cache. Re-created by zig build"},
    {"build", "Build output. Re-created by the next build"},
    {"target", "Build output. Re-created by the next build"},
});

}  // namespace

ArtifactNames linuxArtifactNames() {
    return {.besideMarker = besideMarker,
            .markers = markers,
            .skippedInHome = skippedInHome,
            .notes = notes};
}

}  // namespace tidewell
