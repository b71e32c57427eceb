#include "booth/EventTeller.h"

namespace tavrin {

void EventTeller::counted(int tickets, int photos) {
    std::lock_guard lock(mutex_);
    listener_.counted(tickets, photos);
}

void EventTeller::finished(const EventResult& result) {
    std::lock_guard lock(mutex_);
    listener_.finished(result);
}

void EventTeller::changed(const EventSigns& signs) {
    std::lock_guard lock(mutex_);
    listener_.changed(signs);
}

void EventTeller::ended() {
    std::lock_guard lock(mutex_);
    listener_.ended();
}

void EventTeller::alert(const std::string& message, const std::string& reason) {
    std::lock_guard lock(mutex_);
    listener_.alert(message, reason);
}

void EventTeller::trouble(const std::string& subject, const std::string& message, const std::string& reason) {
    std::lock_guard lock(mutex_);
    std::string& told = told_[subject];
    if (told == reason) return;
    told = reason;
    if (!reason.empty()) listener_.alert(message, reason);
}

}  // namespace tavrin
