#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <iterator>
#include <memory>
#include <span>

#include "core/state/FontObject.h"

namespace tavrin {

/// The text and picture items in the order in which they are drawn. One thread may change the list while others read
/// it: an item has its place for as long as the list lives, so a reader meets half of a change at worst, and whoever
/// changes the list asks for a picture afterwards. Only one thread at a time changes it.
class ItemList {
    template <class List, class Item>
    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = FontObject;
        using difference_type = std::ptrdiff_t;
        using pointer = Item*;
        using reference = Item&;

        Iterator() = default;
        Iterator(List* list, std::size_t at) : list_(list), at_(at) {}
        Item& operator*() const { return (*list_)[at_]; }
        Item* operator->() const { return &(*list_)[at_]; }
        Iterator& operator++() {
            ++at_;
            return *this;
        }
        Iterator operator++(int) { return {list_, at_++}; }
        bool operator==(const Iterator&) const = default;

      private:
        List* list_ = nullptr;
        std::size_t at_ = 0;
    };

  public:
    static constexpr std::size_t kMost = 200;

    std::size_t size() const { return size_.load(std::memory_order_acquire); }
    bool empty() const { return size() == 0; }
    /// @param at below the size, or what the size was a moment ago
    FontObject& operator[](std::size_t at) { return *places_[at]; }
    const FontObject& operator[](std::size_t at) const { return *places_[at]; }
    FontObject& back() { return (*this)[size() - 1]; }

    auto begin() { return Iterator<ItemList, FontObject>(this, 0); }
    auto end() { return Iterator<ItemList, FontObject>(this, size()); }
    auto begin() const { return Iterator<const ItemList, const FontObject>(this, 0); }
    auto end() const { return Iterator<const ItemList, const FontObject>(this, size()); }

    /// Adds plain items or drops the last ones; never more than `kMost`.
    void resize(std::size_t size);
    void clear() { resize(0); }
    /// Adds an item; a full list keeps its last one and gives that.
    FontObject& push_back(const FontObject& item = {});
    void assign(std::span<const FontObject> items);

  private:
    std::array<std::unique_ptr<FontObject>, kMost> places_;  // filled as far as the list has ever reached
    std::atomic<std::size_t> size_ = 0;
};

}  // namespace tavrin
