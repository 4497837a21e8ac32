#include "platform/posix/name_list.h"

namespace tidewell::posix {

bool NameList::hasSeveral() const {
    return packed_.find('\0') + 1 < packed_.size();
}

void NameList::add(std::string_view name) {
    packed_ += name;
    packed_ += '\0';
}

std::string NameList::takeLast() {
    packed_.pop_back();
    const auto before = packed_.rfind('\0');
    const auto begin = before == std::string::npos ? 0 : before + 1;
    auto name = packed_.substr(begin);
    packed_.resize(begin);
    return name;
}

NameList NameList::takeHalf() {
    NameList half;
    if (!hasSeveral()) return half;
    auto boundary = packed_.find('\0', packed_.size() / 2) + 1;
    const bool isInLastName = boundary == packed_.size();
    if (isInLastName) boundary = packed_.rfind('\0', packed_.size() - 2) + 1;
    half.packed_ = packed_.substr(boundary);
    packed_.resize(boundary);
    return half;
}

}  // namespace tidewell::posix
