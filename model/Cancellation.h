#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace qf {

// A handle on work that whoever started it may want stopped (a screen's Cancel): `cancel()`
// stops what runs under it now, and work started under it later never starts (the shell
// runner's commands: their callers get ShellError::cancelled). Copies share one state. Tied to
// a context object, it is cancelled when the context goes.
class Cancellation {
public:
    Cancellation();
    explicit Cancellation(QObject* context);

    void cancel() const;
    bool isCancelled() const { return m_state->cancelled; }

    // While `object` lives, a cancellation calls `stop` (at once when it was cancelled already).
    void whileAlive(QObject* object, std::function<void()> stop) const;

private:
    struct State {
        bool cancelled = false;
        std::vector<std::pair<QPointer<QObject>, std::function<void()>>> stops;
    };
    static void cancel(State& state);
    std::shared_ptr<State> m_state;
};

} // namespace qf
