#include "apps/record_editor/CheckExpression.h"

#include "apps/record_editor/SqlTokenizer.h"

#include <array>
#include <optional>

namespace quillgrid::editor {
namespace {

using Fact = CheckFact::Type;

/// A part of an expression as far as it is understood.
struct Term {
    enum class Type { Unknown, Column, Length, Literal, List, Facts };

    Type Kind = Type::Unknown;
    QString Column;
    QList<SqlLiteral> Values;
    QList<CheckFact> Facts;
};

struct Comparison {
    const char* Symbol;
    Fact WhenColumnFirst;
    Fact WhenColumnLast;
};
constexpr std::array<Comparison, 6> Comparisons{{
    {">=", Fact::AtLeast, Fact::AtMost},
    {"<=", Fact::AtMost, Fact::AtLeast},
    {">", Fact::MoreThan, Fact::LessThan},
    {"<", Fact::LessThan, Fact::MoreThan},
    {"=", Fact::OneOf, Fact::OneOf},
    {"==", Fact::OneOf, Fact::OneOf},
}};

Term FactTerm(Fact kind, const QString& column, const QList<SqlLiteral>& values) {
    return {Term::Type::Facts, {}, {}, {CheckFact{kind, column, values}}};
}

Term Compared(Fact kind, const Term& column, const SqlLiteral& value) {
    if (column.Kind == Term::Type::Column) return FactTerm(kind, column.Column, {value});
    if (column.Kind != Term::Type::Length || value.Kind != SqlLiteral::Type::Number) return {};
    const int length = value.Text.toInt();
    if (kind == Fact::AtMost || kind == Fact::OneOf)
        return FactTerm(Fact::LongestText, column.Column, {value});
    if (kind != Fact::LessThan || length < 1) return {};
    return FactTerm(Fact::LongestText, column.Column, {{value.Kind, QString::number(length - 1)}});
}

bool IsNullTest(const Term& term) {
    return term.Kind == Term::Type::Facts && term.Facts.size() == 1 && term.Facts[0].Kind == Fact::IsNull;
}

bool AllAbout(const QList<CheckFact>& facts, const QString& column) {
    for (const CheckFact& fact : facts) {
        if (fact.Column.compare(column, Qt::CaseInsensitive) != 0) return false;
    }
    return true;
}

/// "a = 1 OR a = 2" lists choices; one alternative that is left beside NULL tests holds for every value.
Term Either(const QList<Term>& alternatives) {
    QList<Term> others;
    QList<QString> nullable;
    for (const Term& term : alternatives) {
        if (IsNullTest(term))
            nullable << term.Facts[0].Column;
        else
            others << term;
    }
    if (others.isEmpty() || others[0].Kind != Term::Type::Facts || others[0].Facts.isEmpty()) return {};
    for (const QString& column : nullable) {
        if (!AllAbout(others[0].Facts, column)) return {};
    }
    Term joined = others[0];
    for (qsizetype i = 1; i < others.size(); ++i) {
        const bool choice = joined.Facts.size() == 1 && joined.Facts[0].Kind == Fact::OneOf &&
                            others[i].Facts.size() == 1 && others[i].Facts[0].Kind == Fact::OneOf &&
                            AllAbout(others[i].Facts, joined.Facts[0].Column);
        if (!choice) return {};
        joined.Facts[0].Values << others[i].Facts[0].Values;
    }
    return joined;
}

/// A recursive descent over the tokens. A token that fits nowhere ends the whole reading: half an expression
/// would say something else than the whole.
class CheckParser {
public:
    CheckParser(const QList<SqlToken>& tokens, qsizetype position) : tokens_(tokens), position_(position) {}

    /// Reads "( expression )".
    QList<CheckFact> ReadClause() {
        const Term term = Primary();
        return failed_ ? QList<CheckFact>() : term.Facts;
    }

private:
    static constexpr int DeepestNesting = 100;

    const SqlToken& Token(qsizetype ahead = 0) const {
        return tokens_[std::min(position_ + ahead, tokens_.size() - 1)];
    }
    bool Take(const char* text) {
        if (!Token().Is(text)) return false;
        ++position_;
        return true;
    }
    void Expect(const char* text) {
        if (!Take(text)) failed_ = true;
    }

