#include "quillgrid/grid/GridPropertyTable.h"
#include "quillgrid/grid/SettingsStore.h"
#include "quillgrid/hosts/qt/BagValues.h"
#include "quillgrid/hosts/qt/JsonPropertyBag.h"
#include "quillgrid/hosts/qt/QtSite.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "quillgrid/hosts/qt/SettingsPropertyBag.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quillgrid::qt {
namespace {

using Random = std::mt19937;

/// Fonts by their fields: objects are never equal.
bool Same(const Variant& left, const Variant& right) {
    const Font* font = FontIn(left);
    return font && FontIn(right) ? *font == *FontIn(right) : left == right;
}

int Below(Random& random, int end) {
    return static_cast<int>(random() % static_cast<unsigned>(end));
}

/// Texts that files, settings and conversions like to misunderstand.
std::string AwkwardText(Random& random) {
    static const char* const awkward[] = {
        "",     "true", "5", "1,5", "@Invalid()",         "%1",   " a ",  "\"",
        "\\x0", "[g]",  ";", "a,b", "{\"family\":\"x\"}", "\n\t", "null", "@ByteArray(x)"};
    return awkward[Below(random, static_cast<int>(std::size(awkward)))];
}

std::string RandomText(Random& random) {
    if (Below(random, 2) == 0) return AwkwardText(random);
    QString text;
    for (int length = Below(random, 12); length > 0; --length) {
        const char32_t character =
            1U + static_cast<char32_t>(Below(random, Below(random, 4) == 0 ? 0x10FFFF : 0x17F));
        const bool isHalf = character >= 0xD800 && character < 0xE000;
        text += QString::fromUcs4(isHalf ? U"\u00DF" : &character, 1);
    }
    return text.toStdString();
}

Font RandomFont(Random& random) {
    return {RandomText(random), 1 + Below(random, 1000) / 7.0, Below(random, 2) == 0, Below(random, 2) == 0};
}

Variant RandomValue(const GridProperty& property, Random& random) {
    if (property.Has(effect::Rebuilds)) return 1 + Below(random, 1000);
    if (property.Limit.Type == PropertyLimit::Kind::Separators) return ".,:/" + RandomText(random);
    switch (property.Default.Type) {
    case PropertyDefault::Kind::AmbientFont: return ToVariant(RandomFont(random));
    case PropertyDefault::Kind::Flag: return Below(random, 2) == 0;
    case PropertyDefault::Kind::Text: return RandomText(random);
    default: return static_cast<std::int32_t>(Below(random, 2) == 0 ? random() : random() % 12);
    }
}

class Bags : public testing::Test {
protected:
    GridSettings RandomSettings(Random& random) {
        GridSettings settings = DefaultSettings(ambient);
        for (const GridProperty& property : detail::Table) {
            if (Below(random, 4) == 0) continue;
            const auto value = property.Field.Convert(RandomValue(property, random), locale);
            if (value) property.Field.Store(settings, *value);
        }
        return settings;
    }
    void ExpectSame(const GridSettings& read, const GridSettings& written) {
        for (const GridProperty& property : detail::Table) {
            EXPECT_TRUE(Same(property.Field.Read(read), property.Field.Read(written)))
                << property.Name << ": " << property.Field.Read(read).ToPlainText() << " instead of "
                << property.Field.Read(written).ToPlainText();
        }
    }
    QString PathOf(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    void WriteFile(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    JsonPropertyBag BagOf(const QByteArray& json) {
        JsonPropertyBag bag;
        const FileResult result = bag.FromText(json, QStringLiteral("test"));
        EXPECT_TRUE(result) << result.Error.toStdString();
        return bag;
    }

    QWidget container;
    QtSite site{container, true};
    Font ambient = site.AmbientFont();
    Locale locale = BuiltInLocale("de-DE");
    QTemporaryDir folder;
};

TEST_F(Bags, EveryPropertyComesBackFromJson) {
    Random random(1);
    for (int round = 0; round < 200 && !HasFailure(); ++round) {
        const GridSettings written = RandomSettings(random);
        JsonPropertyBag bag;
        WriteSettings(written, bag, ambient);
        ExpectSame(ReadSettings(BagOf(bag.ToText()), site, locale), written);
    }
}

TEST_F(Bags, EveryPropertyComesBackFromSettings) {
    Random random(2);
    for (int round = 0; round < 40 && !HasFailure(); ++round) {
        const GridSettings written = RandomSettings(random);
        const QString path = PathOf("forms.ini");
        {
            QSettings settings(path, QSettings::IniFormat); // still holds the round before
            SettingsPropertyBag bag(settings, QStringLiteral("Forms/Address"));
            WriteSettings(written, bag, ambient);
        }
        QSettings settings(path, QSettings::IniFormat);
        ExpectSame(ReadSettings(SettingsPropertyBag(settings, QStringLiteral("Forms/Address")), site, locale),
                   written);
        ExpectSame(ReadSettings(SettingsPropertyBag(settings, QStringLiteral("Forms/Other")), site, locale),
                   DefaultSettings(ambient));
    }
}

TEST_F(Bags, DefaultsAreLeftOutInEveryLocale) {
    for (const char* name : {"de_DE", "en_US", "sv_SE", "fi_FI"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(name)));
        QuillgridWidget widget;
        widget.grid().ReadProperties(JsonPropertyBag());
        JsonPropertyBag bag;
        widget.grid().WriteProperties(bag);
        EXPECT_EQ(bag.ToText().simplified(), QByteArray("{ }")) << name;
        QSettings settings(PathOf("defaults.ini"), QSettings::IniFormat);
        settings.setValue(QStringLiteral("Form/caption"), 5); // would be left over
        settings.setValue(QStringLiteral("Form/Font/size"), 5);
        SettingsPropertyBag kept(settings, QStringLiteral("Form"));
        widget.grid().WriteProperties(kept);
        EXPECT_EQ(settings.allKeys(), QStringList()) << name;
    }
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    QuillgridWidget fresh;
    JsonPropertyBag bag; // a new control differs from its saved defaults in its bold caption alone
    fresh.grid().WriteProperties(bag);
    EXPECT_EQ(bag.Values().keys(), QStringList(QStringLiteral("CaptionFont")));
}

TEST_F(Bags, EqualMeansEqualAcrossTypes) {
    EXPECT_TRUE(MeansTheSame(false, std::int16_t{0}));
    EXPECT_TRUE(MeansTheSame(true, std::int16_t{-1}));
    EXPECT_TRUE(MeansTheSame(4, std::int16_t{4}));
    EXPECT_FALSE(MeansTheSame(true, std::int16_t{0}));
    EXPECT_FALSE(MeansTheSame("a", "A"));
    EXPECT_FALSE(MeansTheSame("0", 0));
    EXPECT_TRUE(MeansTheSame(ToVariant(ambient), ToVariant(ambient)));
    Font italic = ambient;
    italic.Italic = !italic.Italic;
    EXPECT_FALSE(MeansTheSame(ToVariant(italic), ToVariant(ambient)));
    EXPECT_FALSE(MeansTheSame(ToVariant(ambient), Variant(0)));
}

TEST_F(Bags, KeysIgnoreCaseAndKeepTheirSpelling) {
    JsonPropertyBag bag = BagOf(R"({"capTION":"x","Groupboxcolor":7,"unknown":[1,{"deep":null}]})");
    EXPECT_EQ(bag.Read("Caption", ""), Variant("x"));
    EXPECT_EQ(bag.Read("GROUPBOXCOLOR", 1), Variant(7));
    EXPECT_EQ(BagOf("\xEF\xBB\xBF{\"a\":1}").Read("A", 0), Variant(1)); // as some editors save
    bag.Write("Caption", "y", "");
    EXPECT_EQ(bag.Read("caption", ""), Variant("y"));
    EXPECT_EQ(bag.Values().keys(), (QStringList{QStringLiteral("Caption"), QStringLiteral("Groupboxcolor"),
                                                QStringLiteral("unknown")}));
    bag.Write("CAPTION", "", "");
    EXPECT_EQ(bag.Read("Caption", "none"), Variant("none"));

    QSettings settings(PathOf("case.ini"), QSettings::IniFormat);
    settings.setValue(QStringLiteral("styLE"), QStringLiteral("0"));
    settings.setValue(QStringLiteral("cellfont/size"), QStringLiteral("20.5"));
    const SettingsPropertyBag kept(settings, QString());
    EXPECT_EQ(kept.Read("Style", std::int16_t{1}), Variant(0));
    EXPECT_EQ(FontIn(kept.Read("CellFont", ToVariant(ambient)))->Size, 20.5);
}

TEST_F(Bags, BrokenEntriesGiveTheirDefaults) {
    const QByteArray broken[] = {"[]",     "null",  "[[[1]]]", R"({"a":1})",
                                 R"("?")", "1e308", "-1e308",  "99999999999"};
    const GridSettings defaults = DefaultSettings(ambient);
    for (const QByteArray& value : broken) {
        QByteArray json = "{\"Unknown\":" + value;
        for (const GridProperty& property : detail::Table) {
            const bool isText = property.Default.Type == PropertyDefault::Kind::Text;
            const bool isFlag = property.Field.Read(defaults).Kind() == Variant::Type::Boolean;
            const bool fits = (isText && value[0] != '[' && value[0] != '{' && value != "null") ||
                              (isFlag && (value[0] == '-' || value[0] == '1' || value[0] == '9'));
            if (!fits)
                json += ",\"" + QByteArray::fromStdString(std::string(property.BagKey())) + "\":" + value;
        }
        ExpectSame(ReadSettings(BagOf(json + '}'), site, locale), defaults);
    }
}

TEST_F(Bags, FontsTakeWhatIsMissingOrBrokenFromTheDefault) {
    const Variant fallback = ToVariant({"Sans", 9, true, false});
    const auto read = [&](const char* font) {
        return *FontIn(BagOf(QByteArray("{\"Font\":") + font + "}").Read("font", fallback));
    };
    EXPECT_EQ(read(R"({"size":11.5,"italic":true})"), (Font{"Sans", 11.5, true, true}));
    EXPECT_EQ(read(R"({"family":"Serif","bold":false,"colour":"red"})"), (Font{"Serif", 9, false, false}));
    for (const char* broken : {R"({"family":7,"size":-3,"bold":"maybe","italic":[]})",
                               R"({"family":{"family":"x"},"size":"big","bold":2})", R"({"size":true})",
                               R"({"size":0})", "{}", "12", R"("Serif")", "[1]", "null"}) {
        EXPECT_EQ(read(broken), (Font{"Sans", 9, true, false})) << broken;
    }
}

TEST_F(Bags, HostileValuesNeitherBreakTheFormNorShowAPassword) {
    const char* const numbers[] = {"2147483647", "-2147483648", "4294967295", "1e9", "-1", "70000", "0.5"};
    for (const char* number : numbers) {
        QByteArray json =
            R"({"Font":{"size":1e300,"family":"\u0000"},"CellFont":{"size":1e-300},"PasswordChar":"")";
        for (const GridProperty& property : detail::Table) {
            const auto kind = property.Default.Type;
            if (kind != PropertyDefault::Kind::Short && kind != PropertyDefault::Kind::Long) continue;
            if (property.Has(effect::Rebuilds)) continue;
            json += ",\"" + QByteArray::fromStdString(std::string(property.BagKey())) + "\":" + number;
        }
        QuillgridWidget widget;
        widget.resize(200, 120);
        widget.grid().ReadProperties(BagOf(json + '}'));
        widget.grid().Add({.Key = "p", .Value = "secret", .CellTemplate = qgctPassword});
        widget.grid().Refresh();
        EXPECT_FALSE(widget.grab().isNull());
        JsonPropertyBag again;
        widget.grid().WriteProperties(again);
        EXPECT_EQ(again.Read("PasswordChar", "*"), Variant(""));
    }
}

TEST_F(Bags, FormsOfRandomBagsCanBeShownAndSavedAgain) {
    Random random(4);
    const char* const values[] = {"0",
                                  "1",
                                  "2",
                                  "7",
                                  "-1",
                                  "99",
                                  "1000",
                                  "2147483647",
                                  "-2147483648",
                                  "4294967295",
                                  "1e300",
                                  "true",
                                  "false",
                                  "\"\"",
                                  "\"x\"",
                                  "\"\\u0000\"",
                                  "null",
                                  "[]",
                                  "{\"size\":1e5}",
                                  "{\"family\":\"?\",\"size\":40,\"bold\":true}"};
    for (int round = 0; round < 150; ++round) {
        QByteArray json;
        for (const GridProperty& property : detail::Table) {
            if (Below(random, 3) == 0) continue;
            const char* value = values[Below(random, static_cast<int>(std::size(values)))];
            if (property.Has(effect::Rebuilds))
                value = Below(random, 20) == 0 ? "1e9" : "12"; // a thousand take long
            json += (json.isEmpty() ? "{\"" : ",\"") +
                    QByteArray::fromStdString(std::string(property.BagKey())) + "\":" + value;
        }
        const bool designs = Below(random, 4) == 0;
        QuillgridWidget widget(nullptr, designs ? QuillgridWidget::DesignMode : QuillgridWidget::UserMode);
        widget.resize(Below(random, 400), Below(random, 300));
        widget.grid().ReadProperties(BagOf(json + '}'));
        EXPECT_FALSE(widget.grab(QRect(0, 0, 400, 300)).isNull());
        for (int left = designs ? 0 : Below(random, 20); left > 0; --left)
            widget.grid().Add({.Caption = AwkwardText(random),
                               .Value = AwkwardText(random),
                               .CellTemplate = static_cast<CellTemplateConstants>(Below(random, 25))});
        widget.grid().Refresh();
        EXPECT_FALSE(widget.grab(QRect(0, 0, 400, 300)).isNull());
        JsonPropertyBag saved;
        widget.grid().WriteProperties(saved);
        JsonPropertyBag again;
        QuillgridWidget second;
        second.grid().ReadProperties(saved);
        second.grid().WriteProperties(again);
        EXPECT_EQ(again.ToText().toStdString(), saved.ToText().toStdString());
    }
}

TEST_F(Bags, FilesThatCannotBeReadAreNamedAndChangeNothing) {
    WriteFile(PathOf("empty"), "");
    WriteFile(PathOf("blank"), " \n");
    WriteFile(PathOf("cut"), R"({"Caption":"x)");
    WriteFile(PathOf("array"), "[1,2]");
    WriteFile(PathOf("binary"), QByteArray("\x00\xFF\x7F\x01", 4));
    WriteFile(PathOf("latin1"), "{\"Caption\":\"M\xFCller\"}");
    WriteFile(PathOf("deep"), QByteArray(100'000, '['));
    QFile large(PathOf("large"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(JsonPropertyBag::LargestFile + 1));
    JsonPropertyBag bag = BagOf(R"({"Caption":"kept"})");
    for (const char* name :
         {"missing", "empty", "blank", "cut", "array", "binary", "latin1", "deep", "large", "."}) {
        const FileResult result = bag.Load(PathOf(name));
        EXPECT_FALSE(result) << name;
        EXPECT_TRUE(result.Error.contains(QString::fromLatin1(name))) << result.Error.toStdString();
    }
    EXPECT_FALSE(bag.Load(QStringLiteral("/dev/zero")));
    EXPECT_EQ(bag.Read("Caption", ""), Variant("kept"));
}

TEST_F(Bags, DamagedFilesAreRefusedOrRead) {
    Random random(3);
    const QByteArray whole =
        R"({"Caption":"Gr\u00fc\u00dfe","Style":0,"Font":{"family":"Serif","size":1.5e1}})";
    for (int round = 0; round < 20'000; ++round) {
        QByteArray damaged = whole.left(1 + Below(random, static_cast<int>(whole.size())));
        for (int hits = Below(random, 4); hits > 0; --hits)
            damaged[Below(random, static_cast<int>(damaged.size()))] = static_cast<char>(random() & 0xFFU);
        JsonPropertyBag bag;
        const FileResult result = bag.FromText(damaged, QStringLiteral("damaged"));
        EXPECT_TRUE(result || bag.Values().isEmpty());
        ReadSettings(bag, site, locale);
    }
}

TEST_F(Bags, SavingReplacesTheWholeFileOrNothing) {
    const QString path = PathOf("form.json");
    WriteFile(path, QByteArray(10'000, 'x'));
    JsonPropertyBag bag;
    bag.Write("Caption", "Grüße", "");
    const FileResult saved = bag.Save(path);
    ASSERT_TRUE(saved) << saved.Error.toStdString();
    JsonPropertyBag loaded;
    ASSERT_TRUE(loaded.Load(path));
    EXPECT_EQ(loaded.Values(), bag.Values());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("form.json")));
    for (const QString& elsewhere : {folder.path(), PathOf("no/such/folder")}) {
        const FileResult refused = bag.Save(elsewhere);
        EXPECT_TRUE(refused.Error.contains(elsewhere)) << refused.Error.toStdString();
    }
}

TEST_F(Bags, WhatCannotBeKeptIsLeftOut) {
    JsonPropertyBag bag;
    bag.Write("a", std::nan(""), 1.0);
    bag.Write("b", Variant::Null(), 1);
    bag.Write("c", std::make_shared<std::any>(7), 1);
    EXPECT_TRUE(bag.Values().isEmpty());
}

} // namespace
} // namespace quillgrid::qt
