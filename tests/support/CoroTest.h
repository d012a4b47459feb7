#pragma once

#include <QCoro/QCoroTask>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <optional>

namespace qf::test {

namespace detail {

// Runs the event loop until `done` turns true or `limitMs` have passed; false on time-out.
inline bool runUntil(QEventLoop& loop, const bool& done, int limitMs)
{
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(limitMs);
    if (!done)
        loop.exec();
    if (!done)
        ADD_FAILURE() << "the operation did not finish within " << limitMs << " ms";
    return done;
}

} // namespace detail

// Runs a coroutine to its end in a local event loop. A coroutine that has not finished after
// `limitMs` fails the test (instead of hanging it) and gives nothing.
template <typename T>
std::optional<T> await(QCoro::Task<T>&& task, int limitMs = 20000)
{
    QEventLoop loop;
    std::optional<T> result;
    bool done = false;
    QCoro::connect(std::move(task), &loop, [&](T value) {
        result.emplace(std::move(value));
        done = true;
        loop.quit();
    });
    detail::runUntil(loop, done, limitMs);
    return result;
}

inline bool await(QCoro::Task<void>&& task, int limitMs = 20000)
{
    QEventLoop loop;
    bool done = false;
    QCoro::connect(std::move(task), &loop, [&]() {
        done = true;
        loop.quit();
    });
    return detail::runUntil(loop, done, limitMs);
}

} // namespace qf::test
