#include "framework/windows/guard.h"

#include "framework/text/failures.h"
#include "framework/windows/desktop.h"

#include <new>
#include <string>

namespace norvane {

namespace {

int actionsAtWork = 0; // those that raised one another

void tell(const std::string &what) {
    Desktop::current().failure("This could not be finished: " + what);
}

} // namespace

void guarded(const std::function<void()> &action) {
    if (!action)
        return;
    const struct AtWork {
        AtWork() { ++actionsAtWork; }
        ~AtWork() { --actionsAtWork; }
    } atWork;
    try {
        action();
    } catch (const RuntimeException &failure) {
        tell(failure.what());
    } catch (const std::bad_alloc &) {
        tell("there is not enough memory.");
    } catch (const std::exception &failure) {
        tell(std::string("an internal error occurred (") + failure.what() + ").");
    } catch (...) {
        tell("an internal error occurred.");
    }
}

bool actionAtWork() {
    return actionsAtWork > 0;
}

} // namespace norvane
