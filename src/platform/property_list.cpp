#include "platform/property_list.h"

#include "platform/binary_property_list.h"
#include "platform/files.h"
#include "platform/xml_property_list.h"

namespace tidewell {

std::optional<Value> parsePropertyList(std::string_view bytes) {
    if (bytes.size() > propertyListLimit) return std::nullopt;
    return bytes.starts_with(binaryPropertyListMark) ? parseBinaryPropertyList(bytes)
                                                     : parseXmlPropertyList(bytes);
}

std::optional<Value> readPropertyList(const std::string& path) {
    const auto bytes = readFile(path, propertyListLimit);
    return bytes ? parsePropertyList(*bytes) : std::nullopt;
}

}  // namespace tidewell
