#pragma once

#include <functional>

#include <QString>
#include <QtPlugin>

class QWidget;

namespace tavrin {

/// What a page asks of the program that shows it. All on the main thread.
struct PageCalls {
    /// Somebody followed a link to a file of this computer. @param name the last part of its path
    /// @return whether the page may go there
    std::function<bool(const QString& name)> mayGo;
    std::function<void(double)> lastScroll = {};  ///< how far the strip of the page is scrolled, in its pixels
    std::function<void()> loaded = {};            ///< a page has been read to its end, or cannot be
    std::function<void(const QString& text)> alert = {};  ///< what a script of the page wants to tell
};

/// Shows pages of this computer's files in a window of the program. It is a library of its own beside the program, so
/// that the program starts without it, and runs on machines that have no web engine.
class WebPages {
  public:
    virtual ~WebPages() = default;
    /// A view for pages that `show` fills, or null where the engine cannot run. Only local files are read, whatever a
    /// page says.
    virtual QWidget* makeView(PageCalls calls, QWidget* parent) = 0;
    /// @param view of `makeView`
    virtual void show(QWidget* view, const QString& path) = 0;
};

/// The one of this installation, or null where it or its web engine is missing. Asked for the first time it takes a
/// moment. `TAVRIN_WEB_PAGES` names another file than that beside the program.
WebPages* webPages();

}  // namespace tavrin

Q_DECLARE_INTERFACE(tavrin::WebPages, "org.tavrin.WebPages/2")
