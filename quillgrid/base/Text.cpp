#include "quillgrid/base/Text.h"

#include "quillgrid/base/CaseTables.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace quillgrid {

namespace {

constexpr bool IsContinuation(unsigned char byte) {
    return (byte & 0xC0U) == 0x80U;
}
constexpr bool IsAscii(char32_t character) {
    return character < 0x80;
}
constexpr bool IsSurrogate(char32_t character) {
    return character >= 0xD800 && character <= 0xDFFF;
}

/// Length of the run of ASCII bytes in front.
std::size_t AsciiRun(std::string_view text) {
    std::size_t length = 0;
    for (std::uint64_t word = 0; length + sizeof word <= text.size(); length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & 0x8080808080808080U) != 0) break;
    }
    while (length < text.size() && IsAscii(static_cast<unsigned char>(text[length])))
        ++length;
    return length;
}

/// Bytes that a lead byte announces; 0 for a byte that cannot lead.
constexpr std::size_t AnnouncedBytes(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

constexpr char32_t SmallestOfLength[] = {0, 0, 0x80, 0x800, 0x10000};

DecodedCharacter DecodeMultibyte(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t bytes = AnnouncedBytes(lead);
    if (bytes < 2 || bytes > text.size()) return {ReplacementCharacter, 1};
    char32_t character = lead & (0x7FU >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (!IsContinuation(byte)) return {ReplacementCharacter, 1};
        character = (character << 6U) | (byte & 0x3FU);
    }
    if (character < SmallestOfLength[bytes] || character > 0x10FFFF || IsSurrogate(character)) {
        return {ReplacementCharacter, 1};
    }
    return {character, bytes};
}

template <std::size_t Count>
constexpr bool IsOrdered(const CaseRange (&table)[Count]) {
    for (std::size_t i = 1; i < Count; ++i) {
        if (table[i].First <= table[i - 1].Last) return false;
    }
    return true;
}

static_assert(IsOrdered(CaseFolding) && IsOrdered(UpperCaseMapping) && IsOrdered(LowerCaseMapping),
              "the look-up is a binary search");

template <std::size_t Count>
char32_t Mapped(const CaseRange (&table)[Count], char32_t character) {
    const auto after = std::upper_bound(std::begin(table), std::end(table), character,
                                        [](char32_t c, const CaseRange& range) { return c < range.First; });
    if (after == std::begin(table)) return character;
    const CaseRange& range = *std::prev(after);
    if (character > range.Last || (character - range.First) % range.Step != 0) return character;
    return static_cast<char32_t>(static_cast<std::int32_t>(character) + range.Delta);
}

template <typename Map>
std::string MapText(std::string_view text, Map map) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const DecodedCharacter next = DecodeFirst(text);
        AppendUtf8(out, map(next.Character));
        text.remove_prefix(next.Bytes);
    }
    return out;
}

char32_t TakeFolded(std::string_view& text) {
    if (const auto first = static_cast<unsigned char>(text.front()); first < 0x80) {
        text.remove_prefix(1);
        return FoldCase(first);
    }
    const DecodedCharacter next = DecodeFirst(text);
    text.remove_prefix(next.Bytes);
    return FoldCase(next.Character);
}

/// Takes the characters of `prefix` off the front of `text`; false, with `text` undefined, when they differ.
bool TakePrefix(std::string_view& text, std::string_view prefix) {
    while (!prefix.empty()) {
        if (text.empty() || TakeFolded(text) != TakeFolded(prefix)) return false;
    }
    return true;
}

} // namespace

DecodedCharacter DecodeFirst(std::string_view text) {
    if (text.empty()) return {};
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80) return {first, 1};
    return DecodeMultibyte(text);
}

DecodedCharacter DecodeLast(std::string_view text) {
    if (text.empty()) return {};
    const auto last = static_cast<unsigned char>(text.back());
    if (last < 0x80) return {last, 1};
    // A sequence has at most three continuation bytes; the one that ends exactly here is the last character.
    for (std::size_t bytes = 2; bytes <= std::min<std::size_t>(4, text.size()); ++bytes) {
        const std::string_view tail = text.substr(text.size() - bytes);
        if (IsContinuation(static_cast<unsigned char>(tail.front()))) continue;
        const DecodedCharacter decoded = DecodeFirst(tail);
        if (decoded.Bytes == bytes) return decoded;
        break;
    }
    return {ReplacementCharacter, 1};
}

