#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace tavrin {

/// A setting that one thread may write while another reads it: a relaxed atomic that reads and assigns like a
/// plain T. There is no ordering between fields; whoever changes several calls `StartUpdate` afterwards, and a
/// pass that saw half of the change is superseded by the next.
template <class T>
class Field {
  public:
    constexpr Field() noexcept : value_(T{}) {}
    constexpr Field(T value) noexcept : value_(value) {}
    Field(const Field& other) noexcept : value_(other.load()) {}
    Field& operator=(const Field& other) noexcept { return *this = other.load(); }
    Field& operator=(T value) noexcept {
        value_.store(value, std::memory_order_relaxed);
        return *this;
    }

    operator T() const noexcept { return load(); }
    T load() const noexcept { return value_.load(std::memory_order_relaxed); }
    /// Sets a new value and returns the old one in one step; for flags that are read and cleared.
    T exchange(T value) noexcept { return value_.exchange(value, std::memory_order_relaxed); }

  private:
    std::atomic<T> value_;
};

/// A text that one thread may replace while another reads it. A reader keeps the copy it got.
template <>
class Field<std::string> {
  public:
    Field() : Field(std::string()) {}
    Field(std::string text) : text_(std::make_shared<const std::string>(std::move(text))) {}
    Field(const char* text) : Field(std::string(text)) {}
    Field(const Field& other) : text_(other.share()) {}
    Field& operator=(const Field& other) {
        if (this != &other) swapIn(other.share());
        return *this;
    }
    Field& operator=(std::string text) {
        swapIn(std::make_shared<const std::string>(std::move(text)));
        return *this;
    }
    Field& operator=(const char* text) { return *this = std::string(text); }

    operator std::string() const { return load(); }
    std::string load() const { return *share(); }
    bool empty() const { return share()->empty(); }

  private:
    // The lock covers the exchange of one pointer and nothing else; no pass ever waits on it for longer.
    std::shared_ptr<const std::string> share() const {
        std::lock_guard lock(mutex_);
        return text_;
    }
    void swapIn(std::shared_ptr<const std::string> text) {
        std::lock_guard lock(mutex_);
        text_.swap(text);
    }

    mutable std::mutex mutex_;
    std::shared_ptr<const std::string> text_;
};

}  // namespace tavrin
