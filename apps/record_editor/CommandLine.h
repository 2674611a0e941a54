#pragma once

#include "apps/record_editor/Outcome.h"

#include <QString>
#include <QStringList>

namespace quillgrid::editor {

/// What the program was asked to do.
struct CommandLine {
    QString Address;  ///< file or server; "" for the sample database
    QString Table;    ///< "" for the first one
    QString Picture;  ///< PNG to write instead of showing a window; "" to show one
    QString Locale;   ///< "de_DE"; "" for the user's own
    double Scale = 1; ///< of the picture
    int Record = 1;   ///< the one to begin with
    bool Dark = false;
    bool Help = false;

    /// Reads the arguments behind the program's name.
    static Outcome<CommandLine> Parse(const QStringList& arguments);
    static QString Usage();
};

} // namespace quillgrid::editor
