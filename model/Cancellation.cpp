#include "Cancellation.h"

namespace qf {

Cancellation::Cancellation() : m_state(std::make_shared<State>()) {}

Cancellation::Cancellation(QObject* context) : Cancellation()
{
    if (context)
        QObject::connect(context, &QObject::destroyed, [state = m_state] { cancel(*state); });
}

void Cancellation::cancel() const { cancel(*m_state); }

void Cancellation::cancel(State& state)
{
    state.cancelled = true;
    for (const auto& [object, stop] : std::exchange(state.stops, {})) {
        if (object)
            stop();
    }
}

void Cancellation::whileAlive(QObject* object, std::function<void()> stop) const
{
    if (m_state->cancelled) {
        stop();
        return;
    }
    std::erase_if(m_state->stops, [](const auto& entry) { return entry.first.isNull(); });
    m_state->stops.emplace_back(object, std::move(stop));
}

} // namespace qf
