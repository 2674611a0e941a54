#include "quillgrid/base/KeyedList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

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

TEST(KeyedList, KeysFollowTheirPlacesThroughAnyChange) {
    KeyedList<Item> list;
    std::vector<std::pair<std::string, int>> model;
    std::mt19937 random(7);
    for (int round = 0; round < 5'000; ++round) {
        const std::size_t place = random() % (model.size() + 1);
        if (random() % 3 == 0 && place < model.size()) {
            ASSERT_EQ(list.RemoveAt(place + 1)->Number, model[place].second);
            model.erase(model.begin() + static_cast<std::ptrdiff_t>(place));
        } else {
            const std::string key =
                round > 100 && random() % 2 == 0 ? "Key" + std::to_string(random() % 60) : "";
            const bool taken =
                !key.empty() && std::any_of(model.begin(), model.end(),
                                            [&](const auto& entry) { return entry.first == key; });
            ASSERT_EQ(list.Insert(place + 1, key, Make(round)), !taken);
            if (!taken) model.insert(model.begin() + static_cast<std::ptrdiff_t>(place), {key, round});
        }
        ASSERT_EQ(list.Count(), model.size());
    }
    for (std::size_t i = 0; i < model.size(); ++i) {
        ASSERT_EQ(list.At(i + 1)->Number, model[i].second);
        const auto keyed = model[i].first.empty() ? nullptr : list.At(i + 1);
        ASSERT_EQ(list.Find(model[i].first), keyed);
    }
}

TEST(KeyedList, TheSameItemUnderTwoKeysKeepsTheOther) {
    KeyedList<Item> list;
    const auto item = Make(1);
    list.Append("one", item);
    list.Append("two", item);
    list.RemoveAt(2);
    EXPECT_TRUE(list.Contains("ONE"));
    EXPECT_FALSE(list.Contains("two"));
}

TEST(KeyedList, MembersMayUseTheListAsItEnds) {
    auto list = std::make_unique<KeyedList<Item>>();
    std::size_t seen = 99;
    auto item = Make(1);
    item->AtEnd = [&, raw = list.get()] {
        seen = raw->Count();
        raw->Append("late", Make(2));
    };
    list->Append("key", std::move(item));
    list.reset();
    EXPECT_EQ(seen, 0U);
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
