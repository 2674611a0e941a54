#pragma once

#include "quillgrid/platform/Site.h"

#include <QPointer>
#include <QWidget>

#include <functional>

namespace quillgrid::qt {

/// The widget as the container of its control. Units are logical pixels, whatever the screen.
class QtSite : public Site {
public:
    /// The widget must outlive the site.
    QtSite(QWidget& widget, bool userMode) : widget_(widget), userMode_(userMode) {}

    bool UserMode() const override { return userMode_; }
    Font AmbientFont() const override;
    /// The object name.
    std::string DisplayName() const override;
    double ToContainerUnits(double pixels) const override { return pixels; }
    double ToContainerUnitsVertically(double pixels) const override { return pixels; }
    double ToPixels(double containerUnits) const override { return containerUnits; }
    void SetAccessKeys(const std::u32string& keys) override { AccessKeysChanged(keys); }
    void PropertyChanged(std::string_view key) override { Reported(key); }
    void ShowAbout(const AboutTexts& texts) override;

    std::function<void(const std::u32string& keys)> AccessKeysChanged = [](const std::u32string&) {};
    std::function<void(std::string_view key)> Reported = [](std::string_view) {};

private:
    QWidget& widget_;
    bool userMode_;
    QPointer<QWidget> about_;
};

} // namespace quillgrid::qt
