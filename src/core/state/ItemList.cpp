#include "core/state/ItemList.h"

#include <algorithm>

namespace tavrin {

void ItemList::resize(std::size_t size) {
    size = std::min(size, kMost);
    for (std::size_t i = this->size(); i < size; ++i) {
        if (!places_[i]) {
            places_[i] = std::make_unique<FontObject>();
        } else {
            *places_[i] = FontObject();
        }
    }
    size_.store(size, std::memory_order_release);
}

FontObject& ItemList::push_back(const FontObject& item) {
    resize(size() + 1);
    return back() = item;
}

void ItemList::assign(std::span<const FontObject> items) {
    resize(items.size());
    for (std::size_t i = 0; i < size(); ++i)
        (*this)[i] = items[i];
}

}  // namespace tavrin
