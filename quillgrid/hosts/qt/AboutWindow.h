#pragma once

#include "quillgrid/platform/Site.h"

#include <QCoreApplication>
#include <QDialog>

namespace quillgrid::qt {

/// A small window with name, version and licence that goes when it is closed.
class AboutWindow : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(AboutWindow)

public:
    AboutWindow(const AboutTexts& texts, QWidget* parent);
};

} // namespace quillgrid::qt
