#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/CellOwner.h"
#include "quillgrid/platform/Clock.h"
#include "quillgrid/platform/CurrencyConverter.h"
#include "quillgrid/platform/ImageSource.h"
#include "quillgrid/platform/Theme.h"

#include <functional>
#include <string>
#include <vector>

namespace quillgrid::test {

class SteppedClock : public Clock {
public:
    DateTime Moment{*DayFromParts(2026, 11, 16), 0};
    std::uint64_t Ticks = 50;

    DateTime Now() const override { return Moment; }
    std::uint64_t TickCount() const override { return Ticks; }
    Connection After(std::int32_t, std::function<void()>) override { return {}; }
    MouseButtons ButtonsDown() const override { return {}; }
};

class ListedDesktop : public Theme {
public:
    std::vector<std::string> Screen, Printer, Devices;

    Colour Resolve(Colour colour) const override { return colour; }
    std::int32_t ScrollBarWidth() const override { return 14; }
    std::vector<std::string> ScreenFonts() const override { return Screen; }
    std::vector<std::string> PrinterFonts() const override { return Printer; }
    std::vector<std::string> Printers() const override { return Devices; }
};

class TaggedImages : public ImageSource {
public:
    std::vector<ListedImage> Images;
    std::string TagText;
    Colour Mask = 7;
    bool Masked = false;

    Size ImageSize() const override { return {16, 70'000}; }
    std::size_t Count() const override { return Images.size(); }
    const ListedImage* At(std::size_t position) const override {
        return position >= 1 && position <= Images.size() ? &Images[position - 1] : nullptr;
    }
    const ListedImage* Find(std::string_view) const override { return nullptr; }
    std::int16_t Index() const override { return 3; }
    std::string Name() const override { return "images"; }
    ObjectReference Object() const override { return nullptr; }
    PictureReference Overlay(const Variant&, const Variant&) const override { return nullptr; }
    Colour MaskColor() const override { return Mask; }
    void SetMaskColor(Colour colour) override { Mask = colour; }
    bool UseMaskColor() const override { return Masked; }
    void SetUseMaskColor(bool use) override { Masked = use; }
    std::string Tag() const override { return TagText; }
    void SetTag(std::string_view text) override { TagText = text; }
};

class OneCurrency : public CurrencyConverter {
public:
    std::string Symbol(std::string_view code) const override { return code == "EUR" ? "€" : ""; }
    void SetLanguage(LanguageConstants) override {}
};

/// A control that writes down what its cells ask of it, and may misbehave when it paints.
class FakeOwner : public CellOwner {
public:
    Locale Region = BuiltInLocale("en-US");
    LanguageConstants Tongue = qglgEnglish;
    CellDefaults NewCells{
        .CellForeColor = 0x112233, .FillColor = 0x445566, .FontBold = true, .FontItalic = false};
    SteppedClock Watch;
    ListedDesktop Desk;
    TaggedImages Pictures;
    OneCurrency Money;
    bool Running = true;
    bool Quiet = false;
    std::string Joined;
    Cell* Working = nullptr;
    std::vector<std::string> Calls;
    std::function<void()> OnRepaint;
    std::function<void()> OnOrder;

    const Locale& UserLocale() const override { return Region; }
    LanguageConstants Language() const override { return Tongue; }
    InputSeparators Separators() const override { return {}; }
    CellDefaults Defaults() const override { return NewCells; }
    bool UserMode() const override { return Running; }
    const Clock& Time() const override { return Watch; }
    const Theme* Desktop() const override { return &Desk; }
    const ImageSource* Images() const override { return &Pictures; }
    const CurrencyConverter* Currencies() const override { return &Money; }
    bool Silent() const override { return Quiet; }
    void SetSilent(bool silent) override { Quiet = silent; }
    void SetBusyPointer(bool busy) override { Calls.push_back(busy ? "busy" : "ready"); }
    std::string CurrentGroup() const override { return Joined; }
    void SetCurrentGroup(std::string_view key) override { Joined = key; }
    Cell* ExchangeCurrentCell(Cell* cell) override { return std::exchange(Working, cell); }
    void OrderChanged() override {
        Calls.push_back("order");
        if (OnOrder) OnOrder();
    }
    void CellRemoved(Cell& cell) override { Calls.push_back("removed " + cell.Caption()); }
    void CellsCleared() override { Calls.push_back("cleared"); }
    void RepaintRow(Cell& cell) override {
        Calls.push_back("row " + cell.Caption());
        if (OnRepaint) OnRepaint();
    }
    void ValueUndone(Cell& cell) override { Calls.push_back("undone " + cell.Caption()); }
    void FocusCell(Cell& cell) override { Calls.push_back("focus " + cell.Caption()); }
    void AddingCell() override {}
    std::shared_ptr<Properties> CellSheet() override { return nullptr; }
    void DefineCurrentCell(const Record&) override {}

    std::vector<std::string> TakeCalls() { return std::exchange(Calls, {}); }
};

using Calls = std::vector<std::string>;

} // namespace quillgrid::test
