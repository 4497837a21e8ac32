#pragma once

#include <string>
#include <utility>
#include <variant>

namespace tidewell::trash {

/// Why something stayed where it was.
struct Problem {
    int error = 0;         ///< what the system said; 0 if it was not the system
    std::string sentence;  ///< for the user
};

template <class Value>
using OrProblem = std::variant<Value, Problem>;

/// What the system said, in words.
Problem problemOf(int error);

inline Problem refusal(std::string sentence) {
    return {.error = 0, .sentence = std::move(sentence)};
}

}  // namespace tidewell::trash
