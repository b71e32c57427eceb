#pragma once

#include <span>

#include "core/state/Leaf.h"
#include "formats/ProcessXML.h"

namespace tavrin {

// Tables of leaves and the active element of a document. Leaves that are not stored are passed over throughout.

inline void saveValue(ProcessXML& xml, const char* key, bool value) {
    xml.SaveBoolValue(key, value);
}
inline void saveValue(ProcessXML& xml, const char* key, std::int32_t value) {
    xml.SaveIntValue(key, value);
}
inline void saveValue(ProcessXML& xml, const char* key, std::int64_t value) {
    xml.SaveIntValue(key, value);
}
inline void saveValue(ProcessXML& xml, const char* key, double value) {
    xml.SaveDoubleValue(key, value);
}
inline void saveValue(ProcessXML& xml, const char* key, const std::string& value) {
    xml.SaveStringValue(key, value);
}

inline void loadValue(ProcessXML& xml, const char* key, Field<bool>& field) {
    field = xml.BoolValue(key);
}
inline void loadValue(ProcessXML& xml, const char* key, Field<std::int32_t>& field) {
    field = xml.Int32Value(key);
}
inline void loadValue(ProcessXML& xml, const char* key, Field<std::int64_t>& field) {
    field = xml.IntValue(key);
}
inline void loadValue(ProcessXML& xml, const char* key, Field<double>& field) {
    field = xml.DoubleValue(key);
}
inline void loadValue(ProcessXML& xml, const char* key, Field<std::string>& field) {
    field = xml.StringValue(key);
}

template <class Owner>
void saveLeaf(ProcessXML& xml, const Owner& object, const Leaf<Owner>& leaf) {
    std::visit([&](auto member) { saveValue(xml, leaf.key, (object.*member).load()); }, leaf.member);
}

/// Reads the element `key` into the field of a leaf, which most often has the same name.
template <class Owner>
void loadLeaf(ProcessXML& xml, const char* key, Owner& object, const Leaf<Owner>& leaf) {
    std::visit([&](auto member) { loadValue(xml, key, object.*member); }, leaf.member);
}

template <class Owner>
void copyLeaf(const Owner& from, Owner& to, const Leaf<Owner>& leaf) {
    std::visit([&](auto member) { to.*member = (from.*member).load(); }, leaf.member);
}

template <class Owner>
void saveLeaves(ProcessXML& xml, const Owner& object) {
    for (const Leaf<Owner>& leaf : Owner::leaves()) {
        if (leaf.stored) saveLeaf(xml, object, leaf);
    }
}

template <class Owner>
void loadLeaves(ProcessXML& xml, Owner& object) {
    for (const Leaf<Owner>& leaf : Owner::leaves()) {
        if (leaf.stored) loadLeaf(xml, leaf.key, object, leaf);
    }
}

template <class Owner>
void copyLeaves(const Owner& from, Owner& to) {
    for (const Leaf<Owner>& leaf : Owner::leaves()) {
        if (leaf.stored) copyLeaf(from, to, leaf);
    }
}

}  // namespace tavrin
