#include "ui/WindowBridge.h"

#include <algorithm>
#include <utility>

#include <QMetaObject>
#include <QThread>

#include "core/Log.h"
#include "editor/EditorDoor.h"

namespace tavrin {

namespace {

/// Rows of an edit that newer ones paint over.
bool isWithin(const PublishedRows& old, const PublishedRows& rows) {
    return old.edited && old.resolution == rows.resolution && old.height == rows.height &&
           old.firstRow >= rows.firstRow && old.firstRow + old.rowCount <= rows.firstRow + rows.rowCount;
}

}  // namespace

WindowBridge::WindowBridge(QObject* parent) : QObject(parent) {}

void WindowBridge::repaint(const PublishedRows& rows) {
    bool first = false;
    {
        std::lock_guard lock(mutex_);
        first = pending_.empty();
        // A new preview, or the whole full picture, makes everything before it stale; rows of an edit belong to it.
        if (!rows.edited && (rows.isPreview() || rows.rowCount == rows.height)) pending_.clear();
        if (rows.edited) std::erase_if(pending_, [&](const PublishedRows& old) { return isWithin(old, rows); });
        pending_.push_back(rows);
    }
    if (first) emit published();
}

std::vector<PublishedRows> WindowBridge::takePublished() {
    std::lock_guard lock(mutex_);
    return std::exchange(pending_, {});
}

void WindowBridge::enableControls(bool enabled, bool hostApplication) {
    if (!enabled && editor_) editor_->beginPass();
    emit controlsEnabled(enabled, hostApplication);
}

void WindowBridge::sizeWindow(int outputWidth, int outputHeight) {
    emit outputSized(outputWidth, outputHeight);
}

void WindowBridge::updateScaleUI() {
    emit placed();
}

void WindowBridge::showAlert(const std::string& message, const std::string& reason) {
    logError(message + " (" + reason + ")");  // the reason alone names no file
    emit alerted(QString::fromStdString(message), QString::fromStdString(reason));
}

void WindowBridge::performAndWait(const std::function<void()>& job) {
    if (QThread::currentThread() == thread()) {
        job();
    } else {
        QMetaObject::invokeMethod(this, job, Qt::BlockingQueuedConnection);
    }
}

bool WindowBridge::editorIsOpen() const {
    return editor_ && editor_->isOpen();
}

void WindowBridge::exitEditorMode() {
    if (editor_) editor_->closeForPass();
}

void WindowBridge::setMouse(bool down, int mode) {
    mouseMode_.store(mode, std::memory_order_relaxed);
    mouseDown_.store(down, std::memory_order_relaxed);
}

}  // namespace tavrin
