#include "apps/record_editor/SqlTokenizer.h"

#include <QStringView>

#include <algorithm>

namespace quillgrid::editor {
namespace {

bool StartsWord(QChar c) {
    return c.isLetter() || c == u'_' || c.unicode() > 127;
}
bool ContinuesWord(QChar c) {
    return StartsWord(c) || c.isDigit() || c == u'$';
}

class Tokenizer {
public:
    explicit Tokenizer(QStringView sql) : sql_(sql) {}

    QList<SqlToken> Run() {
        QList<SqlToken> tokens;
        for (SkipBlanks(); position_ < sql_.size(); SkipBlanks())
            tokens << Next();
        tokens << SqlToken{};
        return tokens;
    }

private:
    QChar At(qsizetype offset = 0) const {
        const auto position = position_ + offset;
        return position < sql_.size() ? sql_[position] : QChar();
    }

    void SkipBlanks() {
        while (position_ < sql_.size()) {
            if (At().isSpace()) {
                ++position_;
            } else if (At() == u'-' && At(1) == u'-') {
                SkipTo(u"\n");
            } else if (At() == u'/' && At(1) == u'*') {
                SkipTo(u"*/");
            } else {
                return;
            }
        }
    }

    void SkipTo(QStringView end) {
        const auto found = sql_.indexOf(end, position_ + 2);
        position_ = found < 0 ? sql_.size() : found + end.size();
    }

    SqlToken Next() {
        const QChar c = At();
        if (c == u'\'') return Quoted(SqlToken::Type::Text, u'\'');
        if (c == u'"' || c == u'`') return Quoted(SqlToken::Type::QuotedName, c);
        if (c == u'[' && IsBracketName()) return Quoted(SqlToken::Type::QuotedName, u']');
        if (StartsWord(c)) return While(SqlToken::Type::Word, ContinuesWord);
        if (c.isDigit() || (c == u'.' && At(1).isDigit())) return Number();
        return Symbol();
    }

    // "ARRAY['a', 'b']" and "list[1]" hold no name between their brackets.
    bool IsBracketName() const {
        const bool afterWord = position_ > 0 && ContinuesWord(sql_[position_ - 1]);
        return !afterWord && sql_.indexOf(u']', position_) > 0;
    }

    SqlToken Quoted(SqlToken::Type type, QChar end) {
        QString text;
        for (++position_; position_ < sql_.size(); ++position_) {
            if (At() != end) {
                text += At();
            } else if (At(1) == end && end != u']') {
                text += end;
                ++position_;
            } else {
                ++position_;
                break;
            }
        }
        return {type, text};
    }

    template <typename Test>
    SqlToken While(SqlToken::Type type, Test test) {
        const auto start = position_;
        while (position_ < sql_.size() && test(At()))
            ++position_;
        return {type, sql_.sliced(start, position_ - start).toString()};
    }

    SqlToken Number() {
        const auto start = position_;
        const auto isPart = [](QChar c) { return c.isDigit() || c == u'.'; };
        While(SqlToken::Type::Number, isPart);
        if (At().toLower() == u'e' && HasExponent()) {
            position_ += 2;
            While(SqlToken::Type::Number, isPart);
        }
        return {SqlToken::Type::Number, sql_.sliced(start, position_ - start).toString()};
    }

    bool HasExponent() const {
        const bool sign = At(1) == u'+' || At(1) == u'-';
        return sign ? At(2).isDigit() : At(1).isDigit();
    }

    SqlToken Symbol() {
        static constexpr QStringView pairs[] = {u"<=", u">=", u"<>", u"!=", u"==", u"::", u"||"};
        const auto two = sql_.sliced(position_, std::min<qsizetype>(2, sql_.size() - position_));
        const bool isPair = std::find(std::begin(pairs), std::end(pairs), two) != std::end(pairs);
        const qsizetype length = isPair ? 2 : 1;
        position_ += length;
        return {SqlToken::Type::Symbol, two.first(length).toString()};
    }

    QStringView sql_;
    qsizetype position_ = 0;
};

} // namespace

bool SqlToken::Is(const char* text) const {
    return (Kind == Type::Word || Kind == Type::Symbol) &&
           Text.compare(QLatin1String(text), Qt::CaseInsensitive) == 0;
}

QList<SqlToken> TokenizeSql(const QString& sql) {
    return Tokenizer(sql).Run();
}

} // namespace quillgrid::editor
