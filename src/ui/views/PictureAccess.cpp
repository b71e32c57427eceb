#include "ui/views/PictureAccess.h"

#include <QAccessibleWidget>

#include "ui/views/PictureView.h"

namespace tavrin {

namespace {

/// An image whose value is what is shown of it; place, state and focus are the widget's.
class PictureAccess : public QAccessibleWidget {
  public:
    explicit PictureAccess(PictureView* view) : QAccessibleWidget(view, QAccessible::Graphic) {}

    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Value && kind != QAccessible::Description) return QAccessibleWidget::text(kind);
        return static_cast<const PictureView*>(widget())->description();
    }
};

QAccessibleInterface* make(const QString&, QObject* object) {
    auto* view = qobject_cast<PictureView*>(object);
    return view ? new PictureAccess(view) : nullptr;
}

}  // namespace

void makePictureAccessible() {
    static const bool once = [] {
        QAccessible::installFactory(make);
        return true;
    }();
    static_cast<void>(once);
}

}  // namespace tavrin
