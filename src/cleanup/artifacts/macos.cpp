#include <array>

#include "cleanup/artifacts/names.h"

namespace tidewell {

namespace {

/// Each marks the folder that holds it as a project.
constexpr std::array<std::string_view, 15> markers = {
    "package.json", "Cargo.toml",       "pubspec.yaml",    "CMakeLists.txt",   "Makefile",
    "go.mod",       "pyproject.toml",   "setup.py",        "requirements.txt", "gradlew",
    "build.gradle", "build.gradle.kts", "settings.gradle", "mix.exs",          "Package.swift",
};

/// Folders directly in the home folder that hold no projects.
constexpr std::array<std::string_view, 7> skippedInHome = {
    "Library", "Applications", "Movies", "Music", "Pictures", "Public", "Sites",
};

constexpr auto notes = std::to_array<ArtifactNote>({
    {"node_modules", "JavaScript dependencies. Re-created by npm / yarn / pnpm install"},
    {"Pods", "CocoaPods dependencies. Re-created by pod install"},
    {"DerivedData", "Xcode build output. Re-created on the next build"},
    {".build", "Swift package build output. Re-created by the next build"},
    {".dart_tool", "Dart/Flutter tooling cache. Re-created by pub get"},
    {".next", "Next.js build output. Re-created by the next build"},
    {".nuxt", "Nuxt build output. Re-created by the next build"},
    {".gradle", "Gradle project cache. Re-created on the next build"},
    {".venv", "Python virtual environment. Re-created from requirements"},
    {"venv", "Python virtual environment. Re-created from requirements"},
    {"__pycache__", "Python bytecode cache. Re-created automatically"},
    {".terraform", "Terraform providers. Re-created by terraform init"},
    {"build", "Build output. Re-created by the next build"},
    {"target", "Build output. Re-created by the next build"},
});

}  // namespace

ArtifactNames macOSArtifactNames() {
    return {.besideMarker = {}, .markers = markers, .skippedInHome = skippedInHome, .notes = notes};
}

}  // namespace tidewell
