#pragma once

#include <memory>
#include <string>

namespace tidewell::test {

/// Makes a zone such as "America/New_York" the local one as long as it lives.
class LocalTimeZone {
 public:
    explicit LocalTimeZone(const std::string& name);
    LocalTimeZone(const LocalTimeZone&) = delete;
    LocalTimeZone& operator=(const LocalTimeZone&) = delete;
    ~LocalTimeZone();

 private:
    struct Previous;
    std::unique_ptr<Previous> previous_;
};

}  // namespace tidewell::test
