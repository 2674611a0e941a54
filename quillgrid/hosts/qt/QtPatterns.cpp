#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtLocale.h"

#include <algorithm>
#include <array>

namespace quillgrid::qt {

namespace {

/// A letter of Qt's patterns and what its run becomes; the count is limited to `Longest`.
struct LetterRow {
    char16_t Qt;
    char Ours;
    qsizetype Longest;
};

constexpr std::array<LetterRow, 7> Letters{{
    {u'd', 'd', 4},
    {u'M', 'm', 4},
    {u'y', 'y', 4},
    {u'h', 'h', 2},
    {u'H', 'h', 2},
    {u'm', 'n', 2},
    {u's', 's', 2},
}};

constexpr QChar Quote = u'\'';

class PatternReader {
public:
    PatternReader(const QString& pattern, const std::string& dateSeparator, const std::string& timeSeparator)
        : pattern_(pattern), dateSeparator_(dateSeparator), timeSeparator_(timeSeparator) {}

    std::string Read() {
        while (at_ < pattern_.size())
            ReadPart();
        // What stood in brackets may have been the time zone alone.
        return FromQString(ToQString(out_).remove(QStringLiteral("()")).trimmed());
    }

private:
    void ReadPart() {
        const QChar first = pattern_[at_];
        if (first == Quote) return ReadQuoted();
        if (first == u'a' || first == u'A') return ReadHalfDay();
        const qsizetype run = RunLength(first);
        at_ += run;
        if (const LetterRow* row = RowOf(first)) return WriteLetters(*row, run);
        if (first == u't' || first == u'z') return;
        for (qsizetype i = 0; i < run; ++i)
            WriteLiteral(first);
    }

    static const LetterRow* RowOf(QChar letter) {
        const auto* row = std::find_if(Letters.begin(), Letters.end(),
                                       [letter](const LetterRow& one) { return letter == one.Qt; });
        return row == Letters.end() ? nullptr : row;
    }

    qsizetype RunLength(QChar letter) const {
        qsizetype length = 1;
        while (at_ + length < pattern_.size() && pattern_[at_ + length] == letter)
            ++length;
        return length;
    }

    void WriteLetters(const LetterRow& row, qsizetype run) {
        const qsizetype length = row.Ours == 'y' ? 4 : std::min(run, row.Longest);
        out_.append(static_cast<std::size_t>(length), row.Ours);
    }

    void ReadHalfDay() {
        ++at_;
        if (at_ < pattern_.size() && pattern_[at_].toUpper() == u'P') ++at_;
        out_ += "AM/PM";
    }

    /// Two quotes are one, inside quotes and outside.
    void ReadQuoted() {
        ++at_;
        if (at_ < pattern_.size() && pattern_[at_] == Quote) {
            ++at_;
            return WriteLiteral(Quote);
        }
        while (at_ < pattern_.size()) {
            const QChar character = pattern_[at_++];
            const bool doubled = character == Quote && at_ < pattern_.size() && pattern_[at_] == Quote;
            if (character == Quote && !doubled) return;
            if (doubled) ++at_;
            WriteLiteral(character);
        }
    }

    void WriteLiteral(QChar character) {
        const std::string text = FromQString(QString(character.isSpace() ? QChar(u' ') : character));
        const bool ownSlash = text == "/" && dateSeparator_ != "/";
        const bool ownColon = text == ":" && timeSeparator_ != ":";
        const bool letter = text.size() == 1 && character.isLetterOrNumber();
        const bool mark = text == "\"" || text == "\\" || text == ";";
        if (ownSlash || ownColon || letter || mark) out_ += '\\';
        AppendText(character, text);
    }

    /// A pair of surrogates is two QChars and one character.
    void AppendText(QChar character, const std::string& text) {
        if (character.isHighSurrogate()) {
            high_ = character;
        } else if (character.isLowSurrogate()) {
            out_ += FromQString(QString(high_) + character);
        } else if (character.category() != QChar::Other_Format) { // marks of writing direction
            out_ += text;
        }
    }

    const QString& pattern_;
    const std::string& dateSeparator_;
    const std::string& timeSeparator_;
    std::string out_;
    qsizetype at_ = 0;
    QChar high_;
};

} // namespace

std::string PatternFromQt(const QString& pattern, const std::string& dateSeparator,
                          const std::string& timeSeparator) {
    return PatternReader(pattern, dateSeparator, timeSeparator).Read();
}

} // namespace quillgrid::qt
