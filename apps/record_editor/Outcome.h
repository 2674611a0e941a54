#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace quillgrid::editor {

/// Why something could not be done, as a sentence for the user.
struct Failure {
    QString Message;
};

/// A value, or the reason why there is none.
template <typename T>
class Outcome {
public:
    Outcome(T value) : state_(std::in_place_index<0>, std::move(value)) {}
    Outcome(Failure failure) : state_(std::in_place_index<1>, std::move(failure)) {}

    explicit operator bool() const { return state_.index() == 0; }
    T& operator*() { return std::get<0>(state_); }
    const T& operator*() const { return std::get<0>(state_); }
    T* operator->() { return &std::get<0>(state_); }
    const T* operator->() const { return &std::get<0>(state_); }

    /// Empty when there is a value.
    QString Message() const { return *this ? QString() : std::get<1>(state_).Message; }
    Failure Reason() const { return Failure{Message()}; }

private:
    std::variant<T, Failure> state_;
};

/// For work that gives nothing back but may fail.
struct Done {};

} // namespace quillgrid::editor