    Term Or() {
        QList<Term> alternatives{And()};
        while (!failed_ && Take("OR"))
            alternatives << And();
        return alternatives.size() == 1 ? alternatives[0] : Either(alternatives);
    }

    Term And() {
        Term term = Not();
        while (!failed_ && Take("AND")) {
            const Term next = Not();
            term = {Term::Type::Facts, {}, {}, term.Facts + next.Facts};
        }
        return term;
    }

    Term Not() {
        if (!Take("NOT")) return Predicate();
        if (Enter()) Not();
        --depth_;
        return {};
    }

    Term Predicate() {
        const Term left = Sum();
        for (const Comparison& comparison : Comparisons) {
            if (Take(comparison.Symbol)) return Compare(left, comparison);
        }
        if (Take("<>") || Take("!=")) return Ignore(Sum());
        if (Take("IS")) return NullTest(left);
        const bool negated = Take("NOT");
        if (Take("BETWEEN")) return Between(left, negated);
        if (Take("IN")) return In(left, negated);
        if (negated || Token().Is("LIKE") || Token().Is("GLOB")) return Pattern();
        return left;
    }

    static Term Ignore(const Term&) { return {}; }

    Term Pattern() {
        if (!Take("LIKE") && !Take("GLOB") && !Take("ILIKE") && !Take("MATCH")) failed_ = true;
        Sum();
        if (Take("ESCAPE")) Sum();
        return {};
    }

    Term Compare(const Term& left, const Comparison& comparison) {
        if (Take("ANY") || Take("ALL")) {
            const Term list = Sum();
            const bool choice = comparison.WhenColumnFirst == Fact::OneOf &&
                                left.Kind == Term::Type::Column && list.Kind == Term::Type::List;
            return choice ? FactTerm(Fact::OneOf, left.Column, list.Values) : Term{};
        }
        const Term right = Sum();
        if (right.Kind == Term::Type::Literal)
            return Compared(comparison.WhenColumnFirst, left, right.Values[0]);
        if (left.Kind == Term::Type::Literal)
            return Compared(comparison.WhenColumnLast, right, left.Values[0]);
        return {};
    }

    Term NullTest(const Term& left) {
        const bool negated = Take("NOT");
        if (!Take("NULL")) return Ignore(Sum());
        return negated || left.Kind != Term::Type::Column ? Term{} : FactTerm(Fact::IsNull, left.Column, {});
    }

    Term Between(const Term& left, bool negated) {
        const Term low = Sum();
        Expect("AND");
        const Term high = Sum();
        if (negated) return {};
        Term term{Term::Type::Facts, {}, {}, {}};
        if (low.Kind == Term::Type::Literal) term.Facts << Compared(Fact::AtLeast, left, low.Values[0]).Facts;
        if (high.Kind == Term::Type::Literal)
            term.Facts << Compared(Fact::AtMost, left, high.Values[0]).Facts;
        return term;
    }

    Term In(const Term& left, bool negated) {
        Expect("(");
        const auto values = Literals(")");
        if (negated || !values || left.Kind != Term::Type::Column) return {};
        return FactTerm(Fact::OneOf, left.Column, *values);
    }

    /// Expressions up to the closing symbol; nothing when one of them is no constant.
    std::optional<QList<SqlLiteral>> Literals(const char* end) {
        QList<SqlLiteral> values;
        bool plain = true;
        while (!failed_ && !Take(end)) {
            const Term term = Or();
            plain = plain && term.Kind == Term::Type::Literal;
            values << term.Values;
            if (!Token().Is(end)) Expect(",");
        }
        return plain ? std::optional(values) : std::nullopt;
    }

    Term Sum() {
        Term term = Signed();
        for (const char* symbol = Operator(); symbol && !failed_; symbol = Operator()) {
            Take(symbol);
            Signed();
            term = {};
        }
        return term;
    }

    const char* Operator() const {
        for (const char* symbol : {"+", "-", "*", "/", "%", "||", "&", "|", "~"}) {
            if (Token().Is(symbol)) return symbol;
        }
        return nullptr;
    }

