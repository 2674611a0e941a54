// Heap use of cells, counted at operator new: a program of its own, because the counting is program-wide.

#include "quillgrid/cells/Cells.h"
#include "tests/cells/FakeOwner.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <malloc.h>
#include <new>

namespace {

std::size_t liveBytes = 0;

} // namespace

// Not inlined: the compiler would take malloc and free for a mismatch with new and delete.
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (!memory) throw std::bad_alloc();
    liveBytes += malloc_usable_size(memory);
    return memory;
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    if (memory) liveBytes -= malloc_usable_size(memory);
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace quillgrid::test {

namespace {

double Seconds(std::chrono::steady_clock::time_point since) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

void AddPlainCells(Cells& cells, int count) {
    for (int i = 1; i <= count; ++i) {
        const auto number = std::to_string(i);
        cells.Add({.Caption = "Label" + number, .Value = "Text" + number});
    }
}

} // namespace

TEST(Footprint, PlainCellTakesUnderHalfAKilobyte) {
    constexpr std::size_t Count = 100'000;
    FakeOwner owner;
    owner.Calls.reserve(4 * Count); // what the fake writes down does not count
    Cells cells{&owner};
    owner.OnOrder = [&owner] { owner.Calls.clear(); };
    const auto before = liveBytes;
    AddPlainCells(cells, Count);
    const auto perCell = (liveBytes - before) / Count;
    RecordProperty("BytesPerCell", static_cast<int>(perCell));
    std::cout << "bytes per plain cell: " << perCell << ", sizeof(Cell): " << sizeof(Cell) << "\n";
    EXPECT_EQ(cells.Count(), 100'000);
    EXPECT_EQ(cells.Item(100'000)->Index(), 100'000);
    EXPECT_LT(perCell, 500U);
}

TEST(Footprint, ReadingAListAllocatesNothing) {
    const auto cell = std::make_shared<Cell>();
    const auto before = liveBytes;
    EXPECT_EQ(std::as_const(*cell).Listitems().Count(), 0);
    EXPECT_TRUE(cell->Min().IsNull());
    cell->SetMin(Variant::Null());
    cell->SetUnit("");
    cell->SetForeignKey("");
    EXPECT_EQ(liveBytes, before);
}

TEST(Footprint, AddingAtTheEndStaysEquallyFast) {
    FakeOwner owner;
    owner.OnOrder = [&owner] { owner.Calls.clear(); };
    Cells small{&owner};
    Cells large{&owner};
    AddPlainCells(small, 1'000); // warm
    AddPlainCells(large, 80'000);
    small.Clear();
    auto start = std::chrono::steady_clock::now();
    AddPlainCells(small, 20'000);
    const double early = Seconds(start);
    start = std::chrono::steady_clock::now();
    AddPlainCells(large, 20'000);
    const double late = Seconds(start);
    std::cout << "us per cell: " << early / 0.02 << " from empty, " << late / 0.02 << " after 80 000\n";
    EXPECT_LT(late, 4 * early + 0.1); // quadratic work would be hundreds of times slower
}

TEST(Footprint, SearchInTenThousandEntriesAllocatesNothing) {
    Listitems items;
    for (int i = 0; i < 10'000; ++i)
        items.Add({.Text = "Entry " + std::to_string(i)});
    items.Add({.Text = "Zebra"});
    std::uint64_t tick = 0;
    EXPECT_EQ(items.TypeAhead(1, U'z', tick), 10'001);
    const auto before = liveBytes;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(items.TypeAhead(1, U'z', tick += 1'000), 10'001);
    std::cout << "us per key in 10 000 entries: " << Seconds(start) * 10'000 << "\n";
    EXPECT_EQ(liveBytes, before);
}

} // namespace quillgrid::test
