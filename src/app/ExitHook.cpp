#include "app/ExitHook.h"

#include <cstdlib>
#include <thread>
#include <utility>

namespace quillet {

namespace {

// Behind a pointer without an owner: what is static may be gone when the process ends.
std::function<void()> *hook = nullptr;
std::thread::id thread;

extern "C" void callHook()
{
    if (hook && std::this_thread::get_id() == thread)
        (*std::exchange(hook, nullptr))();
}

} // namespace

ExitHook::ExitHook(std::function<void()> atExit)
{
    static const bool isRegistered = std::atexit(callHook) == 0;
    Q_UNUSED(isRegistered)
    thread = std::this_thread::get_id();
    hook = new std::function<void()>(std::move(atExit));
}

ExitHook::~ExitHook()
{
    delete std::exchange(hook, nullptr);
}

} // namespace quillet
