#include "platform/binary_property_list.h"

#include <unicode/unistr.h>

#include <algorithm>
#include <bit>
#include <limits>

#include "platform/property_list.h"
#include "platform/value_builder.h"

// The form: the mark, the objects, a table of the objects' offsets from the start, and a trailer.
// An object is a byte of type and count, and what belongs to it; lists and dictionaries name their
// elements by number. All numbers are big-endian.

namespace tidewell {

namespace {

/// How much memory the tree may take for each byte of the list: an element of one byte in the list
/// is a whole Value in the tree, and texts that are shared in the list stand there many times.
constexpr std::size_t memoryPerByte = 64;
constexpr std::size_t memoryLimit = 8 * propertyListLimit;

/// Where the object types begin, in the upper half of the first byte of an object.
enum class Type : unsigned {
    simple = 0x0,
    integer = 0x1,
    real = 0x2,
    date = 0x3,
    data = 0x4,
    asciiText = 0x5,
    utf16Text = 0x6,
    uniqueIdentifier = 0x8,
    array = 0xA,
    set = 0xC,
    dictionary = 0xD,
};

/// At most 8 bytes as an unsigned number.
std::uint64_t bigEndian(std::string_view bytes) {
    std::uint64_t value = 0;
    for (const auto byte : bytes) value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

struct Trailer {
    static constexpr std::size_t length = 32;

    std::size_t offsetSize;
    std::size_t referenceSize;
    std::uint64_t objectCount;
    std::uint64_t topObject;
    std::uint64_t tableOffset;
};

/// Absent if its fields contradict each other or the length of the list.
std::optional<Trailer> readTrailer(std::string_view bytes) {
    if (bytes.size() < binaryPropertyListMark.size() + Trailer::length) return std::nullopt;
    const auto end = bytes.size() - Trailer::length;
    const auto field = [&](std::size_t offset, std::size_t size) {
        return bigEndian(bytes.substr(end + offset, size));
    };
    const Trailer trailer = {.offsetSize = field(6, 1),
                             .referenceSize = field(7, 1),
                             .objectCount = field(8, 8),
                             .topObject = field(16, 8),
                             .tableOffset = field(24, 8)};
    const auto fits = [](std::size_t size) { return size >= 1 && size <= sizeof(std::uint64_t); };
    if (!fits(trailer.offsetSize) || !fits(trailer.referenceSize)) return std::nullopt;
    if (trailer.tableOffset < binaryPropertyListMark.size() || trailer.tableOffset > end)
        return std::nullopt;
    if (trailer.objectCount > (end - trailer.tableOffset) / trailer.offsetSize) return std::nullopt;
    return trailer;
}

class Reader {
 public:
    Reader(std::string_view bytes, const Trailer& trailer)
        : objects_(bytes.substr(0, trailer.tableOffset)),
          offsets_(bytes.substr(trailer.tableOffset, trailer.objectCount * trailer.offsetSize)),
          trailer_(trailer),
          memory_(std::min(bytes.size() * memoryPerByte, memoryLimit)) {}

    std::optional<Value> read() { return readObject(trailer_.topObject, 0); }

 private:
    /// An object taken apart: its type, its count, and all bytes from there to the offset table.
    struct Object {
        Type type;
        std::uint64_t count;
        std::string_view rest;
    };

    std::optional<Value> readObject(std::uint64_t number, std::size_t depth) {
        auto object = findObject(number);
        if (!object) return std::nullopt;
        switch (object->type) {
            case Type::simple:
                return readSimple(object->count);
            case Type::integer:
                return readInteger(*object);
            case Type::real:
                return readReal(*object);
            case Type::date:
                return opaque(object->count == 3 && object->rest.size() >= 8);
            case Type::data:
                return opaque(readCount(*object) && object->count <= object->rest.size());
            case Type::uniqueIdentifier:
                return opaque(object->count < object->rest.size());
            case Type::asciiText:
                return readAscii(*object);
            case Type::utf16Text:
                return readUtf16(*object);
            case Type::array:
            case Type::set:
                return readArray(*object, depth + 1);
            case Type::dictionary:
                return readDictionary(*object, depth + 1);
        }
        return std::nullopt;
    }

    std::optional<Object> findObject(std::uint64_t number) const {
        if (number >= trailer_.objectCount) return std::nullopt;
        const auto offset =
            bigEndian(offsets_.substr(number * trailer_.offsetSize, trailer_.offsetSize));
        if (offset >= objects_.size()) return std::nullopt;
        const auto first = static_cast<unsigned char>(objects_[offset]);
        return Object{
            .type = Type{first / 16U}, .count = first % 16U, .rest = objects_.substr(offset + 1)};
    }

    /// A count of 15 says that the true one follows, as an integer object.
    static bool readCount(Object& object) {
        constexpr std::uint64_t countFollows = 15;
        constexpr std::size_t integerMark = 0x10;
        if (object.count != countFollows) return true;
        if (object.rest.empty()) return false;
        const auto first = static_cast<unsigned char>(object.rest.front());
        if (first < integerMark || first > integerMark + 3) return false;
        const auto length = std::size_t{1} << (first - integerMark);
        object.rest.remove_prefix(1);
        if (object.rest.size() < length) return false;
        object.count = bigEndian(object.rest.substr(0, length));
        object.rest.remove_prefix(length);
        return true;
    }

    static std::optional<Value> opaque(bool isWhole) {
        return isWhole ? std::optional<Value>(Value()) : std::nullopt;
    }

    static std::optional<Value> readSimple(std::uint64_t kind) {
        switch (kind) {
            case 0:
                return Value();
            case 8:
                return Value(false);
            case 9:
                return Value(true);
        }
        return std::nullopt;
    }

    /// 1, 2 and 4 bytes have no sign, 8 and 16 have one.
    static std::optional<Value> readInteger(const Object& object) {
        constexpr std::uint64_t largestExponent = 4;
        if (object.count > largestExponent) return std::nullopt;
        const auto length = std::size_t{1} << object.count;
        if (object.rest.size() < length) return std::nullopt;
        if (object.count < largestExponent)
            return std::bit_cast<std::int64_t>(bigEndian(object.rest.substr(0, length)));
        const auto upper = std::bit_cast<std::int64_t>(bigEndian(object.rest.substr(0, 8)));
        const auto lower = std::bit_cast<std::int64_t>(bigEndian(object.rest.substr(8, 8)));
        const auto signOfLower = lower < 0 ? -1 : 0;
        return upper == signOfLower ? Value(lower) : Value();
    }

    static std::optional<Value> readReal(const Object& object) {
        if (object.count == 2 && object.rest.size() >= 4)
            return std::bit_cast<float>(
                static_cast<std::uint32_t>(bigEndian(object.rest.substr(0, 4))));
        if (object.count == 3 && object.rest.size() >= 8)
            return std::bit_cast<double>(bigEndian(object.rest.substr(0, 8)));
        return std::nullopt;
    }

    std::optional<Value> readAscii(Object& object) {
        if (!readCount(object) || object.count > object.rest.size() || !spend(object.count))
            return std::nullopt;
        return object.rest.substr(0, object.count);
    }

    std::optional<Value> readUtf16(Object& object) {
        constexpr std::size_t unit = 2;
        constexpr std::size_t bytesOfUtf8 = 3;
        if (!readCount(object) || object.count > object.rest.size() / unit ||
            !spend(object.count * bytesOfUtf8))
            return std::nullopt;
        icu::UnicodeString text;
        for (std::size_t i = 0; i < object.count; ++i)
            text.append(static_cast<char16_t>(bigEndian(object.rest.substr(i * unit, unit))));
        std::string utf8;
        return text.toUTF8String(utf8);
    }

    std::optional<Value> readArray(Object& object, std::size_t depth) {
        if (!readCount(object) || !canEnter(object, 1, depth) ||
            !spend(object.count * sizeof(Value)))
            return std::nullopt;
        Value::List list;
        list.reserve(object.count);
        for (std::uint64_t i = 0; i < object.count; ++i) {
            auto item = readObject(reference(object, i), depth);
            if (!item) return std::nullopt;
            list.push_back(std::move(*item));
        }
        return list;
    }

    /// All keys stand before all values.
    std::optional<Value> readDictionary(Object& object, std::size_t depth) {
        if (!readCount(object) || !canEnter(object, 2, depth) ||
            !spend(object.count * sizeof(Value::Object::value_type)))
            return std::nullopt;
        Value::Object members;
        members.reserve(object.count);
        for (std::uint64_t i = 0; i < object.count; ++i) {
            const auto key = readObject(reference(object, i), depth);
            if (!key || !key->text()) return std::nullopt;
            auto value = readObject(reference(object, object.count + i), depth);
            if (!value) return std::nullopt;
            members.emplace_back(*key->text(), std::move(*value));
        }
        keepLastOfEachKey(members);
        return members;
    }

    bool canEnter(const Object& object, std::size_t references, std::size_t depth) const {
        const auto size = references * trailer_.referenceSize;
        return depth <= propertyListDepthLimit && object.count <= object.rest.size() / size;
    }

    std::uint64_t reference(const Object& object, std::uint64_t index) const {
        const auto size = trailer_.referenceSize;
        return bigEndian(object.rest.substr(index * size, size));
    }

    /// Whether the tree may take that much more memory. What contains itself or is shared too often
    /// ends here.
    bool spend(std::uint64_t bytes) {
        if (bytes > memory_) return false;
        memory_ -= bytes;
        return true;
    }

    std::string_view objects_;
    std::string_view offsets_;
    Trailer trailer_;
    std::uint64_t memory_;
};

}  // namespace

std::optional<Value> parseBinaryPropertyList(std::string_view bytes) {
    const auto trailer = readTrailer(bytes);
    return trailer ? Reader(bytes, *trailer).read() : std::nullopt;
}

}  // namespace tidewell
