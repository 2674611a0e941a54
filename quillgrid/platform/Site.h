#pragma once

#include "quillgrid/platform/Font.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillgrid {

/// What the about box tells.
struct AboutTexts {
    std::string Name;
    std::string Version;
    std::string Licence;
};

/// The container in which the control stands.
class Site {
public:
    virtual ~Site() = default;

    /// False while a form designer shows the control. Asked once, at creation.
    virtual bool UserMode() const = 0;
    virtual Font AmbientFont() const = 0;
    /// What the container calls this control; may be empty.
    virtual std::string DisplayName() const = 0;
    /// Lengths in the container's own coordinate units and back, horizontal ones unless said otherwise. A
    /// host without units of its own gives them back unchanged.
    virtual double ToContainerUnits(double pixels) const = 0;
    virtual double ToContainerUnitsVertically(double pixels) const = 0;
    virtual double ToPixels(double containerUnits) const = 0;
    /// The characters that, with Alt held, shall reach the control (by AccessKeyPress), in lower case.
    virtual void SetAccessKeys(const std::u32string& keys) = 0;
    /// The property kept under this key of the bag was set. The container may do anything here, destroying
    /// the control included.
    virtual void PropertyChanged(std::string_view key) = 0;
    /// Shows a small window that does not wait for its closing.
    virtual void ShowAbout(const AboutTexts& texts) = 0;
};

} // namespace quillgrid
