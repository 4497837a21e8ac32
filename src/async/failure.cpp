#include "async/failure.h"

#include <new>

namespace tidewell {

std::string failureText(const std::exception_ptr& failure) {
    try {
        std::rethrow_exception(failure);
    } catch (const std::bad_alloc&) {
        return "there is not enough memory";
    } catch (const std::exception& problem) {
        return problem.what();
    } catch (...) {
        return "the reason is unknown";
    }
}

}  // namespace tidewell
