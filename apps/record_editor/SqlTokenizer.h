#pragma once

#include <QList>
#include <QString>

namespace quillgrid::editor {

struct SqlToken {
    enum class Type { Word, QuotedName, Text, Number, Symbol, End };

    Type Kind = Type::End;
    QString Text; ///< without its quotes; symbols of one or two characters

    /// Whether this is the keyword or symbol (in any case); a quoted name never is.
    bool Is(const char* text) const;
};

/// Cuts SQL into tokens, comments and blanks left out. Any text gives tokens: unclosed quotes end with the
/// text, characters of no meaning become symbols. The last token is End.
QList<SqlToken> TokenizeSql(const QString& sql);

} // namespace quillgrid::editor
