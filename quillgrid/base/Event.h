#pragma once

#include "quillgrid/base/Export.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace quillgrid {

/// Ends a subscription when it goes out of scope. Outliving the event is harmless.
class QUILLGRID_EXPORT Connection {
public:
    Connection() = default;
    explicit Connection(std::function<void()> disconnect) : disconnect_(std::move(disconnect)) {}
    Connection(Connection&& other) noexcept : disconnect_(std::exchange(other.disconnect_, nullptr)) {}
    Connection& operator=(Connection&& other) noexcept {
        if (this != &other) {
            Disconnect();
            disconnect_ = std::exchange(other.disconnect_, nullptr);
        }
        return *this;
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { Disconnect(); }

    void Disconnect() {
        if (const auto disconnect = std::exchange(disconnect_, nullptr)) disconnect();
    }

private:
    std::function<void()> disconnect_;
};

/// A published event with any number of listeners, called in the order in which they connected. A listener
/// may disconnect itself or others, connect new ones (called from the next raise on), destroy the event's
/// owner (no further listener is called: what they refer to may be gone with it) or throw: the exception goes
/// on to whoever raised the event. By-reference arguments are references.
template <typename... Args>
class Event {
public:
    using Listener = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() {
        for (const auto& slot : *slots_)
            slot->Active = false; // a raise may still be under way with a snapshot of them
    }

    /// Listens for as long as the returned connection lives.
    [[nodiscard]] Connection Connect(Listener listener) {
        auto slot = std::make_shared<Slot>(Slot{std::move(listener)});
        slots_->push_back(slot);
        return Connection([all = std::weak_ptr<Slots>(slots_), slot = std::weak_ptr<Slot>(slot)] {
            const auto held = slot.lock();
            if (!held) return;
            held->Active = false;
            if (const auto list = all.lock()) std::erase(*list, held);
        });
    }
    /// Listens for as long as the event lives.
    void Listen(Listener listener) { slots_->push_back(std::make_shared<Slot>(Slot{std::move(listener)})); }

    bool HasListeners() const { return !slots_->empty(); }

    void Raise(Args... args) const {
        if (slots_->empty()) return;
        const Slots snapshot = *slots_; // keeps every listener alive while it runs
        for (const auto& slot : snapshot) {
            if (slot->Active) slot->Call(args...);
        }
    }

private:
    struct Slot {
        Listener Call;
        bool Active = true;
    };
    using Slots = std::vector<std::shared_ptr<Slot>>;

    std::shared_ptr<Slots> slots_ = std::make_shared<Slots>();
};

} // namespace quillgrid
