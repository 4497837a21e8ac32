#include <algorithm>
#include <map>

#include "platform/linux/application_groups.h"
#include "platform/path_text.h"

namespace tidewell::linux_system {

namespace {

using Variables = std::map<std::string, std::string, std::less<>>;

constexpr std::string_view blanks = " \t\r";
constexpr std::string_view letters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

std::string_view withoutBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// A word as a shell would end it, its quotes taken off; the rest stays in `text`.
std::string takeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    std::string word;
    char quote = 0;
    std::size_t at = 0;
    for (; at < text.size() && (quote != 0 || blanks.find(text[at]) == blanks.npos); ++at) {
        const char character = text[at];
        if (character == quote) {
            quote = 0;
        } else if (quote == 0 && (character == '"' || character == '\'')) {
            quote = character;
        } else {
            word += character;
        }
    }
    text.remove_prefix(at);
    return word;
}

/// The word with plain variables put in; `folder` stands for one whose value would have to be
/// worked out.
std::string filledIn(std::string_view word, const Variables& variables, std::string_view folder) {
    std::string text;
    while (!word.empty()) {
        if (word.front() != '$') {
            text += word.front();
            word.remove_prefix(1);
            continue;
        }
        word.remove_prefix(1);
        const bool isBraced = word.starts_with('{');
        if (isBraced) word.remove_prefix(1);
        const auto name = word.substr(0, std::min(word.find_first_not_of(letters), word.size()));
        const auto known = variables.find(name);
        text += known != variables.end() ? known->second : std::string(folder);
        const auto end = isBraced ? word.find('}') : name.size();
        word.remove_prefix(std::min(isBraced && end != word.npos ? end + 1 : end, word.size()));
    }
    return text;
}

void learnVariable(std::string_view line, Variables& variables, std::string_view folder) {
    if (line.starts_with("export ")) line.remove_prefix(7);
    const auto equals = line.find('=');
    if (equals == 0 || equals == line.npos || line.find_first_not_of(letters) != equals) return;
    auto rest = line.substr(equals + 1);
    if (rest.find('`') != rest.npos || rest.find("$(") != rest.npos) return;
    // A value is never longer than the script, however often it doubles itself.
    auto value = filledIn(takeWord(rest), variables, folder);
    if (value.size() < 4096) variables.insert_or_assign(std::string(line.substr(0, equals)), value);
}

/// The program behind "exec", its options passed over.
std::string executedWord(std::string_view line) {
    const auto at = line.starts_with("exec ") ? 0 : line.rfind(" exec ");
    if (at == line.npos) return {};
    auto rest = line.substr(line.find("exec ", at) + 5);
    auto word = takeWord(rest);
    while (word.starts_with('-')) {
        if (word == "-a") takeWord(rest);
        word = takeWord(rest);
    }
    return word;
}

}  // namespace

std::optional<std::string> programStartedBy(std::string_view script, std::string_view text) {
    if (!text.starts_with("#!")) return std::nullopt;
    const auto folder = parentPath(script);
    Variables variables;
    std::string program;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = withoutBlanks(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('#')) continue;
        learnVariable(line, variables, folder);
        if (const auto word = executedWord(line); !word.empty())
            program = filledIn(word, variables, folder);
    }
    const bool isPlace = program.find('/') != program.npos;
    const bool isRedirection = program.find_first_of("<>") != program.npos;
    if (program.empty() || isRedirection || (isPlace && !program.starts_with('/')))
        return std::nullopt;
    return isPlace ? standardizedPath(program) : program;
}

}  // namespace tidewell::linux_system
