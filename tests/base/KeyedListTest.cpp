#include "quillgrid/base/KeyedList.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace quillgrid {
namespace {

struct Item {
    int Number = 0;
    std::function<void()> AtEnd{};
    ~Item() {
        if (AtEnd) AtEnd();
    }
};

std::shared_ptr<Item> Make(int number) {
    return std::make_shared<Item>(Item{number});
}

TEST(KeyedList, KeysAreUniqueWithoutRegardToCase) {
    KeyedList<Item> list;
    EXPECT_TRUE(list.Append("Straße", Make(1)));
    EXPECT_TRUE(list.Append("ÄRGER", Make(2)));
    EXPECT_TRUE(list.Append("", Make(3)));
    EXPECT_TRUE(list.Append("", Make(4))) << "no key is no key";
    EXPECT_FALSE(list.Append("ärger", Make(5)));
    EXPECT_EQ(list.Count(), 4U);
    EXPECT_EQ(list.Find("Ärger")->Number, 2);
    EXPECT_EQ(list.Find("strasse"), nullptr);
    EXPECT_EQ(list.Find(""), nullptr);
}

TEST(KeyedList, InsertsAndRemovesByPosition) {
    KeyedList<Item> list;
    list.Append("b", Make(2));
    list.Insert(1, "a", Make(1));
    list.Insert(99, "c", Make(3));
    EXPECT_EQ(list.At(1)->Number, 1);
    EXPECT_EQ(list.At(3)->Number, 3);
    EXPECT_EQ(list.At(0), nullptr);
    EXPECT_EQ(list.At(4), nullptr);
    const auto removed = list.RemoveAt(2);
    EXPECT_EQ(removed->Number, 2);
    EXPECT_EQ(list.PositionOf(removed.get()), 0U);
    EXPECT_EQ(list.PositionOf(list.Find("c").get()), 2U);
    EXPECT_TRUE(list.Append("B", Make(4))) << "the key is free again";
    EXPECT_EQ(list.RemoveAt(7), nullptr);
}

TEST(KeyedList, ClearShowsItsMembersAnEmptyList) {
    KeyedList<Item> list;
    std::size_t seen = 99;
    auto item = Make(1);
    item->AtEnd = [&] { seen = list.Count() + (list.Contains("key") ? 10 : 0); };
    list.Append("key", std::move(item));
    list.Clear();
    EXPECT_EQ(seen, 0U);
}

} // namespace
} // namespace quillgrid
