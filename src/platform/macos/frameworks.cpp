#include "platform/macos/frameworks.h"

#include <dlfcn.h>
#include <objc/objc.h>

namespace tidewell::macos_system {

namespace {

/// Never unloaded.
class Framework {
 public:
    explicit Framework(const char* path) : handle_(::dlopen(path, RTLD_LAZY | RTLD_LOCAL)) {}

    template <class Function>
    Function* function(const char* name) const {
        return handle_ ? reinterpret_cast<Function*>(::dlsym(handle_, name)) : nullptr;
    }
    /// The value of one of its constants.
    const void* constant(const char* name) const {
        const auto* place = handle_ ? ::dlsym(handle_, name) : nullptr;
        return place ? *static_cast<const void* const*>(place) : nullptr;
    }
    explicit operator bool() const { return handle_; }

 private:
    void* const handle_;
};

const Framework& appKit() {
    static const Framework framework("/System/Library/Frameworks/AppKit.framework/AppKit");
    return framework;
}

const Framework& coreFoundation() {
    static const Framework framework(
        "/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation");
    return framework;
}

/// The runtime of Objective-C.
struct ObjectiveC {
    using FindClass = id(const char*);
    using FindSelector = SEL(const char*);

    const Framework runtime = Framework("/usr/lib/libobjc.A.dylib");
    FindClass* findClass = runtime.function<FindClass>("objc_getClass");
    FindSelector* findSelector = runtime.function<FindSelector>("sel_registerName");
    void (*sendMessage)() = runtime.function<void()>("objc_msgSend");

    static const ObjectiveC& own() {
        static const ObjectiveC runtime;
        return runtime;
    }

    bool isWhole() const { return findClass && findSelector && sendMessage; }

    template <class Result, class... Arguments>
    Result send(id receiver, const char* message, Arguments... arguments) const {
        const auto call = reinterpret_cast<Result (*)(id, SEL, Arguments...)>(sendMessage);
        return call(receiver, findSelector(message), arguments...);
    }
};

/// What is made in between is let go at the end.
class Pool {
 public:
    explicit Pool(const ObjectiveC& runtime)
        : runtime_(runtime),
          pool_(runtime.send<id>(runtime.findClass("NSAutoreleasePool"), "new")) {}
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    ~Pool() { runtime_.send<void>(pool_, "drain"); }

 private:
    const ObjectiveC& runtime_;
    const id pool_;
};

using Reference = const void*;  ///< of CoreFoundation, which counts them

struct CoreFoundation {
    using MakeUrl = Reference(Reference, const std::uint8_t*, long, std::uint8_t);
    using CopyProperty = std::uint8_t(Reference, Reference, void*, void*);
    using NumberValue = std::uint8_t(Reference, long, void*);
    using Release = void(Reference);

    const Framework& framework = coreFoundation();
    MakeUrl* makeUrl = framework.function<MakeUrl>("CFURLCreateFromFileSystemRepresentation");
    CopyProperty* copyProperty =
        framework.function<CopyProperty>("CFURLCopyResourcePropertyForKey");
    NumberValue* numberValue = framework.function<NumberValue>("CFNumberGetValue");
    Release* release = framework.function<Release>("CFRelease");
    Reference key = framework.constant("kCFURLVolumeAvailableCapacityForImportantUsageKey");

    bool isWhole() const { return makeUrl && copyProperty && numberValue && release && key; }
};

}  // namespace

bool askApplicationToQuit(std::int32_t process) {
    const auto& runtime = ObjectiveC::own();
    if (!appKit() || !runtime.isWhole()) return false;
    const Pool pool(runtime);
    const auto type = runtime.findClass("NSRunningApplication");
    if (!type) return false;
    const auto application =
        runtime.send<id>(type, "runningApplicationWithProcessIdentifier:", process);
    return application && runtime.send<signed char>(application, "terminate");
}

std::optional<ByteCount> roomForImportantUsage(const std::string& path) {
    constexpr long longLongType = 11;  // kCFNumberLongLongType
    static const CoreFoundation system;
    if (!system.isWhole()) return std::nullopt;
    const auto url = system.makeUrl(nullptr, reinterpret_cast<const std::uint8_t*>(path.data()),
                                    static_cast<long>(path.size()), 1);
    if (!url) return std::nullopt;
    Reference number = nullptr;
    const bool isKnown = system.copyProperty(url, system.key, &number, nullptr) && number;
    long long room = 0;
    const bool isRead = isKnown && system.numberValue(number, longLongType, &room);
    if (number) system.release(number);
    system.release(url);
    return isRead && room > 0 ? std::optional<ByteCount>(room) : std::nullopt;
}

}  // namespace tidewell::macos_system
