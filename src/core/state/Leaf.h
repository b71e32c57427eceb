#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "core/state/Field.h"

namespace tavrin {

/// One named setting of a group. The group's table of leaves serves the state file (reader and writer, in this
/// order), `tavrin-cli --set` and the tests, so that a setting is spelled out once.
template <class Owner>
struct Leaf {
    using Member = std::variant<Field<std::int32_t> Owner::*, Field<std::int64_t> Owner::*, Field<bool> Owner::*,
                                Field<double> Owner::*, Field<std::string> Owner::*>;
    const char* key;  ///< the field's name, which is also its name in files and on the command line
    Member member;
    bool stored = true;  ///< false: settable, but not part of the state file
};

template <class Owner>
using Leaves = std::vector<Leaf<Owner>>;

template <class Derived, class Base, class Value>
Value Derived::*upcast(Value Base::*member) {
    return member;
}

/// Adds the leaves of a base class to the table of a class made of it.
template <class Derived, class Base>
void appendLeaves(Leaves<Derived>& table, std::span<const Leaf<Base>> group) {
    for (const Leaf<Base>& leaf : group) {
        std::visit(
            [&](auto member) {
                table.push_back({leaf.key, upcast<Derived>(member), leaf.stored});
            },
            leaf.member);
    }
}

/// Finds a leaf by its key; null when there is none.
template <class Owner>
const Leaf<Owner>* findLeaf(std::span<const Leaf<Owner>> table, const std::string& key) {
    for (const Leaf<Owner>& leaf : table) {
        if (key == leaf.key) return &leaf;
    }
    return nullptr;
}

// Field name and key are one word; writing it once keeps them so.
#define TAVRIN_LEAF(Owner, field) \
    { #field, &Owner::field, true }
#define TAVRIN_LEAF_NOT_STORED(Owner, field) \
    { #field, &Owner::field, false }

}  // namespace tavrin
