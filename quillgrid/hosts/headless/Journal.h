#pragma once

#include <string>
#include <utility>
#include <vector>

namespace quillgrid::headless {

/// What happened, in order: the fakes and a test's own listeners write into the same one, so that a test can
/// state a whole sequence of events, repaints and focus changes.
class Journal {
public:
    void Note(std::string entry) { entries_.push_back(std::move(entry)); }
    const std::vector<std::string>& Entries() const { return entries_; }
    void Clear() { entries_.clear(); }
    /// Returns the entries so far and begins anew.
    std::vector<std::string> Take() { return std::exchange(entries_, {}); }

private:
    std::vector<std::string> entries_;
};

} // namespace quillgrid::headless