void AppendUtf8(std::string& out, char32_t character) {
    if (IsAscii(character)) {
        out.push_back(static_cast<char>(character));
        return;
    }
    if (character > 0x10FFFF || IsSurrogate(character)) character = ReplacementCharacter;
    const auto continuation = [&](unsigned shift) {
        out.push_back(static_cast<char>(0x80U | ((character >> shift) & 0x3FU)));
    };
    if (character < 0x800) {
        out.push_back(static_cast<char>(0xC0U | (character >> 6U)));
    } else if (character < 0x10000) {
        out.push_back(static_cast<char>(0xE0U | (character >> 12U)));
        continuation(6);
    } else {
        out.push_back(static_cast<char>(0xF0U | (character >> 18U)));
        continuation(12);
        continuation(6);
    }
    continuation(0);
}

bool IsValidUtf8(std::string_view text) {
    for (text.remove_prefix(AsciiRun(text)); !text.empty(); text.remove_prefix(AsciiRun(text))) {
        const DecodedCharacter next = DecodeFirst(text);
        // A genuine U+FFFD takes three bytes, a malformed one is reported with one.
        if (next.Character == ReplacementCharacter && next.Bytes == 1) return false;
        text.remove_prefix(next.Bytes);
    }
    return true;
}

std::string RepairUtf8(std::string_view text) {
    if (IsValidUtf8(text)) return std::string(text);
    return MapText(text, [](char32_t character) { return character; });
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        const std::size_t run = AsciiRun(text);
        text.remove_prefix(run);
        count += run + (text.empty() ? 0 : 1);
        text.remove_prefix(DecodeFirst(text).Bytes);
    }
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count) return text;
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count)
        rest.remove_prefix(DecodeFirst(rest).Bytes);
    return text.substr(0, text.size() - rest.size());
}

char32_t FoldCase(char32_t character) {
    if (IsAscii(character)) return character >= U'A' && character <= U'Z' ? character + 32 : character;
    return Mapped(CaseFolding, character);
}

char32_t ToUpper(char32_t character) {
    if (IsAscii(character)) return character >= U'a' && character <= U'z' ? character - 32 : character;
    return Mapped(UpperCaseMapping, character);
}

char32_t ToLower(char32_t character) {
    if (IsAscii(character)) return character >= U'A' && character <= U'Z' ? character + 32 : character;
    return Mapped(LowerCaseMapping, character);
}

std::string UpperCase(std::string_view text) {
    return MapText(text, ToUpper);
}

std::string LowerCase(std::string_view text) {
    return MapText(text, ToLower);
}

int CompareIgnoreCase(std::string_view left, std::string_view right) {
    while (!left.empty() && !right.empty()) {
        const char32_t a = TakeFolded(left);
        const char32_t b = TakeFolded(right);
        if (a != b) return a < b ? -1 : 1;
    }
    return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

bool EqualIgnoreCase(std::string_view left, std::string_view right) {
    return left == right || CompareIgnoreCase(left, right) == 0;
}

bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix) {
    return TakePrefix(text, prefix);
}

bool ContainsIgnoreCase(std::string_view set, char32_t character) {
    const char32_t folded = FoldCase(character);
    while (!set.empty()) {
        if (TakeFolded(set) == folded) return true;
    }
    return false;
}

std::size_t FindIgnoreCase(std::string_view text, std::string_view part, std::size_t* matchedBytes) {
    for (std::string_view rest = text;; rest.remove_prefix(DecodeFirst(rest).Bytes)) {
        std::string_view behind = rest;
        if (TakePrefix(behind, part)) {
            if (matchedBytes) *matchedBytes = rest.size() - behind.size();
            return text.size() - rest.size();
        }
        if (rest.empty()) return std::string_view::npos;
    }
}

std::size_t HashIgnoreCase(std::string_view text) {
    std::uint64_t hash = 14'695'981'039'346'656'037U; // FNV-1a over the folded code points
    while (!text.empty())
        hash = (hash ^ TakeFolded(text)) * 1'099'511'628'211U;
    return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

std::string_view TrimBlanks(std::string_view text) {
    if (!text.empty() && text.front() != ' ' && text.back() != ' ') return text;
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace quillgrid
