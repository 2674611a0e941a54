#pragma once

#include <QProxyStyle>

namespace quillgrid::qt {

/// Gives a password box the control's own mask character, and never shows the last typed one.
class MaskStyle : public QProxyStyle {
public:
    MaskStyle(const QString& baseStyle, int mask) : QProxyStyle(baseStyle), mask_(mask) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        if (hint == SH_LineEdit_PasswordCharacter) return mask_;
        if (hint == SH_LineEdit_PasswordMaskDelay) return 0;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    int mask_;
};

} // namespace quillgrid::qt
