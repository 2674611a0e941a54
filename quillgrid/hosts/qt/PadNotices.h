#pragma once

#include <QAccessible>

namespace quillgrid::qt {

class AccessiblePad;
class PadWidget;

/// Tells assistive programs what happens to a pad. Does nothing while there are none.
class PadNotices {
public:
    explicit PadNotices(PadWidget& pad) : pad_(pad) {}

    void Shown();
    /// The keys go back to where they were.
    void Hidden();
    /// The current part, or what is written on one, may be another.
    void Moved();
    /// What has been told is told again.
    void Forget();

private:
    AccessiblePad* Listened() const;
    void TellOpened(bool open);

    PadWidget& pad_;
};

} // namespace quillgrid::qt
