#pragma once

#include <coroutine>
#include <memory>
#include <utility>
#include <vector>

namespace qf {

// One piece of work whose result several callers wait for: the first caller does the work and
// calls `finish`; the others `co_await SharedResult::result(shared)`. `finish` resumes the
// waiters one after the other before it returns, so that they end with the work: when its
// owner stops the work, nobody is left waiting on a later turn of the event loop.
template <typename T>
class SharedResult {
public:
    struct Awaiter {
        std::shared_ptr<SharedResult> shared;
        bool await_ready() const noexcept { return shared->m_done; }
        void await_suspend(std::coroutine_handle<> waiter) { shared->m_waiters.push_back(waiter); }
        T await_resume() const { return shared->m_result; }
    };
    static Awaiter result(std::shared_ptr<SharedResult> shared) { return Awaiter{std::move(shared)}; }

    void finish(T result)
    {
        m_result = std::move(result);
        m_done = true;
        for (const std::coroutine_handle<> waiter : std::exchange(m_waiters, {}))
            waiter.resume();
    }

private:
    bool m_done = false;
    T m_result{};
    std::vector<std::coroutine_handle<>> m_waiters;
};

} // namespace qf