    Term Signed() {
        const bool minus = Take("-");
        if (!minus) Take("+");
        Term term = Casts(Primary());
        if (!minus) return term;
        if (term.Kind != Term::Type::Literal || term.Values[0].Kind != SqlLiteral::Type::Number) return {};
        term.Values[0].Text.prepend(u'-');
        return term;
    }

    Term Casts(Term term) {
        while (!failed_) {
            if (Take("::"))
                SkipType();
            else if (Take("COLLATE"))
                ++position_;
            else
                break;
        }
        return term;
    }

    void SkipType() {
        while (Token().Kind == SqlToken::Type::Word && !EndsType())
            ++position_;
        if (Token().Kind == SqlToken::Type::QuotedName) ++position_;
        if (Take("(")) {
            while (Token().Kind != SqlToken::Type::End && !Take(")"))
                ++position_;
        }
        while (Take("["))
            Expect("]");
    }

    bool EndsType() const {
        for (const char* word : {"AND", "OR", "IS", "IN", "NOT", "BETWEEN", "LIKE", "COLLATE"}) {
            if (Token().Is(word)) return true;
        }
        return false;
    }

    bool Enter() {
        if (++depth_ > DeepestNesting) failed_ = true;
        return !failed_;
    }

    Term Primary() {
        if (!Enter()) return {};
        const Term term = Unnested();
        --depth_;
        return term;
    }

    Term Unnested() {
        const SqlToken token = Token();
        ++position_;
        if (token.Kind == SqlToken::Type::Number) return Constant(SqlLiteral::Type::Number, token.Text);
        if (token.Kind == SqlToken::Type::Text) return Constant(SqlLiteral::Type::Text, token.Text);
        if (token.Is("(")) return Parenthesised();
        if (token.Is("TRUE") || token.Is("FALSE"))
            return Constant(SqlLiteral::Type::Boolean, token.Text.toLower());
        if (token.Is("NULL")) return {};
        if (token.Is("CAST")) return Cast();
        if (token.Is("ARRAY")) return Array();
        if (token.Kind == SqlToken::Type::QuotedName || IsName(token)) return Name(token);
        failed_ = true;
        return {};
    }

    static bool IsName(const SqlToken& token) {
        return token.Kind == SqlToken::Type::Word && !token.Is("CASE");
    }

    static Term Constant(SqlLiteral::Type kind, const QString& text) {
        return {Term::Type::Literal, {}, {{kind, text}}, {}};
    }

    Term Parenthesised() {
        Term term = Or();
        if (Token().Is(",")) { // a row value
            Take(",");
            Literals(")");
            return {};
        }
        Expect(")");
        return term;
    }

    Term Cast() {
        Expect("(");
        Term term = Or();
        Expect("AS");
        SkipType();
        Expect(")");
        return term;
    }

    Term Array() {
        Expect("[");
        const auto values = Literals("]");
        return values ? Term{Term::Type::List, {}, *values, {}} : Term{};
    }

    Term Name(const SqlToken& first) {
        SqlToken name = first;
        while (Take("."))
            name = tokens_[std::min(position_++, tokens_.size() - 1)];
        if (!Take("(")) {
            // A domain's check calls the value VALUE.
            const QString column = first.Is("VALUE") ? QString() : name.Text;
            return {Term::Type::Column, column, {}, {}};
        }
        return Call(name);
    }

    Term Call(const SqlToken& name) {
        const bool isLength = name.Is("length") || name.Is("char_length") || name.Is("character_length");
        if (Take(")")) return {};
        const Term argument = Or();
        if (Take(")")) {
            const bool known = isLength && argument.Kind == Term::Type::Column;
            return known ? Term{Term::Type::Length, argument.Column, {}, {}} : Term{};
        }
        Expect(",");
        Literals(")");
        return {};
    }

    const QList<SqlToken>& tokens_;
    qsizetype position_;
    int depth_ = 0;
    bool failed_ = false;
};

} // namespace

QList<CheckFact> FactsOfChecks(const QString& sql) {
    const QList<SqlToken> tokens = TokenizeSql(sql);
    QList<CheckFact> facts;
    for (qsizetype i = 0; i + 1 < tokens.size(); ++i) {
        if (tokens[i].Is("CHECK") && tokens[i + 1].Is("(")) facts << CheckParser(tokens, i + 1).ReadClause();
    }
    return facts;
}

} // namespace quillgrid::editor
