#include "apps/record_editor/WindowStyle.h"

#include <QApplication>
#include <QFont>

#include <array>

namespace quillgrid::editor {
namespace {

struct RoleColour {
    QPalette::ColorRole Role;
    QRgb Light;
    QRgb Dark;
};
constexpr std::array<RoleColour, 17> RoleColours{{
    {QPalette::Window, 0xfff3f3f3, 0xff2b2d30},
    {QPalette::WindowText, 0xff1a1a1a, 0xffe4e6e8},
    {QPalette::Base, 0xffffffff, 0xff1e1f22},
    {QPalette::AlternateBase, 0xfff7f7f7, 0xff26282b},
    {QPalette::Text, 0xff1a1a1a, 0xffe4e6e8},
    {QPalette::Button, 0xffe9e9e9, 0xff3a3d41},
    {QPalette::ButtonText, 0xff1a1a1a, 0xffe4e6e8},
    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::Light, 0xffffffff, 0xff4a4e53},
    {QPalette::Midlight, 0xfff0f0f0, 0xff43464b},
    {QPalette::Mid, 0xffb8b8b8, 0xff55595f},
    {QPalette::Dark, 0xff9c9c9c, 0xff17181a},
    {QPalette::Shadow, 0xff6b6b6b, 0xff0e0f10},
    {QPalette::Highlight, 0xff2f6fb5, 0xff3d7cc4},
    {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::ToolTipBase, 0xfffffbe5, 0xff3a3d41},
    {QPalette::ToolTipText, 0xff1a1a1a, 0xffe4e6e8},
}};

QPalette MakePalette(QRgb RoleColour::*shade, QRgb disabled) {
    QPalette palette;
    for (const RoleColour& row : RoleColours)
        palette.setColor(row.Role, QColor::fromRgb(row.*shade));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(disabled));
    }
    return palette;
}

} // namespace

QPalette LightPalette() {
    return MakePalette(&RoleColour::Light, 0xff909090);
}

QPalette DarkPalette() {
    return MakePalette(&RoleColour::Dark, 0xff808489);
}

void UseFixedLook() {
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    font.setHintingPreference(QFont::PreferFullHinting);
    QApplication::setFont(font);
}

} // namespace quillgrid::editor
