#pragma once

#include "quillgrid/platform/Site.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillgrid::headless {

/// A container that writes down what it hears, and may misbehave at it.
class FakeSite : public Site {
public:
    bool Running = true;
    Font Ambient{"Sans"};
    std::string Name = "Quillgrid1";
    double UnitsPerPixel = 1;
    std::vector<std::string> Reported; ///< keys of properties that were set
    double UnitsPerPixelVertically = 1;
    std::u32string AccessKeys;
    std::vector<AboutTexts> Abouts;
    std::function<void(std::string_view key)> OnChanged;

    bool UserMode() const override { return Running; }
    Font AmbientFont() const override { return Ambient; }
    std::string DisplayName() const override { return Name; }
    double ToContainerUnits(double pixels) const override { return pixels * UnitsPerPixel; }
    double ToContainerUnitsVertically(double pixels) const override {
        return pixels * UnitsPerPixelVertically;
    }
    void SetAccessKeys(const std::u32string& keys) override { AccessKeys = keys; }
    double ToPixels(double containerUnits) const override { return containerUnits / UnitsPerPixel; }
    void PropertyChanged(std::string_view key) override {
        Reported.emplace_back(key);
        if (OnChanged) OnChanged(key);
    }
    void ShowAbout(const AboutTexts& texts) override { Abouts.push_back(texts); }

    std::vector<std::string> TakeReported() { return std::exchange(Reported, {}); }
};

} // namespace quillgrid::headless
